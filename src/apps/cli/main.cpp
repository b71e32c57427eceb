#include <clocale>
#include <memory>
#include <new>

#include <QFont>
#include <QGuiApplication>

#include "apps/cli/BatchCommand.h"
#include "apps/cli/BoothCommand.h"
#include "apps/cli/Completion.h"
#include "apps/cli/Console.h"
#include "apps/cli/EditOptions.h"
#include "apps/cli/EffectOptions.h"
#include "apps/cli/InfoCommand.h"
#include "apps/cli/ListCommands.h"
#include "apps/cli/MailCommand.h"
#include "apps/cli/Output.h"
#include "apps/cli/PrintCommand.h"
#include "apps/cli/RenderCommand.h"
#include "apps/cli/SortCommand.h"
#include "apps/cli/StateCommand.h"
#include "apps/cli/Usage.h"
#include "core/Interruption.h"
#include "core/Log.h"

namespace {

/// The libraries take over the user's locale when they start; numbers are written the same way in all of them.
std::unique_ptr<QCoreApplication> withPlainNumbers(std::unique_ptr<QCoreApplication> application) {
    std::setlocale(LC_NUMERIC, "C");
    return application;
}

/// The object that the libraries want. What draws text needs the fonts of the system, without any display; the rest
/// starts faster without them.
std::unique_ptr<QCoreApplication> startLibraries(bool withFonts) {
    static char name[] = "tavrin-cli", option[] = "-platform", platform[] = "minimal:enable_fonts";
    static char* words[] = {name, option, platform, nullptr};
    static int count = withFonts ? 3 : 1;
    if (!withFonts) return withPlainNumbers(std::make_unique<QCoreApplication>(count, words));
    // Remarks about a desktop that is not there, and about scripts that a font lacks, are nobody's business.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) tavrin::cli::complain(text.toStdString());
    });
    auto application = std::make_unique<QGuiApplication>(count, words);
    // Asked for the usual font, the library would read in all fonts of the system, also where nobody writes.
    QGuiApplication::setFont(QFont(QStringLiteral("Sans Serif")));
    return withPlainNumbers(std::move(application));
}

/// What every command takes, wherever it stands in the call.
void addCommonOptions(CLI::App& app) {
    app.add_flag_callback(
        "-v,--verbose", [] { tavrin::setTraceLog(true); }, "Tell the course of the work on stderr");
    app.add_flag_callback(
        "-q,--quiet", [] { tavrin::cli::setQuiet(); }, "Tell errors only");
    for (CLI::App* command : app.get_subcommands([](CLI::App*) { return true; }))
        addCommonOptions(*command);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace tavrin;
    cli::keepStandardStreams();
    setLogName("tavrin-cli");
    Interruption::watch();
    QCoreApplication::setApplicationName("tavrin-cli");
    QCoreApplication::setApplicationVersion(TAVRIN_VERSION);

    CLI::App app("Green-screen pictures without a window: keys a portrait over a background, from file to file.",
                 "tavrin-cli");
    app.set_version_flag("--version", std::string(TAVRIN_VERSION));
    app.require_subcommand(1);

    int result = cli::kDone;
    cli::addRenderCommand(app, result);
    cli::addBatchCommand(app, result);
    cli::addReportCommand(app, result);
    cli::addBoothCommand(app, result);
    cli::addPrintCommand(app, result);
    cli::addMailCommands(app, result);
    cli::addInfoCommand(app, result);
    cli::addStateCommand(app, result);
    cli::addListCommands(app, result);
    cli::addSortCommand(app, result);
    cli::addEditsCommand(app, result);
    cli::addEffectsCommand(app, result);
    cli::addCompletionCommand(app, result);
    addCommonOptions(app);
    std::unique_ptr<QCoreApplication> application;
    app.parse_complete_callback([&] {
        const bool drawsSheet = app.got_subcommand("print") || app.get_subcommand("report")->got_subcommand("sheet");
        application = startLibraries(app.got_subcommand("render") || app.got_subcommand("batch") ||
                                     app.got_subcommand("booth") || drawsSheet);
    });
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        result = cli::explain(app, error);
    } catch (const std::bad_alloc&) {
        cli::complain("there is not enough memory.");
        result = cli::kFailed;
    }
    return cli::flushOutput() || result != cli::kDone ? result : cli::kFailed;
}
