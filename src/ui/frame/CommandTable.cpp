#include <QLineEdit>

#include "ui/adjust/Rotation.h"
#include "ui/frame/ActionSearch.h"
#include "ui/frame/HelpPanels.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/ShortcutDialog.h"
#include "ui/frame/Theme.h"
#include "ui/frame/TipGuard.h"

namespace tavrin {

namespace {

using Kind = Command::Kind;

/// A quarter turn of a layer, by the key of its button.
Command turn(MainWindow& window, const char* id, const char* menu, const QString& text, char key) {
    return {id, menu, text, MainWindow::tr("Turns the whole layer"), "", {}, {}, [&window, key, text](bool) {
                window.binder().run(text, [key](SettingEditor& editor) { clickedRotationRadiobutton(editor, key); });
            }};
}

Command theme(const char* id, const char* menu, const QString& text, Theme theme) {
    return {id, menu, text, MainWindow::tr("The colours of the window"),
            "", {},   {},   [theme](bool) { chooseTheme(theme); }};
}

}  // namespace

/// What the search of actions finds: the commands of the window and the controls of its panel.
void MainWindow::findAction() {
    std::vector<ActionSearch::Entry> entries;
    for (const Command& command : commands_->table()) {
        QAction* action = commands_->action(command.id);
        const QString menu = QString(command.menu).remove('|').remove('&');
        entries.push_back({action->text().section('\t', 0, 0).remove('&'),
                           menu.isEmpty() ? MainWindow::tr("Shortcut") : menu,
                           commands_->keyOf(command).toString(QKeySequence::NativeText), command.toolTip,
                           action->isEnabled(), [action] { action->trigger(); }});
    }
    for (const GroupBox* group : panel_->groups())
        for (const QWidget* item : group->items())
            entries.push_back({GroupBox::nameOf(*item),
                               ControlRow::translated(group->group().title),
                               {},
                               group->toldOf(*item),
                               true,
                               [this, item] { panel_->reveal(item); }});
    (new ActionSearch(std::move(entries), this))->show();
}

std::vector<Command> commandTable(MainWindow& w) {
    std::vector<Command> table = {
        {"loadForeground",
         "&File",
         MainWindow::tr("Open &Portrait..."),
         MainWindow::tr("Opens a portrait in front of a green or blue screen"),
         "/portrait",
         QKeySequence::Open,
         {},
         [&w](bool) { w.loadForeground(); }},
        {"loadBackground",
         "&File",
         MainWindow::tr("Open &Background..."),
         MainWindow::tr("Lays another picture behind the portrait"),
         "/background",
         QKeySequence(Qt::CTRL | Qt::Key_B),
         {},
         [&w](bool) { w.loadBackground(); }},
        {"OpenState",
         "&File",
         MainWindow::tr("Open S&tate..."),
         MainWindow::tr("Brings every setting and both pictures back"),
         "",
         QKeySequence(Qt::CTRL | Qt::Key_T),
         {},
         [&w](bool) { w.askForStateToOpen(); }},
        {"Save", "|&File", MainWindow::tr("&Save"), MainWindow::tr("Saves the finished picture"),
         "document-save/save", QKeySequence::Save, [&w] { return w.finished_; }, [&w](bool) { w.saveImage(); }},
        {"SaveState",
         "&File",
         MainWindow::tr("Save State &As..."),
         MainWindow::tr("Saves every setting, to go on with later"),
         "",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T),
         {},
         [&w](bool) { w.askForStateToSave(); }},
        {"FramePortraits",
         "|&File",
         MainWindow::tr("&Frame New Portraits"),
         MainWindow::tr("Places portraits around their subject"),
         "",
         {},
         {},
         [&w](bool on) { w.frameNewPortraits(on); },
         Kind::checked},
        {"Quit",
         "|&File",
         MainWindow::tr("&Quit"),
         {},
         "application-exit",
         QKeySequence::Quit,
         {},
         [&w](bool) { w.close(); }},
        {"UndoButton", "&Edit", MainWindow::tr("&Undo"), MainWindow::tr("Takes the last change of a setting back"),
         "edit-undo/undo", QKeySequence::Undo,
         [&w] { return w.airbrush_->isOpen() ? w.airbrush_->face().canUndo : w.editor_.stepsDone() > 0; },
         [&w](bool) { w.airbrush_->isOpen() ? w.airbrush_->undo() : w.binder_.undo(); }},
        {"RedoButton", "&Edit", MainWindow::tr("&Redo"), MainWindow::tr("Does again what was taken back"),
         "edit-redo/redo", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
         [&w] {
             return w.airbrush_->isOpen() ? w.airbrush_->face().canRedo
                                          : w.editor_.stepsDone() < w.editor_.steps().size();
         },
         [&w](bool) { w.airbrush_->isOpen() ? w.airbrush_->redo() : w.binder_.redo(); }},
        {"FindControl",
         "|&Edit",
         MainWindow::tr("&Find a Control"),
         MainWindow::tr("Searches the controls by words"),
         "edit-find/find",
         QKeySequence::Find,
         {},
         [&w](bool) {
             w.panel_->show();
             w.panel_->searchField()->setFocus();
             w.panel_->searchField()->selectAll();
         }},
        {"FindAction",
         "&Edit",
         MainWindow::tr("Find an &Action..."),
         MainWindow::tr("Finds every command and control by words, and does or shows it"),
         "",
         QKeySequence(Qt::CTRL | Qt::Key_K),
         {},
         [&w](bool) { w.findAction(); }},
        {"ResetAll",
         "|&Edit",
         MainWindow::tr("&Reset All Settings"),
         MainWindow::tr("Puts every default of both layers back, as one step"),
         "",
         {},
         {},
         [&w](bool) { w.panel_->resetAll(); }},
        {"setZoomHome",
         "&View",
         MainWindow::tr("&Fit"),
         MainWindow::tr("Shows the whole picture"),
         "zoom-fit-best/fit",
         QKeySequence(Qt::Key_F),
         {},
         [&w](bool) {
             w.view_->setZoomHome();
             w.airbrush_->noteZoom(kZoomHome);
         }},
        {"setZoomMagnify",
         "&View",
         MainWindow::tr("A Little &Larger"),
         MainWindow::tr("A tenth larger"),
         "",
         QKeySequence(Qt::Key_S),
         {},
         [&w](bool) {
             w.view_->setZoomMagnify();
             w.airbrush_->noteZoom(kZoomIn);
         }},
        {"ZoomPixels",
         "&View",
         MainWindow::tr("&100 %"),
         MainWindow::tr("A pixel of the picture on a pixel of the screen"),
         "zoom-original/pixels",
         QKeySequence(Qt::Key_1),
         {},
         [&w](bool) { w.view_->zoomToPixels(); }},
        {"ZoomIn",
         "&View",
         MainWindow::tr("Zoom &In"),
         MainWindow::tr("Larger"),
         "zoom-in/larger",
         QKeySequence::ZoomIn,
         {},
         [&w](bool) { w.view_->zoomBy(1.25); }},
        {"ZoomOut",
         "&View",
         MainWindow::tr("Zoom &Out"),
         MainWindow::tr("Smaller"),
         "zoom-out/smaller",
         QKeySequence::ZoomOut,
         {},
         [&w](bool) { w.view_->zoomBy(0.8); }},
        {"AutoState",
         "|&File",
         MainWindow::tr("Save the State with Every &Picture"),
         MainWindow::tr("Writes a state file of the same name beside each saved picture"),
         "",
         {},
         {},
         [&w](bool on) {
             w.info_.oQLXInfo->bAutoQLXSave = on;
             w.keepSettings();
         },
         Kind::checked},
        {"ShowPanel",
         "|&View",
         MainWindow::tr("&Controls"),
         MainWindow::tr("Folds the controls away, or shows them"),
         "",
         QKeySequence(Qt::Key_Tab),
         {},
         [&w](bool) { w.panel_->setVisible(w.panel_->isHidden()); },
         Kind::onPicture},
        {"ShowHistory",
         "&View",
         MainWindow::tr("&History"),
         MainWindow::tr("Every step of this portrait"),
         "",
         QKeySequence(Qt::CTRL | Qt::Key_H),
         {},
         [&w](bool) {
             w.history_->setVisible(w.history_->isHidden());
             w.history_->raise();
         }},
        {"ShowLooks",
         "&View",
         MainWindow::tr("&My Looks"),
         MainWindow::tr("Looks by name: take, save, rename, delete, import, export"),
         "",
         QKeySequence(Qt::CTRL | Qt::Key_L),
         {},
         [&w](bool) {
             w.looksPanel_->setVisible(w.looksPanel_->isHidden());
             w.looksPanel_->raise();
         }},
        {"FullScreen",
         "&View",
         MainWindow::tr("Full &Screen"),
         MainWindow::tr("Nothing but the program on the screen"),
         "view-fullscreen",
         QKeySequence(Qt::Key_F11),
         {},
         [&w](bool on) { w.setFullScreen(on); },
         Kind::checked},
        {"ToolTips",
         "|&View",
         MainWindow::tr("Tool Ti&ps"),
         MainWindow::tr("Shows what a control does while the pointer rests on it"),
         "",
         QKeySequence(Qt::SHIFT | Qt::Key_F1),
         {},
         [&w](bool on) { w.tips_->setWanted(on); },
         Kind::checked,
         [&w] { return w.tips_->areWanted(); }},
        theme("ThemeDesktop", "|&View", MainWindow::tr("Colours of the &Desktop"), Theme::desktop),
        theme("ThemeLight", "&View", MainWindow::tr("L&ight Colours"), Theme::light),
        theme("ThemeDark", "&View", MainWindow::tr("&Dark Colours"), Theme::dark),
        turn(w, "RotateForeground1", "&Picture", MainWindow::tr("Portrait: Upright"), '1'),
        turn(w, "RotateForeground2", "&Picture", MainWindow::tr("Portrait: 90 Degrees"), '2'),
        turn(w, "RotateForeground3", "&Picture", MainWindow::tr("Portrait: 270 Degrees"), '3'),
        turn(w, "RotateBackground4", "|&Picture", MainWindow::tr("Background: Upright"), '4'),
        turn(w, "RotateBackground5", "&Picture", MainWindow::tr("Background: 90 Degrees"), '5'),
        turn(w, "RotateBackground6", "&Picture", MainWindow::tr("Background: 270 Degrees"), '6'),
        {"clickedButtonfreezebackground",
         "|&Picture",
         MainWindow::tr("&Freeze into the Background"),
         MainWindow::tr("The picture becomes the background, and another portrait can go before it"),
         "",
         {},
         [&w] { return w.finished_; },
         [&w](bool) { w.freeze(); }},
        {"clickedButtonfreezebackgroundclear",
         "&Picture",
         MainWindow::tr("&Clear the Freeze"),
         MainWindow::tr("Portrait and background are what their files are again"),
         "",
         {},
         [&w] { return w.info_.bBackgroundFrozen.load(); },
         [&w](bool) { w.clearFreeze(); }},
        {"showQLXHelp",
         "&Help",
         MainWindow::tr("User's &Guide"),
         MainWindow::tr("From the first picture to whole folders, with pictures"),
         "",
         {},
         {},
         [&w](bool) { showQLXHelp(&w); }},
        {"Shortcuts",
         "&Help",
         MainWindow::tr("&Keyboard Shortcuts"),
         MainWindow::tr("Every key and what it does, and another one where you want it"),
         "",
         QKeySequence(Qt::Key_F1),
         {},
         [&w](bool) { (new ShortcutDialog(*w.commands_, &w))->show(); }},
        {"ShowAboutBox",
         "|&Help",
         MainWindow::tr("&About Tavrin"),
         MainWindow::tr("The version of this program"),
         "",
         {},
         {},
         [&w](bool) { ShowAboutBox(&w); }},
    };
    for (Command& command : lookCommands(*w.looks_))
        table.push_back(std::move(command));
    return table;
}

}  // namespace tavrin
