#include "booth/Ticket.h"

#include <filesystem>

#include <QDateTime>
#include <QUuid>

#include "booth/BoothFolder.h"
#include "core/Interruption.h"
#include "core/files/AtomicFile.h"
#include "core/files/FreeName.h"
#include "delivery/mail/DeliveryConf.h"
#include "folders/NextFileInFolder.h"
#include "formats/ImageState.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// A name with what others put behind it has to stay a name.
constexpr std::size_t kLongestStem = 200;

std::string cutAtLetter(std::string name, std::size_t most) {
    if (name.size() <= most) return name;
    while (most > 0 && (static_cast<unsigned char>(name[most]) & 0xC0U) == 0x80U)
        --most;
    return name.substr(0, most);
}

/// Gives a written ticket the first name from these ticks on that neither a ticket nor a photo has.
Press nameTicket(const BoothFolder& folder, const std::string& file, const std::string& portrait) {
    constexpr int kMostTries = 10'000;
    long long ticks = eventTicks();
    for (int i = 0; i < kMostTries; ++i, ++ticks) {
        const std::string stem = ticketStem(folder.output(), portrait, ticks);
        if (folder.hasPhoto(stemOf(stem + ".qlx"))) continue;  // the ticket would count as done
        const int code = moveToFreeName(file, stem + ".qlx");
        if (code == EEXIST) continue;
        if (code != 0) return {"", "The picture was not saved: " + writeProblem(code, folder.output()) + "."};
        bringNamesToDisk(folder.output());
        return {stem + ".qlx", ""};
    }
    return {"", "The picture was not saved: there is no free name for it in " + folder.output() + "."};
}

}  // namespace

long long eventTicks() {
    return hundredthsOf(QDateTime::currentMSecsSinceEpoch());
}

std::string ticketStem(const std::string& outputFolder, const std::string& foregroundPath, long long ticks) {
    const std::string folder = outputFolder.ends_with('/') ? outputFolder : outputFolder + "/";
    return folder + cutAtLetter(stemOf(foregroundPath), kLongestStem) + "_" + std::to_string(ticks);
}

Press eventModeSaveNow(const SystemInfo& info) {
    if (!info.oQLXInfo->bAutoQLXSave)
        return {"", "The settings say that no state files are saved, so the booth cannot work."};
    return writeTicket(info, info.oQLXInfo->sEventModeOutputFolder);
}

Press writeTicket(const SystemInfo& info, const std::string& outputFolder) {
    const std::string portrait = info.pForegroundBitmapInfo->sSourceImageFullPath;
    if (portrait.empty()) return {"", "There is no portrait to save."};
    const BoothFolder folder(outputFolder);
    if (const std::string problem = folder.prepare(); !problem.empty()) return {"", problem};
    const Interruption::Hold hold;
    const std::string file =
        folder.hidden() + "press-" + QUuid::createUuid().toString(QUuid::Id128).toStdString() + ".qlx";
    if (const std::string problem = saveImageStateToXML(info, file); !problem.empty())
        return {"", "The picture was not saved. " + problem};
    Press press = nameTicket(folder, file, portrait);
    std::error_code ignored;
    if (!press.isDone()) fs::remove(file, ignored);
    return press;
}

}  // namespace tavrin
