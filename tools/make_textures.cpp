// Makes the pictures that an installation ships: the icons of a selected text, the pencil and parchment of the
// sketch, the surfaces for the texture effect, and the materials of frames. The same pictures every time.

#include <cstdio>

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

#include "textures/Icons.h"
#include "textures/Materials.h"
#include "textures/Parchment.h"
#include "textures/Pencil.h"
#include "textures/Relief.h"

namespace tavrin::textures {

namespace {

struct Job {
    const char* path;
    QImage (*paint)();
};

constexpr int kQuality = 84;  // of a JPEG; a PNG loses nothing at any

constexpr Job kJobs[] = {
    {"EditTextIcons/Edit.png", drawEditIcon},
    {"EditTextIcons/Delete.png", drawDeleteIcon},
    {"Texture/Sketch/PencilDense.jpg", drawPencilDense},
    {"Texture/Sketch/PencilDenseCross.jpg", drawPencilDenseCross},
    {"Texture/Sketch/lightParchment.jpg", paintParchment},
    {"Texture/Canvas.jpg", weaveCanvas},
    {"Texture/Linen.jpg", weaveLinen},
    {"Texture/Paper.jpg", pressPaper},
    {"Frame/Walnut.jpg", planeWalnut},
    {"Frame/BrushedGold.jpg", brushGold},
    {"Frame/Marble.jpg", polishMarble},
    {"Frame/Velvet.jpg", drapeVelvet},
};

bool write(const Job& job, const QDir& folder) {
    const QString path = folder.filePath(job.path);
    if (!QDir().mkpath(QFileInfo(path).path())) {
        std::fprintf(stderr, "make_textures: %s: the folder can't be made\n", qPrintable(path));
        return false;
    }
    QImageWriter writer(path);
    writer.setQuality(kQuality);
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
        std::fprintf(stderr,
                     "usage: make_textures FOLDER\nwrites the folders EditTextIcons, Frame and Texture there\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const Job& job : kJobs) {
        if (!write(job, folder)) return 1;
    }
    return 0;
}
