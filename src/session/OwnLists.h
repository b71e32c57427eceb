#pragma once

#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// The lists of output sizes and print pages as they are at a moment, with what is chosen of them, so that any change
/// of them can be taken back. As with the changes nothing else may walk the lists meanwhile.
class OwnLists {
  public:
    explicit OwnLists(const SystemInfo& info);

    /// Puts all of it back, and keeps it in the user's files.
    /// @return "", or what is wrong with keeping it, one line for each file; the lists are put back all the same
    std::string putBack(SystemInfo& info) const;

  private:
    std::vector<ImageSize> sizes_;
    std::vector<PrinterPage> pages_;
    std::int32_t size_;
    std::string page_;
};

}  // namespace tavrin
