#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"
#include "delivery/print/PrintQueue.h"
#include "delivery/print/SheetPdf.h"

namespace tavrin {

/// What is printed on, and how often.
struct PrintOrder {
    SheetPlan plan;  ///< with a paper
    std::string printer;
    int copies = 1;
    /// Not empty: the sheets are only prepared (`PrintQueue::prepare`), under this name and the number of the copy,
    /// and go by themselves once they are let into the queue.
    std::string prepareAs = {};
    std::string picture = {};  ///< path of the picture for people, where it will lie; "" for where it is read
};

/// How often a sheet is printed: `iEventPrintCount`, which becomes 1 where it is less, and stays so.
int copiesToPrint(SystemInfo& info);

/// Makes the sheet of a picture and puts it into the queue, once for each copy: copies are jobs of their own.
/// @param ids gets the names of the sheets, none of which is sent yet
/// @return "" or one plain line; nothing is in the queue then
std::string queueSheets(PrintQueue& queue, const PrintOrder& order, const SheetPicture& picture,
                        std::vector<std::string>& ids);

/// The same for as many copies as the state says.
std::string PrintMe(SystemInfo& info, PrintOrder order, const SheetPicture& picture, PrintQueue& queue,
                    std::vector<std::string>& ids);

/// The same for a file, without panels: on the page that is chosen for event printing, turned as the state's output
/// is.
/// @param order but for its page
std::string printEventFile(SystemInfo& info, const std::string& file, PrintOrder order, PrintQueue& queue,
                           std::vector<std::string>& ids);

}  // namespace tavrin
