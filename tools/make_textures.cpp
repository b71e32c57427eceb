// Makes the pictures that an installation ships: the icons of a selected text, the pencil and parchment of the
// sketch, and the surfaces for the texture effect. The same pictures every time.

#include <cstdio>

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

#include "textures/Icons.h"
#include "textures/Parchment.h"
#include "textures/Pencil.h"
#include "textures/Relief.h"

namespace tavrin::textures {

namespace {

struct Job {
    const char* path;
    QImage (*paint)();
    int quality;  // of a JPEG; a PNG loses nothing at any
};

constexpr Job kJobs[] = {
    {"EditTextIcons/Edit.png", drawEditIcon, 0},
    {"EditTextIcons/Delete.png", drawDeleteIcon, 0},
    {"Texture/Sketch/PencilDense.jpg", drawPencilDense, 85},
    {"Texture/Sketch/PencilDenseCross.jpg", drawPencilDenseCross, 85},
    {"Texture/Sketch/lightParchment.jpg", paintParchment, 85},
    {"Texture/Canvas.jpg", weaveCanvas, 85},
    {"Texture/Linen.jpg", weaveLinen, 85},
    {"Texture/Paper.jpg", pressPaper, 85},
};

bool write(const Job& job, const QDir& folder) {
    const QString path = folder.filePath(job.path);
    if (!QDir().mkpath(QFileInfo(path).path())) {
        std::fprintf(stderr, "make_textures: %s: the folder can't be made\n", qPrintable(path));
        return false;
    }
    QImageWriter writer(path);
    writer.setQuality(job.quality);
    writer.setOptimizedWrite(true);
    if (writer.write(job.paint())) return true;
    std::fprintf(stderr, "make_textures: %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
    return false;
}

}  // namespace

}  // namespace tavrin::textures

int main(int argc, char** argv) {
    using namespace tavrin::textures;
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_textures FOLDER\nwrites the folders EditTextIcons and Texture there\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const Job& job : kJobs) {
        if (!write(job, folder)) return 1;
    }
    return 0;
}
