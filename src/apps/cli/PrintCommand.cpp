#include "apps/cli/PrintCommand.h"

#include <algorithm>
#include <memory>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/Refusal.h"
#include "apps/cli/Usage.h"
#include "core/NearestName.h"
#include "core/files/FileIdentity.h"
#include "core/image/ImageReader.h"
#include "core/state/NamedFiles.h"
#include "core/state/SystemInfo.h"
#include "delivery/PrintSheet.h"
#include "delivery/SheetPdf.h"
#include "pipeline/OutputSize.h"
#include "pipeline/SaveImage.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

struct PrintOptions {
    std::vector<std::string> files;
    std::string page, to, fit = "stretch";
    bool cutMarks = false, mirrored = false;

    bool isPdf() const { return QString::fromStdString(to).endsWith(".pdf", Qt::CaseInsensitive); }
    SheetLook look() const {
        return {fit == "fill"    ? SlotFit::fill
                : fit == "whole" ? SlotFit::whole
                                 : SlotFit::stretch,
                cutMarks, mirrored};
    }
};

Refusal checkFiles(const PrintOptions& options) {
    if (!options.isPdf() && fileTypeForPath(options.to) == 0)
        return {kUsage, options.to + ": the sheet's name must end in .pdf, .png, .jpg, .jpeg, .tif or .tiff."};
    if (!options.isPdf() && options.files.size() > 1)
        return {kUsage, "A picture holds one sheet; --to with .pdf takes several."};
    for (const std::string& file : options.files) {
        if (isSameFile(options.to, file)) return {kUsage, "--to " + overwritesInput(options.to, file) + "."};
    }
    return checkTarget(options.to);
}

/// The page of a title, or what is wrong; one that has nothing for a picture prints nothing.
std::string findPage(const SystemInfo& info, const std::string& title, int& index) {
    std::vector<std::string> titles;
    for (const PrinterPage& page : info.oPrinterPages)
        titles.push_back(page.sPageTitle);
    const auto found = std::find(titles.begin(), titles.end(), title);
    if (found == titles.end()) {
        const std::string nearest = nearestName(title, titles);
        return "There is no print page \"" + title + "\"" +
               (nearest.empty() ? "." : "; did you mean \"" + nearest + "\"?");
    }
    index = static_cast<int>(found - titles.begin());
    const PrinterPage& page = info.oPrinterPages[static_cast<std::size_t>(index)];
    const auto& places = page.oPrinterPageImages;
    const auto isIn = [&page](const PrinterPageImage& slot) { return isOnPage(page, slot); };
    const auto in = std::count_if(places.begin(), places.end(), isIn);
    if (in == 0) return "The print page \"" + title + "\" has no room for a picture.";
    if (const auto out = static_cast<std::ptrdiff_t>(places.size()) - in; out > 0)
        warn("The print page \"" + title + "\" has " + std::to_string(out) +
             " slots that lie outside it; they are left out.");
    return "";
}

std::string printAsPicture(SystemInfo& info, int page, const PrintOptions& options) {
    const ReadPicture picture = readPicture(options.files.front());
    if (!picture.error.empty()) return options.files.front() + ": " + picture.error + ".";
    ChangeTemplateBitmap(info, page);
    if (!info.oBitmapTemplateRep) return "There is not enough memory for the sheet.";
    drawSheet(info, picture.pixels, static_cast<double>(picture.pixels.width()) / picture.pixels.height(),
              options.look());
    return writeSheet(info, options.to);
}

int print(const PrintOptions& options) {
    if (const Refusal refusal = checkFiles(options); refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    int page = -1;
    std::string problem = findPage(*info, options.page, page);
    if (!problem.empty()) {
        complain(problem);
        return kUsage;
    }
    const PrinterPage& layout = info->oPrinterPages[static_cast<std::size_t>(page)];
    problem = options.isPdf() ? writeSheetsAsPdf(layout, options.files, options.look(), options.to)
                              : printAsPicture(*info, page, options);
    if (!problem.empty()) {
        complain(problem);
        return kFailed;
    }
    if (!isQuiet())
        printLine(options.to + ": " + std::to_string(options.files.size()) +
                  (options.files.size() == 1 ? " sheet" : " sheets") + " of \"" + options.page + "\"");
    return kDone;
}

}  // namespace

void addPrintCommand(CLI::App& app, int& result) {
    const auto options = std::make_shared<PrintOptions>();
    CLI::App* command = app.add_subcommand("print", "Lay finished pictures out on the sheets of a print page");
    command->add_option("files", options->files, "Finished pictures, a sheet each")->required()->type_name("FILE");
    command->add_option("--page", options->page, "Print page by its title (see tavrin-cli pages)")
        ->required()
        ->type_name("TITLE");
    command
        ->add_option("--to", options->to,
                     "Sheet to write: .pdf (true size, without loss), .png, .jpg or .tif (600 dpi)")
        ->required()
        ->type_name("FILE");
    command
        ->add_option(
            "--fit", options->fit,
            "How a picture fills a slot of other proportions: stretch (default), fill (cut) or whole (grey sides)")
        ->check(oneOf({"stretch", "fill", "whole"}))
        ->type_name("NAME");
    command->add_flag("--cut-marks", options->cutMarks, "Thin lines at the slots' corners, where there is room");
    command->add_flag("--mirrored", options->mirrored, "Left and right exchanged, for transfer paper");
    command->footer(
        "\nExample:\n  tavrin-cli print done/anna_beach.jpg --page \"Letter Eight Wallets\" --to sheet.pdf\n\n"
        "Exit codes: 0 written, 1 not written, 2 wrong usage.");
    command->callback([options, &result] { result = print(*options); });
}

}  // namespace tavrin::cli
