#include "apps/cli/PrintCommand.h"

#include <memory>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/PrintFolder.h"
#include "apps/cli/PrintQueueOptions.h"
#include "apps/cli/PrinterOptions.h"
#include "apps/cli/Refusal.h"
#include "core/files/FileIdentity.h"
#include "core/image/ImageReader.h"
#include "core/state/NamedFiles.h"
#include "core/state/SystemInfo.h"
#include "delivery/print/Caption.h"
#include "delivery/print/PrintSheet.h"
#include "delivery/print/SheetPdf.h"
#include "pipeline/OutputSize.h"
#include "pipeline/SaveImage.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

struct PrintOptions {
    std::vector<std::string> files;
    std::string to, folder;
    bool watch = false;
    PrinterOptions printer;
    PrintQueueOptions queue;

    bool isPdf() const { return QString::fromStdString(to).endsWith(".pdf", Qt::CaseInsensitive); }
};

Refusal checkCall(const PrintOptions& options) {
    if (options.queue.isWanted())
        return options.files.empty() && options.folder.empty()
                   ? Refusal{}
                   : Refusal{kUsage, "Lists and waiting sheets take no files."};
    if (options.watch && options.folder.empty()) return {kUsage, "--watch goes with --folder."};
    if (!options.folder.empty()) {
        if (!options.files.empty()) return {kUsage, "--folder prints its photos; other files go without it."};
        if (!options.to.empty() || options.printer.printer.empty() || options.printer.wait > 0)
            return {kUsage, "--folder goes with --printer, and without --to and --wait."};
        return {};
    }
    if (options.files.empty()) return {kUsage, "The pictures to print are missing."};
    if (options.to.empty() == options.printer.printer.empty())
        return {kUsage, options.to.empty() ? "Where to is missing: --printer or --to."
                                           : "A sheet goes to a --printer or --to a file."};
    return {};
}

Refusal checkFiles(const PrintOptions& options) {
    if (!options.isPdf() && fileTypeForPath(options.to) == 0)
        return {kUsage, options.to + ": the sheet's name must end in .pdf, .png, .jpg, .jpeg, .tif or .tiff."};
    if (!options.isPdf() && options.files.size() > 1)
        return {kUsage, "A picture holds one sheet; --to with .pdf takes several."};
    if (options.printer.copies > 1 || options.printer.wait > 0)
        return {kUsage, "--copies and --wait go with --printer."};
    if (!options.isPdf() && !(options.printer.paper + options.printer.profile).empty())
        return {kUsage, "--paper and --profile go with --printer, or with --to and .pdf."};
    for (const std::string& file : options.files) {
        if (isSameFile(options.to, file)) return {kUsage, "--to " + overwritesInput(options.to, file) + "."};
    }
    return checkTarget(options.to);
}

std::string printAsPicture(SystemInfo& info, const PrintOptions& options, SheetPlan plan) {
    const std::string& file = options.files.front();
    const ReadPicture picture = readPicture(file);
    if (!picture.error.empty()) return file + ": " + picture.error + ".";
    for (int i = 0; i < info.iPrinterPageCount(); ++i) {
        if (info.oPrinterPages[static_cast<std::size_t>(i)].sPageTitle.load() != options.printer.page) continue;
        ChangeTemplateBitmap(info, i);
        break;
    }
    if (!info.oBitmapTemplateRep) return "There is not enough memory for the sheet.";
    plan.look.caption = captionText(plan.look.caption, file);
    drawSheet(info, picture.pixels, static_cast<double>(picture.pixels.width()) / picture.pixels.height(), plan.look);
    return writeSheet(info, options.to);
}

int printToFile(SystemInfo& info, const PrintOptions& options) {
    SheetPlan plan;
    Refusal refusal = checkFiles(options);
    if (refusal.code == kDone) refusal = planSheets(info, options.printer, nullptr, plan);
    if (refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    const std::string problem =
        options.isPdf() ? writeSheetsAsPdf(plan, options.files, options.to) : printAsPicture(info, options, plan);
    if (!problem.empty()) {
        complain(problem);
        return kFailed;
    }
    if (!isQuiet())
        printLine(options.to + ": " + std::to_string(options.files.size()) +
                  (options.files.size() == 1 ? " sheet" : " sheets") + " of \"" + options.printer.page + "\"");
    return kDone;
}

int print(const PrintOptions& options) {
    if (const Refusal refusal = checkCall(options); refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    if (options.queue.isWanted()) return workOnQueue(options.queue);
    const auto info = std::make_unique<SystemInfo>();
    startCommandLine(*info);
    if (!options.folder.empty()) return printFolder(*info, options.printer, options.folder, options.watch);
    return options.to.empty() ? printFiles(*info, options.printer, options.files) : printToFile(*info, options);
}

constexpr const char* kPrintExamples = R"(
Examples:
  tavrin-cli print done/anna_beach.jpg --page "Letter Eight Wallets" --printer default
  tavrin-cli print done/*.jpg --page "5x7 Vert" --to sheets.pdf --paper A4 --cut-marks --caption "<<filename>>"
  tavrin-cli print --folder done --watch --page "4x6 Vert" --printer default
  tavrin-cli print --waiting

A sheet that cannot be printed, because its printer is stopped, out of paper or gone, is kept: --waiting lists such
sheets with the reason, --again sends them, --discard forgets them. One that may have been printed already, since the
program was killed at the wrong moment and the printer cannot tell, is sent again by its name only.
Exit codes: 0 written or handed to the printer (with --wait: printed), 1 not, 2 wrong usage.)";

}  // namespace

void addPrintCommand(CLI::App& app, int& result) {
    const auto options = std::make_shared<PrintOptions>();
    CLI::App* command =
        app.add_subcommand("print", "Lay finished pictures out on the sheets of a print page, and print them");
    command->add_option("files", options->files, "Finished pictures, a sheet each")->type_name("FILE");
    command
        ->add_option("--to", options->to,
                     "Sheet to write: .pdf (true size, without loss), .png, .jpg or .tif (600 dpi)")
        ->type_name("FILE");
    command
        ->add_option("--folder", options->folder,
                     "Print every photo of a folder that was not printed yet; its history says which")
        ->type_name("FOLDER");
    command->add_flag("--watch", options->watch, "With --folder: go on, and print photos as they arrive");
    addPrinterOptions(*command, options->printer, "--printer");
    addPrintQueueOptions(*command, options->queue);
    command->footer(kPrintExamples);
    command->callback([options, &result] { result = print(*options); });
}

}  // namespace tavrin::cli
