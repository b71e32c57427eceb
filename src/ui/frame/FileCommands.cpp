// Overlays, and what the settings go back to when a picture is opened.
#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "session/Overlays.h"
#include "ui/FileFilters.h"
#include "ui/WindowSettings.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {

namespace {

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
    return {
        overlay(
            "loadFrameOverlay", "|&Picture", MainWindow::tr("Overlay over the &Whole..."),
            MainWindow::tr("Lays a picture with clear parts over everything, such as a frame"),
            [&w] { w.loadOverlay("bHaveFrameOverlay", "sFrameOverlay", MainWindow::tr("Select Frame Overlay")); }),
        overlay("loadForegroundOverlay", "&Picture", MainWindow::tr("Overlay over the P&ortrait..."),
                MainWindow::tr("Lays a picture with clear parts over the portrait"),
                [&w] {
                    w.loadOverlay("bHaveForegroundOverlay", "sForegroundOverlay",
                                  MainWindow::tr("Select Forground Overlay"));
                }),
        overlay("loadBackgroundOverlay", "&Picture", MainWindow::tr("Overlay over the &Background..."),
                MainWindow::tr("Lays a picture with clear parts between background and portrait"),
                [&w] {
                    w.loadOverlay("bHaveBackgroundOverlay", "sBackgroundOverlay",
                                  MainWindow::tr("Select Background Overlay"));
                }),
        overlay("loadAutomaticOverlays", "&Picture", MainWindow::tr("Overlays of a &Set..."),
                MainWindow::tr("Choose one of a set (FR_, FG_, BG_ and a name): all of the set are laid on"),
                [&w] { w.loadAutomaticOverlays(); }),
        resetCommand("ForegroundReset", MainWindow::tr("&Reset with Each New Portrait"),
                     MainWindow::tr("A portrait that is opened for the first time begins with the settings of the "
                                    "start-up state")),
        resetCommand("BackgroundReset", MainWindow::tr("Reset with &Each New Background"),
                     MainWindow::tr("A background that is opened begins with the start-up state's settings of the "
                                    "background")),
    };
}

/// The folder is remembered with the file, as it was chosen.
void MainWindow::loadOverlay(const char* have, const char* name, const QString& title) {
    const QString path = selectImageToOpen(title, info_.oQLXInfo->sOverlayDir, pictureFilter());
    if (path.isEmpty()) return;
    binder_.run(tr("Overlay"), [&](SettingEditor& editor) {
        editor.set(have, "1");
        editor.set(name, nameOfText(path));
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
        const auto lay = [&](const char* have, const char* name, const std::string& file) {
            if (file.empty()) return;
            editor.set(have, "1");
            editor.set(name, file);
        };
        lay("bHaveFrameOverlay", "sFrameOverlay", set.frame);
        lay("bHaveForegroundOverlay", "sForegroundOverlay", set.foreground);
        lay("bHaveBackgroundOverlay", "sBackgroundOverlay", set.background);
    });
}

}  // namespace tavrin
