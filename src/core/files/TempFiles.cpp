#include "core/files/TempFiles.h"

namespace fs = std::filesystem;

namespace tavrin {

void ClearTempFiles(const fs::path& workingFolder) {
    std::error_code failed;
    for (fs::directory_iterator entry(workingFolder, failed), end; !failed && entry != end; entry.increment(failed)) {
        std::error_code ignored;
        fs::remove_all(entry->path(), ignored);
    }
}

}  // namespace tavrin
