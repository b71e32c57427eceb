// The strip below the picture: what it asks of the window, and its commands.
#include <QFileDialog>
#include <QMenu>
#include <QShortcut>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "ui/frame/ActionButton.h"
#include "ui/frame/MainWindow.h"
#include "ui/look/TileDesk.h"
#include "ui/strip/BackgroundGrid.h"

namespace tavrin {

namespace {

using Kind = Command::Kind;

Command markCommand(MainWindow& window, const char* id, const char* menu, const QString& text, const QString& toolTip,
                    Qt::Key key, PictureMark mark) {
    return {
        id, menu, text, toolTip, "", QKeySequence(key), {}, [&window, mark](bool) { window.strip()->mark(mark); }};
}

void showBackgrounds(MainWindow& window) {
    auto* grid = new BackgroundGrid(*window.strip(), &window);
    QObject::connect(grid, &BackgroundGrid::chosen, &window, &MainWindow::openBackground);
    grid->show();
}

}  // namespace

std::vector<Command> stripCommands(MainWindow& w) {
    return {
        {"OpenFolder",
         "&File",
         MainWindow::tr("Open F&older..."),
         MainWindow::tr("Fills the strip with a folder's portraits and opens the first"),
         "folder-open/folder",
         QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
         {},
         [&w](bool) { w.askForFolder(); }},
        {"ShowStrip",
         "&View",
         MainWindow::tr("S&trip of Pictures"),
         MainWindow::tr("Shows the pictures of the strip, or folds them away"),
         "",
         QKeySequence(Qt::Key_T),
         {},
         [&w](bool on) { w.strip()->setFolded(!on); },
         Kind::checked},
        {"ShowResults",
         "&View",
         MainWindow::tr("&Results in the Strip"),
         MainWindow::tr("Shows the portraits of the strip as they come out with the present settings"),
         "/keyed",
         QKeySequence(Qt::Key_R),
         {},
         [&w](bool on) { w.strip()->showResults(on); },
         Kind::checked},
        {"ShowBackgrounds",
         "&View",
         MainWindow::tr("All Back&grounds..."),
         MainWindow::tr("Shows the portrait over every background of the folder; a click lays one behind it"),
         "/grid",
         QKeySequence(Qt::Key_W),
         {},
         [&w](bool) { showBackgrounds(w); }},
        {"NextPortrait",
         "|&Picture",
         MainWindow::tr("&Next Portrait"),
         MainWindow::tr("Opens the portrait that comes next in the strip"),
         "go-next",
         QKeySequence(Qt::Key_PageDown),
         {},
         [&w](bool) { w.strip()->walk(1); }},
        {"PreviousPortrait",
         "&Picture",
         MainWindow::tr("&Previous Portrait"),
         MainWindow::tr("Opens the portrait before this one in the strip"),
         "go-previous",
         QKeySequence(Qt::Key_PageUp),
         {},
         [&w](bool) { w.strip()->walk(-1); }},
        markCommand(w, "MarkKeep", "|&Picture", MainWindow::tr("Mark: &Keep"),
                    MainWindow::tr("This portrait is good"), Qt::Key_K, PictureMark::keep),
        markCommand(w, "MarkReject", "&Picture", MainWindow::tr("Mark: &Reject"),
                    MainWindow::tr("This portrait goes out; the next one is opened"), Qt::Key_X, PictureMark::reject),
        markCommand(w, "MarkLookAgain", "&Picture", MainWindow::tr("Mark: &Look Again"),
                    MainWindow::tr("This portrait needs another look"), Qt::Key_L, PictureMark::lookAgain),
        markCommand(w, "MarkNone", "&Picture", MainWindow::tr("&Unmark"),
                    MainWindow::tr("Takes the mark from this portrait"), Qt::Key_U, PictureMark::none),
        {"TakeMarkBack", "&Picture", MainWindow::tr("Take the Last &Mark Back"),
         MainWindow::tr("Gives the portrait that was marked last the mark it had, and opens it"), "",
         QKeySequence(Qt::CTRL | Qt::Key_U), [&w] { return w.strip()->hasMarkToTakeBack(); },
         [&w](bool) { w.strip()->takeMarkBack(); }},
    };
}

void MainWindow::connectStrip() {
    connect(strip_, &Strip::portraitWanted, this, [this](const QString& path) {
        const std::optional<QImage> ready = strip_->results().previewOf(nameOfText(path));
        openForeground(path);
        if (ready) view_->show({*ready, 0, ready->height(), ready->height(), Resolution::preview});
    });
    connect(strip_, &Strip::backgroundWanted, this, &MainWindow::openBackground);
    connect(strip_, &Strip::pickFolderWanted, this, &MainWindow::askForPickDirectory);
    connect(strip_, &Strip::marksChanged, commands_, &Commands::refresh);
    connect(strip_, &Strip::failed, messages_, &MessageBar::fail);
    new TileDesk(strip_->results(), panel_->findChildren<TileRow*>(), this);
    connect(
        &bridge_, &WindowBridge::controlsEnabled, strip_,
        [this](bool enabled) {
            if (!enabled) return;
            strip_->results().setFramed(frameAction()->isChecked());
            strip_->readAhead(*loop_);
        },
        Qt::QueuedConnection);
    for (const auto& [key, step] : {std::pair(Qt::Key_Left, -1), std::pair(Qt::Key_Right, 1)}) {
        auto* shortcut = new QShortcut(key, view_, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, strip_, [this, step = step] { strip_->walk(step); });
        // A picture that is larger than the view is moved by these keys.
        connect(view_, &PictureView::zoomed, shortcut,
                [this, shortcut] { shortcut->setEnabled(view_->zoom().frame().width() <= view_->width()); });
    }
    const auto buttonIn = [this](Shelf* shelf, const char* id, const QString& word) {
        commands_->action(id)->setIconText(word);
        shelf->line()->insertWidget(shelf->line()->count() - 1, buttonOf(commands_->action(id), shelf));
    };
    buttonIn(strip_->portraits(), "ShowResults", tr("Results"));
    buttonIn(strip_->backgrounds(), "ShowBackgrounds", tr("All"));
    commands_->action("ShowStrip")->setChecked(!strip_->isFolded());
    commands_->menu("&File")->insertAction(commands_->action("loadBackground"), commands_->action("OpenFolder"));
}

void MainWindow::openFolder(const QString& folder) {
    strip_->openFolder(folder);
}

void MainWindow::openPictures(const QStringList& paths) {
    QStringList pictures = paths;
    pictures.removeIf(isStateFile);
    if (!pictures.isEmpty()) strip_->openPictures(pictures);
}

void MainWindow::askForFolder() {
    const QString last = QFileInfo(textOfName(standardizePath(info_.oQLXInfo->sForegroundPath))).path();
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Open Folder"), last);
    if (!folder.isEmpty()) openFolder(folder);
}

void MainWindow::askForPickDirectory() {
    const QString last = textOfName(strip_->backgrounds()->folder());
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder of the Backgrounds"), last);
    if (!folder.isEmpty()) dropFolder(folder, true);
}

/// Backgrounds to choose from are kept for the next start.
void MainWindow::dropFolder(const QString& folder, bool onBackground) {
    if (!onBackground) return openFolder(folder);
    info_.oQLXInfo->sPickDirectory = nameOfText(folder);
    keepSettings();
    settings_->refresh();
    strip_->followPickDirectory();
}

}  // namespace tavrin
