#include "apps/cli/InfoCommand.h"

#include <cstdio>
#include <memory>

#include "apps/cli/Console.h"
#include "core/Printable.h"
#include "core/image/ImageReader.h"

namespace tavrin::cli {

namespace {

void printLine(const char* name, const std::string& value) {
    if (!value.empty()) std::printf("%-12s %s\n", name, printable(value).c_str());
}

std::string times(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

int printFacts(const std::string& path) {
    const PictureFacts facts = readPictureFacts(path);
    if (!facts.error.empty()) {
        complain(path + ": " + facts.error + ".");
        return kFailed;
    }
    printLine("format", facts.format);
    printLine("size", times(facts.width, facts.height));
    if (facts.orientation > 1) {
        printLine("in the file",
                  times(facts.fileWidth, facts.fileHeight) + ", orientation " + std::to_string(facts.orientation));
    }
    printLine("channels", std::to_string(facts.channels) + " of " + std::to_string(facts.bitsPerChannel) + " bits" +
                              (facts.hasAlpha ? ", with alpha" : ""));
    printLine("colours", facts.colourSpace);
    printLine("profile", facts.hasProfile ? (facts.profileName.empty() ? "embedded" : facts.profileName) : "none");
    if (facts.dpi > 0.0) std::printf("%-12s %g\n", "dpi", facts.dpi);
    printLine("camera", facts.camera);
    printLine("taken", facts.taken);
    return kDone;
}

}  // namespace

void addInfoCommand(CLI::App& app, int& result) {
    const auto path = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand("info", "Print what the reader sees in a picture file");
    command->add_option("image", *path, "Picture file")->required();
    command->footer("\nExample:\n  tavrin-cli info portrait.jpg");
    command->callback([path, &result] { result = printFacts(*path); });
}

}  // namespace tavrin::cli
