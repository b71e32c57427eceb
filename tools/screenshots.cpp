// Renders the main window with the shipped sample: screenshots FOLDER. Light and dark, at scale 1, 1.5 and 2, with
// the groups as they are at first, all open, a message, a folder in the strip, and its dialogs; in German and Spanish
// at scale 1. File names say which is which. screenshots FOLDER SCALE LANGUAGE makes those of one run, screenshots
// FOLDER guide the pictures of docs/guide.md.
#include <algorithm>
#include <cstdio>
#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QMouseEvent>
#include <QProcess>

#include "SampleState.h"
#include "WorkShots.h"
#include "formats/Installation.h"
#include "session/SettingChanges.h"
#include "ui/frame/Language.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/Theme.h"
#include "ui/tiles/Tile.h"

namespace {

using namespace tavrin;

constexpr int kWidth = 1440, kHeight = 900;

// The buttons that open a dialog, and the dialog.
constexpr std::pair<const char*, const char*> kDialogs[] = {
    {"buttonAddImageSizes", "panelAddEditImageSizes"}, {"addCustomTemplate", "panelAddEditTemplate"},
    {"showPrinterTemplate", "MyPrinterTemplatePanel"}, {"colorWellFrameOverlay", "colorWellFrameOverlayDialog"},
    {"buttonShowSMTPServer", "MySMTPSettings"},        {"showBatchPrinterTemplate", "MyBatchPrinterTemplatePanel"},
};

bool waitsForTiles(const MainWindow& window) {
    return std::ranges::any_of(window.panel()->findChildren<Tile*>(),
                               [](const Tile* tile) { return tile->isStale() && !tile->visibleRegion().isEmpty(); });
}

void settle(MainWindow& window, SystemInfo& info) {
    QElapsedTimer time;
    time.start();
    int rests =
        0;  // rows that were sent before the loop fell idle may still wait, and the small picture is made after
    while (time.elapsed() < 30000 && rests < 20) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        const bool isDone = window.view()->isFull() && info.iCurrentThreadCount > info.iNewThreadCount;
        rests = isDone && !waitsForTiles(window) ? rests + 1 : 0;
        QThread::msleep(5);
    }
}

bool shoot(MainWindow& window, SystemInfo& info, const QString& path) {
    settle(window, info);
    return window.grab().save(path);
}

/// A text across the middle of the sample.
FontObject title() {
    FontObject text;
    text.sText = "Tavrin";
    text.iFontSize = 90;
    text.rectSizeWidth = 300;
    text.rectSizeHeight = 120;
    text.xPos = 2.0;
    text.yPos = 4.2;
    return text;
}

/// The effect panels, a few open at a time, on a picture with a shadow, a frame and a texture.
void shootEffects(MainWindow& window, const std::function<void(const char*)>& save) {
    const std::vector<std::vector<const char*>> open = {
        {"groupShadow"},
        {"MyEffectsFrame1Panel", "MyEffectsTextureFramePanel"},
        {"MyEffectsFrame2Panel", "MyEffectsTextureFrameOverlayPanel"},
        {"MyEffectsLightingPanel", "MyEffectsReflectionsPanel"},
        {"MyEffectsTextureReflectionPanel", "MyEffectsBWPanel", "groupBlur", "MyEffectsCartoonPanel"},
        {"MyEffectsTexturePanel", "MyEffectsSmoothPanel"},
        {"myGlobalSmoothingPanel", "myStarFilterPanel", "MyEffectsSilhouettePanel"},
        {"groupOverlays", "myGreenGuardPanel", "groupFreeze"}};
    window.panel()->selectMainTab(1);
    window.binder().run("", [&](SettingEditor& editor) {
        for (const char* look : {"shadow wall", "frame oval", "texture canvas"}) {
            const QStringList words = QString(look).split(' ');
            takeLook(editor.info(), *findPresetGroup(words[0].toStdString()), words[1].toStdString());
        }
        editor.set("frame.iFrameMode", "4");
        editor.set("frame.sFrameImagePath", shippedPicture("FrameAndSilhouetteBackgrounds/Walnut.jpg"));
    });
    const auto openOnly = [&](const std::vector<const char*>& groups) {
        for (GroupBox* group : window.panel()->effects()->groups())
            group->setFolded(std::ranges::find(groups, group->objectName(),
                                               [](const char* name) { return QString(name); }) == groups.end());
        window.panel()->effects()->openPanel(groups.front());
    };
    for (const char* group : {"MyEffectsFrame1Panel", "MyEffectsCartoonPanel"}) {
        openOnly({group});
        save(group == std::string_view("MyEffectsCartoonPanel") ? "tiles-drawing" : "tiles-frame");
    }
    window.binder().run("", [&](SettingEditor& editor) {
        editor.set("frame.texture.sTextureFileName", "/gone/linen.jpg");
        editor.set("frame.texture.bHaveTexture", "1");
    });
    for (const auto& groups : open) {
        openOnly(groups);
        save(groups.front());
    }
    window.binder().run("", [&](SettingEditor& editor) {
        editor.set("frame.texture.bHaveTexture", "0");
        editor.set("frame.texture.sTextureFileName", "");
    });
    for (const char* effect : {"groupShadow", "MyEffectsFrame1Panel", "MyEffectsTexturePanel"})
        for (const GroupBox* group : window.panel()->effects()->groups())
            if (group->objectName() == effect) window.binder().resetGroup(group->group());
    window.binder().editor().forgetSteps();
}

