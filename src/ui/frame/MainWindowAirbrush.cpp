// What the main window does with its airbrush.
#include "ui/frame/MainWindow.h"

namespace tavrin {

void MainWindow::connectAirbrush() {
    constexpr int kTab = 2;
    connect(panel_, &SidePanel::mainTabSelected, airbrush_, [this](int key) { airbrush_->turnTo(key == kTab); });
    connect(airbrush_, &Airbrush::modeChanged, this, [this](bool open) {
        setWindowTitle(open ? tr("Main Window - Airbrush Editor Mode") : tr("Main Window - Adjust/Load Mode"));
        commands_->refresh();
        tellUndo();
    });
    connect(airbrush_, &Airbrush::changed, commands_, &Commands::refresh);
    connect(airbrush_, &Airbrush::edited, tools_, &PictureTools::pictureFinished);
    connect(airbrush_, &Airbrush::strokesLost, this, &MainWindow::offerLostStrokes);
    connect(airbrush_, &Airbrush::told, messages_, &MessageBar::tell);
    connect(airbrush_, &Airbrush::failed, messages_, &MessageBar::fail);
    connect(airbrush_, &Airbrush::strokesChanged, keeping_,
            [this](const EditFile& file) { keeping_->noteEdits(editText(file)); });
    connect(keeping_, &Safekeeping::tookUpEdits, airbrush_, &Airbrush::offer);
    EditorPage* page = airbrush_->page();
    page->addAction(commands_->action("UndoButton"), "editorUndo", "undo:");
    page->addAction(commands_->action("RedoButton"), "editorRedo", "redo:");
    page->addAction(commands_->action("ReplayEdits"), "buttonReplayEdits", "buttonReplayEdits:");
    page->addAction(commands_->action("SaveEdits"), "buttonSaveEdits", "SaveEdits");
    page->addAction(commands_->action("LoadEdits"), "buttonLoadEdits", "LoadEdits");
    page->addBox(commands_->action("ShowAlpha"), "checkboxShowAlpha", "checkboxShowAlphaClicked:");
    airbrush_->turnTo(panel_->page()->title().key == kTab);
}

/// Another question is not taken away for it: the panel has the same button.
void MainWindow::offerLostStrokes(int strokes) {
    const QString line = tr("The picture was made anew, without the strokes of the airbrush: %1.").arg(strokes);
    if (!messages_->question().isEmpty()) return messages_->tell(line);
    messages_->ask(line, {{"BringBack", tr("Bring Them Back"), tr("Turns to the airbrush and replays the strokes"),
                           [this] {
                               panel_->selectMainTab(2);
                               if (airbrush_->face().lost > 0) airbrush_->replay();
                           }},
                          {"LeaveThem", tr("Leave Them"), tr("The picture stays as it is"), [] {}}});
}

}  // namespace tavrin
