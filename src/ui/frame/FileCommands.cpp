// Overlays, and what the settings go back to when a picture is opened.
#include <algorithm>
#include <iterator>

#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "session/Overlays.h"
#include "ui/FileFilters.h"
#include "ui/WindowSettings.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {

namespace {

constexpr OverlaySetting kOverlays[] = {{"bHaveFrameOverlay", "sFrameOverlay"},
                                        {"bHaveForegroundOverlay", "sForegroundOverlay"},
                                        {"bHaveBackgroundOverlay", "sBackgroundOverlay"}};

bool isOn(const Binder& binder, const OverlaySetting& overlay) {
    return binder.editor().value(overlay.have) != "0";
}

void lay(SettingEditor& editor, const OverlaySetting& overlay, const std::string& file) {
    editor.set(overlay.have, file.empty() ? "0" : "1");
    editor.set(overlay.file, file);
}

/// A box that is on or off from start to start.
Command resetCommand(const char* id, const QString& text, const QString& toolTip) {
    return {id,
            "|&File",
            text,
            toolTip,
            "",
            {},
            {},
            [id](bool on) { windowSettings().setValue(id, on); },
            Command::Kind::checked,
            [id] { return windowSettings().value(id, false).toBool(); }};
}

}  // namespace

std::vector<Command> fileCommands(MainWindow& w) {
    const auto overlay = [&w](const char* id, const char* menu, const QString& text, const QString& toolTip,
                              const std::function<void()>& load) {
        return Command{id, menu, text, toolTip, "", {}, {}, [load](bool) { load(); }};
    };
    const auto off = [&w](const char* id, const char* menu, const QString& text, std::vector<std::size_t> which) {
        const auto areOn = [&w, which] {
            return std::ranges::any_of(which, [&](std::size_t i) { return isOn(w.binder(), kOverlays[i]); });
        };
        return Command{id, menu, text,  MainWindow::tr("Takes it off the picture; the file stays as it is"),
                       "", {},   areOn, [&w, which, text](bool) { w.clearOverlays(which, text); }};
    };
    return {
        {"MendResult",
         "|&File",
         MainWindow::tr("&Mend a Result of a Batch..."),
         MainWindow::tr("Opens a batch's picture with its settings; Save then replaces it"),
         "",
         {},
         {},
         [&w](bool) { w.askForReview(); }},
        overlay("loadFrameOverlay", "|&Picture", MainWindow::tr("Overlay over the &Whole..."),
                MainWindow::tr("Lays a picture with clear parts over everything, such as a frame"),
                [&w] { w.loadOverlay(kOverlays[0], MainWindow::tr("Select Frame Overlay")); }),
        overlay("loadForegroundOverlay", "&Picture", MainWindow::tr("Overlay over the P&ortrait..."),
                MainWindow::tr("Lays a picture with clear parts over the portrait"),
                [&w] { w.loadOverlay(kOverlays[1], MainWindow::tr("Select Forground Overlay")); }),
        overlay("loadBackgroundOverlay", "&Picture", MainWindow::tr("Overlay over the &Background..."),
                MainWindow::tr("Lays a picture with clear parts between background and portrait"),
                [&w] { w.loadOverlay(kOverlays[2], MainWindow::tr("Select Background Overlay")); }),
        overlay("loadAutomaticOverlays", "&Picture", MainWindow::tr("Overlays of a &Set..."),
                MainWindow::tr("Choose one of a set (FR_, FG_, BG_ and a name): all of the set are laid on"),
                [&w] { w.loadAutomaticOverlays(); }),
        off("clearFrameOverlay", "|&Picture", MainWindow::tr("No Overlay over the W&hole"), {0}),
        off("clearForegroundOverlay", "&Picture", MainWindow::tr("No Overlay over the Portrait"), {1}),
        off("clearBackgroundOverlay", "&Picture", MainWindow::tr("No Overlay over the Background"), {2}),
        off("clearOverlays", "&Picture", MainWindow::tr("No Overla&ys"), {0, 1, 2}),
        resetCommand("ForegroundReset", MainWindow::tr("&Reset with Each New Portrait"),
                     MainWindow::tr("A portrait that is opened for the first time begins with the settings of the "
                                    "start-up state")),
        resetCommand("BackgroundReset", MainWindow::tr("Reset with &Each New Background"),
                     MainWindow::tr("A background that is opened begins with the start-up state's settings of the "
                                    "background")),
    };
}

/// The folder is remembered with the file, as it was chosen.
void MainWindow::loadOverlay(const OverlaySetting& overlay, const QString& title) {
    const QString path = selectImageToOpen(title, info_.oQLXInfo->sOverlayDir, pictureFilter());
    if (path.isEmpty()) return;
    binder_.run(tr("Overlay"), [&](SettingEditor& editor) { lay(editor, overlay, nameOfText(path)); });
}

void MainWindow::clearOverlays(const std::vector<std::size_t>& which, const QString& label) {
    binder_.run(QString(label).remove('&'), [&](SettingEditor& editor) {
        for (const std::size_t i : which)
            lay(editor, kOverlays[i], "");
    });
}

/// Every file of the set that lies in the pictures folder is laid on.
void MainWindow::loadAutomaticOverlays() {
    const QString path = selectImageToOpen(tr("Select Overlay"), info_.oQLXInfo->sOverlayDir, pictureFilter());
    if (path.isEmpty()) return;
    const OverlaySet set = searchFolder(Places::current().picturesFolder(), automaticNameOf(nameOfText(path)));
    if (set.frame.empty() && set.foreground.empty() && set.background.empty())
        return messages_->tell(
            tr("There is no set of this name in %1.").arg(textOfName(Places::current().picturesFolder())));
    binder_.run(tr("Overlays of a set"), [&](SettingEditor& editor) {
        const std::string* files[] = {&set.frame, &set.foreground, &set.background};
        for (std::size_t i = 0; i < std::size(files); ++i)
            if (!files[i]->empty()) lay(editor, kOverlays[i], *files[i]);
    });
}

}  // namespace tavrin