/// The airbrush with strokes on the picture, and its controls for a selection.
void shootAirbrush(MainWindow& window, SystemInfo& info, const std::function<void(const char*)>& save) {
    PictureView* view = window.view();
    window.panel()->selectMainTab(2);
    settle(window, info);
    const auto choose = [&](int brush) {
        window.findChild<QAbstractButton*>(QString("buttonBrush%1").arg(brush))->click();
        settle(window, info);
    };
    const auto mouse = [&](QEvent::Type type, double x, double y) {
        const QPointF at =
            view->zoom().viewAt({x * view->zoom().picture().width(), y * view->zoom().picture().height()});
        QMouseEvent event(type, at, view->mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    };
    const auto stroke = [&](double x, double y, double toX, double toY) {
        mouse(QEvent::MouseButtonPress, x, y);
        for (int i = 1; i <= 20; ++i)
            mouse(QEvent::MouseMove, x + (toX - x) * i / 20, y + (toY - y) * i / 20);
        mouse(QEvent::MouseButtonRelease, toX, toY);
        settle(window, info);
    };
    choose(kPaint);
    stroke(0.15, 0.2, 0.4, 0.12);
    choose(kEraseForeground);
    stroke(0.4, 0.8, 0.6, 0.85);
    save("airbrush");
    choose(kSelection);
    window.findChild<QAbstractButton*>("radioCombineSelect")->click();
    save("airbrush-selection");
    window.findChild<QAbstractButton*>("radioNoSelect")->click();
    window.panel()->selectMainTab(0);
    info.StartUpdate();
    settle(window, info);
    if (auto* leave = window.findChild<QAbstractButton*>("LeaveThem")) leave->click();
}

/// The pictures of the user's guide: a small window in the light theme, with few colours so that they stay small.
class Guide {
  public:
    Guide(const QString& folder, MainWindow& window, SystemInfo& info)
        : folder_(folder), window_(window), info_(info) {}

    bool shoot() {
        window_.resize(1000, 640);
        check(&window_, "first");
        open("groupHair");
        turn("ShowSplit", true);
        check(&window_, "hair");
        turn("ShowSplit", false);
        open("groupEasy");
        turn("ShowAlpha", true);
        check(&window_, "clothes");
        turn("ShowAlpha", false);
        window_.panel()->hide();
        const QTemporaryDir pictures;
        showFolder(window_, info_, pictures.path());
        check(&window_, "folder");
        turn("ShowResults", true);
        rest(6000);
        check(&window_, "results");
        window_.commands().action("ShowBackgrounds")->trigger();
        rest(3000);
        if (auto* grid = window_.findChild<QDialog*>("backgroundGrid")) {
            grid->resize(640, 500);
            rest(800);
            check(grid, "backgrounds");
            grid->close();
        }
        window_.looks().save("School");
        window_.commands().action("CopyLook")->trigger();
        window_.binder().run("Light", [](SettingEditor& editor) { editor.set("foreground.iBrightness", "25"); });
        window_.commands().action("PasteLook")->trigger();
        rest(300);
        if (auto* dialog = window_.findChild<QDialog*>("lookDialog")) {
            check(dialog, "looks");
            dialog->reject();
        }
        return all_;
    }

  private:
    void open(const char* name) {
        for (GroupBox* group : window_.panel()->groups())
            group->setFolded(group->group().name != std::string_view(name));
    }
    void turn(const char* id, bool on) { window_.commands().action(id)->setChecked(on); }
    static void rest(int ms) {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < ms;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    void check(QWidget* what, const char* name) {
        settle(window_, info_);
        const QImage seen = what->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage picture = seen.scaled(seen.size() * 0.75, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        for (int y = 0; y < picture.height(); ++y)
            for (QRgb *pixel = reinterpret_cast<QRgb*>(picture.scanLine(y)), *end = pixel + picture.width();
                 pixel != end; ++pixel)
                *pixel = (*pixel & 0xfff8f8f8u) | (*pixel >> 5 & 0x00070707u);
        all_ = picture.save(folder_ + '/' + name + ".png", "PNG", 0) && all_;
    }

    const QString folder_;
    MainWindow& window_;
    SystemInfo& info_;
    bool all_ = true;
};

bool shootGuide(const QString& folder) {
    useTheme(Theme::light);
    const auto info = std::make_unique<SystemInfo>();
    startWithSample(*info);
    MainWindow window(*info);
    window.show();
    settle(window, *info);
    return Guide(folder, window, *info).shoot();
}

/// @return whether every picture was written
bool shootAll(const QString& folder, const QString& scale, const QString& language) {
    bool all = true;
    for (const bool dark : {false, true}) {
        useTheme(dark ? Theme::dark : Theme::light);
        const auto info = std::make_unique<SystemInfo>();
        startWithSample(*info);
        for (auto [icon, name] : {std::pair(&info->TextEditIcon, "Edit"), std::pair(&info->TextDeleteIcon, "Delete")})
            icon->Image = QImage(QString(":/shipped/Pictures/EditTextIcons/%1.png").arg(name));
        MainWindow window(*info);
        window.resize(kWidth, kHeight);
        window.show();
        const QString end = QString("-%1-x%2%3.png").arg(dark ? "dark" : "light", scale, language);
        const auto save = [&](const char* name) { all = shoot(window, *info, folder + '/' + name + end) && all; };
        settle(window, *info);  // the first picture gives the window its shape
        window.resize(kWidth, kHeight);
        for (const PanelPage* page : window.panel()->pages()) {
            window.panel()->selectMainTab(page->title().key);
            save(page->title().name);
        }
        shootAirbrush(window, *info, save);
        shootEffects(window, save);
        shootBatch(window, *info, save);
        shootOutbox(window, save);
        shootBooth(window, *info, [&](const char* name, QWidget& shown) {
            all = shown.grab().save(folder + '/' + name + end) && all;
        });
        window.panel()->selectMainTab(0);
        const auto action = [&](const char* id) { return window.commands().action(id); };
        const auto shoots = [&](const char* id, const char* name) {
            action(id)->setChecked(true);
            settle(window, *info);
            save(name);
            action(id)->setChecked(false);
        };
        shoots("ShowSplit", "split");
        shoots("ShowAlpha", "alpha");
        shoots("ShowScreen", "screen");
        settle(window, *info);
        window.view()->setAsking(true);
        emit window.view()->asked({520, 900});
        settle(window, *info);
        save("story");
        window.pictureTools()->story()->hide();
        window.view()->setAsking(false);
        window.panel()->searchField()->setText("green");
        save("search");
        window.panel()->searchField()->clear();
        window.panel()->searchField()->setText("save pitcure");
        save("search-commands");
        window.panel()->searchField()->clear();
        for (const char* value : {"10", "25", "40"})
            window.binder().run("Brightness",
                                [&](SettingEditor& editor) { editor.set("foreground.iBrightness", value); });
        window.binder().run("Shadows", [](SettingEditor& editor) { editor.set("iMacroShadows", "2"); });
        window.binder().undo();
        window.commands().action("ShowHistory")->trigger();
        window.messages()->ask("Tavrin ended without being closed. The work on anna.jpg was kept.",
                               {{"TakeUp", "Take Up", "", [] {}}, {"Discard", "Discard", "", [] {}}});
        save("history");
        window.looks().save("School");
        window.commands().action("ShowLooks")->trigger();
        window.commands().action("CopyLook")->trigger();
        window.binder().goTo(0);
        window.commands().action("PasteLook")->trigger();
        save("looks");
        const auto grabDialog = [&](const char* name) {
            QCoreApplication::processEvents();
            if (auto* dialog = window.findChild<QDialog*>(name)) {
                all = dialog->grab().save(folder + '/' + name + end) && all;
                dialog->reject();
                QCoreApplication::processEvents();
            }
        };
        grabDialog("lookDialog");
        window.commands().action("FindAction")->trigger();
        if (auto* field = window.findChild<QLineEdit*>("searchActions")) field->setText("green");
        grabDialog("actionSearch");
        window.commands().action("Shortcuts")->trigger();
        grabDialog("shortcuts");
        for (const auto& [button, dialog] : kDialogs) {
            if (auto* opens = window.findChild<QAbstractButton*>(button)) opens->click();
            grabDialog(dialog);
        }
        window.binder().run("Contrast", [](SettingEditor& editor) { editor.set("foreground.iContrast", "55"); });
        settle(window, *info);
        window.close();  // asks, since the picture was changed
        grabDialog("closeQuestion");
        window.commands().action("ShowLooks")->trigger();
        window.commands().action("ShowHistory")->trigger();
        for (GroupBox* group : window.panel()->groups())
            group->setFolded(group->group().name != std::string_view("groupPlace") &&
                             group->group().name != std::string_view("groupTurn") &&
                             group->group().name != std::string_view("groupColour"));
        window.messages()->fail("The state file cannot be opened.", "wedding.qlx is no state file.");
        window.view()->zoomToPixels();
        save("pixels");
        window.messages()->hide();
        window.view()->setZoomHome();
        const QTemporaryDir pictures;
        showFolder(window, *info, pictures.path());
        save("strip");
        action("ShowResults")->setChecked(true);
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 5000;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        save("results");
        action("ShowResults")->setChecked(false);
        action("ShowBackgrounds")->trigger();
        for (time.restart(); time.elapsed() < 2500;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        grabDialog("backgroundGrid");
        info->oFontObject.push_back(title());
        info->StartUpdate();
        settle(window, *info);
        window.pictureTools()->items().press(window.view()->fromLowerLeft(window.view()->zoom().frame().center()),
                                             true);
        for (GroupBox* group : window.panel()->groups())
            group->setFolded(group->group().name != std::string_view("groupPlace"));
        save("item");
        window.panel()->texts()->EditTextImage(0);
        save("textItem");
    }
    return all;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || !QDir().mkpath(argv[1])) {
        std::fputs("usage: screenshots FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 2) {  // the scale is one for a whole process
        const char* const runs[][2] = {{"1", "en"}, {"1.5", "en"}, {"2", "en"}, {"1", "de"}, {"1", "es"}};
        for (const auto& [scale, language] : runs) {
            qputenv("QT_SCALE_FACTOR", scale);
            if (QProcess::execute(argv[0], {argv[1], scale, language}) != 0) return 1;
        }
        return 0;
    }
    if (argc == 3 && QString(argv[2]) == "guide") {
        QApplication application(argc, argv);
        return shootGuide(argv[1]) ? 0 : 1;
    }
    if (argc != 4) return 2;
    QApplication application(argc, argv);
    const QString language = argv[3];
    useLanguage(QLocale(language));
    return shootAll(argv[1], argv[2], language == "en" ? "" : "-" + language) ? 0 : 1;
}
