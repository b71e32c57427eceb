#include <QCoreApplication>

#include "apps/cli/BatchCommand.h"
#include "apps/cli/Console.h"
#include "apps/cli/InfoCommand.h"
#include "apps/cli/ListCommands.h"
#include "apps/cli/RenderCommand.h"
#include "apps/cli/StateCommand.h"
#include "core/Log.h"

int main(int argc, char** argv) {
    using namespace tavrin;
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("tavrin-cli");
    QCoreApplication::setApplicationVersion(TAVRIN_VERSION);

    CLI::App app("Green-screen pictures without a window: keys a portrait over a background, from file to file.",
                 "tavrin-cli");
    app.set_version_flag("--version", std::string(TAVRIN_VERSION));
    app.require_subcommand(1);
    app.failure_message(CLI::FailureMessage::simple);
    app.add_flag_callback(
        "-v,--verbose", [] { setTraceLog(true); }, "Tell the course of the work on stderr");

    int result = cli::kDone;
    cli::addRenderCommand(app, result);
    cli::addBatchCommand(app, result);
    cli::addReportCommand(app, result);
    cli::addInfoCommand(app, result);
    cli::addStateCommand(app, result);
    cli::addListCommands(app, result);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? cli::kDone : cli::kUsage;
    }
    return result;
}
