// Makes the overlays that an installation ships: pictures with alpha that are laid over the background ("BG_"), over
// the subject ("FG_") or over both ("FR_"). Those of one name belong together. The same pictures every time.

#include <cstdio>

#include <QDir>
#include <QImageWriter>

#include "overlays/Gold.h"
#include "overlays/Graduation.h"
#include "overlays/Party.h"
#include "overlays/Winter.h"

namespace tavrin::overlays {

namespace {

struct Job {
    const char* name;
    QImage (*draw)();
};

constexpr Job kJobs[] = {
    {"FR_Gold.png", drawGoldFrame},
    {"FR_Graduation.png", drawGraduationFrame},
    {"FG_Graduation.png", drawGraduationStars},
    {"BG_Graduation.png", drawGraduationLights},
    {"FR_Winter.png", drawWinterFrame},
    {"FG_Winter.png", drawWinterSnow},
    {"BG_Winter.png", drawWinterHaze},
    {"FR_Party.png", drawPartyFrame},
    {"FG_Party.png", drawPartyConfetti},
    {"BG_Party.png", drawPartyLights},
};

bool write(const Job& job, const QDir& folder) {
    QImageWriter writer(folder.filePath(job.name));
    writer.setCompression(100);
    if (writer.write(job.draw().convertToFormat(QImage::Format_ARGB32))) return true;
    std::fprintf(stderr, "make_overlays: %s: %s\n", qPrintable(writer.fileName()), qPrintable(writer.errorString()));
    return false;
}

}  // namespace

}  // namespace tavrin::overlays

int main(int argc, char** argv) {
    using namespace tavrin::overlays;
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_overlays FOLDER\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    if (!QDir().mkpath(folder.path())) {
        std::fprintf(stderr, "make_overlays: %s: the folder can't be made\n", argv[1]);
        return 1;
    }
    for (const Job& job : kJobs) {
        if (!write(job, folder)) return 1;
    }
    return 0;
}
