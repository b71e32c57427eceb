#include "apps/cli/SheetCommand.h"

#include <memory>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "apps/cli/Usage.h"
#include "farm/ReportSheet.h"

namespace tavrin::cli {

namespace {

std::string countedPictures(int count, const char* what) {
    return std::to_string(count) + (count == 1 ? " picture " : " pictures ") + what;
}

int sheetCommand(const SheetOrder& order) {
    const MadeSheet made = drawSheet(order);
    if (!made.problem.empty()) {
        complain(made.problem);
        return kFailed;
    }
    if (made.gone > 0) warn(countedPictures(made.gone, "of the sheet cannot be read any more; the cells say so."));
    if (made.failed > 0) warn(countedPictures(made.failed, "of the report failed; there is nothing of them to show."));
    if (!isQuiet()) printLine(order.out + ": the worst " + std::to_string(made.pictures) + " of " + order.report);
    return kDone;
}

}  // namespace

void addSheetCommand(CLI::App& report, int& result) {
    const auto order = std::make_shared<SheetOrder>();
    CLI::App* sheet = report.add_subcommand("sheet", "Draw the pictures that need a look on one contact sheet");
    sheet->add_option("report", order->report, "Report of a batch")->required();
    sheet->add_option("--out", order->out, "Sheet to write: .jpg, .png or .tif")->required();
    sheet->add_option("--worst", order->worst, "How many pictures (default 12)")->check(within(1, kMostOnSheet));
    sheet->add_option("--pictures", order->folder, "Folder of the pictures, where they have moved");
    sheet->footer(
        "\nExample:\n  tavrin-cli report sheet report.jsonl --out look.jpg --worst 40\n\n"
        "Of each picture the place in doubt is shown at its own size, with its number from 0 to 100 and the "
        "reasons.\n"
        "Exit codes: 0 done, 1 there is no sheet, 2 wrong usage.");
    sheet->callback([order, &result] { result = sheetCommand(*order); });
}

}  // namespace tavrin::cli
