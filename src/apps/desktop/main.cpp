#include <algorithm>
#include <chrono>
#include <clocale>
#include <memory>
#include <new>
#include <string_view>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTimer>

#include "apps/desktop/EndSignals.h"
#include "apps/desktop/FirstStart.h"
#include "core/BackgroundThread.h"
#include "core/Log.h"
#include "core/raster/PixelMemory.h"
#include "core/state/SystemInfo.h"
#include "core/text/Fonts.h"
#include "session/StartUp.h"
#include "ui/frame/Habits.h"
#include "ui/frame/Language.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/Theme.h"

namespace {

using namespace std::chrono_literals;

/// A click whose work finds no memory is told, and the program goes on.
class Application : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::bad_alloc&) {
            tavrin::logError("There is not enough memory.");
            return false;
        }
    }
};

struct Arguments {
    QStringList files;
    bool forHost = false;  ///< another program waits for the first file
};

/// The usual options of a desktop program, and the files to open.
Arguments readArguments(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Green-screen pictures: keys a portrait over a background.");
    parser.addHelpOption();
    const QCommandLineOption version("version", "Displays version information.");  // -v is taken
    parser.addOption(version);
    const QCommandLineOption verbose({"v", "verbose"}, "Tell the course of the work on the standard error stream.");
    parser.addOption(verbose);
    const QCommandLineOption host("for-host",
                                  "Another program hands the portrait over: Save replaces the file for it.");
    parser.addOption(host);
    parser.addPositionalArgument("files", "Portrait, then background; a folder of portraits, or a state file (.qlx).",
                                 "[FILE...]");
    parser.process(application);
    if (parser.isSet(version)) parser.showVersion();
    tavrin::setTraceLog(parser.isSet(verbose));
    Arguments arguments{{}, parser.isSet(host)};
    for (const QString& file : parser.positionalArguments())
        arguments.files.append(QFileInfo(file).absoluteFilePath());
    return arguments;
}

/// Whether the answer needs no display.
bool asksForText(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](const std::string_view word) {
        return word == "--help" || word == "-h" || word == "--help-all" || word == "--version";
    });
}

void nameProgram() {
    QCoreApplication::setApplicationName("Tavrin");
    QCoreApplication::setOrganizationName("Tavrin");
    QCoreApplication::setApplicationVersion(TAVRIN_VERSION);
    QGuiApplication::setDesktopFileName("org.tavrin.Tavrin");  // the entry that names its icon
}

/// As if they were dropped on the window: a state file by its name, the first picture as the portrait, the next as
/// the background. A host application's first file is its portrait, whatever it is, and the others are not taken.
void openFiles(tavrin::MainWindow& window, const QStringList& files, bool forHost) {
    if (forHost && !files.isEmpty()) {
        tavrin::logTrace("Files dragged on: " + files.join(", ").toStdString());
        return window.openForHost(files.front());
    }
    int pictures = 0;
    for (const QString& path : files) {
        if (path.endsWith(".qlx", Qt::CaseInsensitive)) {
            window.openFile(path);
        } else if (++pictures <= 2) {
            pictures == 1 ? window.openFile(path) : window.openBackground(path);
        }
    }
}

/// The files of a later start, and the window before all others.
void openInFront(tavrin::MainWindow& window, const QStringList& files, bool forHost) {
    openFiles(window, files, forHost);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

}  // namespace

int main(int argc, char** argv) {
    nameProgram();
    if (asksForText(argc, argv)) readArguments(QCoreApplication(argc, argv));  // which ends the program
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);  // as pages of web want it, if some are shown
    Application application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // what is printed and digested has a full stop in every locale
    const auto [files, forHost] = readArguments(application);
    FirstStart first;
    if (first.handOver(files, forHost)) return 0;
    tavrin::putMainThreadFirst();
    // A pass takes the memory that the last one gave back; at rest it is the system's.
    tavrin::keepPixelMemory(std::size_t{1} << 28);
    QTimer memory;
    QObject::connect(&memory, &QTimer::timeout, [] { tavrin::dropPixelMemory(10s); });
    memory.start(5s);

    tavrin::useLanguage(tavrin::chosenLanguage());
    tavrin::useChosenThreads();
    tavrin::useTheme(tavrin::chosenTheme());
    if (const std::string problem = tavrin::whyNoFonts(); !problem.empty())  // which the window itself could not show
        tavrin::logError("The window shows no words: " + problem + '.');
    const auto info = std::make_unique<tavrin::SystemInfo>();
    const std::string problems = tavrin::startSystem(*info);
    tavrin::MainWindow window(*info);
    window.show();
    window.tellStartProblems(problems);
    window.offerLeftRecipes();
    openFiles(window, files, forHost);
    first.onOpen([&](const QStringList& later, bool host) { openInFront(window, later, host); });
    const EndSignals endSignals([&] {
        window.endFromOutside();
        QCoreApplication::exit();
    });
    return QApplication::exec();
}
