#include "booth/BrokenTickets.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <vector>

#include "core/files/AtomicFile.h"
#include "core/files/FreeName.h"
#include "folders/FolderListing.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char *kBroken = ".broken", *kTicket = ".qlx", *kReason = ".txt";

std::vector<std::string> brokenTickets(const BoothFolder& folder) {
    std::vector<std::string> names = listFolder(folder.broken()).names;
    std::erase_if(names, [](const std::string& name) {
        return !name.ends_with(kTicket) || name.rfind(kBroken) == std::string::npos || name.starts_with('.');
    });
    return names;
}

}  // namespace

std::string setTicketAside(const BoothFolder& folder, const std::string& stem, const std::string& reason) {
    constexpr int kMostOfOneName = 1000;
    const std::string failed = "The broken ticket " + stem + kTicket + " cannot be set aside: ";
    if (::mkdir(folder.broken().c_str(), 0777) != 0 && errno != EEXIST)
        return failed + writeProblem(errno, folder.output()) + ".";
    int code = EEXIST;
    for (int number = 1; code == EEXIST && number < kMostOfOneName; ++number) {
        const std::string base = folder.broken() + stem + kBroken + (number > 1 ? "-" + std::to_string(number) : "");
        struct stat facts {};
        if (::lstat((base + kTicket).c_str(), &facts) == 0) continue;
        AtomicFile text(base + kReason);
        text.write(reason.data(), reason.size());
        text.write("\n", 1);
        static_cast<void>(text.commit());  // the ticket is worth more than the words
        code = moveToFreeName(folder.ticket(stem), base + kTicket);
    }
    return code == 0 ? "" : failed + writeProblem(code, folder.broken()) + ".";
}

int countBrokenTickets(const BoothFolder& folder) {
    return static_cast<int>(brokenTickets(folder).size());
}

int putTicketsBack(const BoothFolder& folder) {
    int back = 0;
    for (const std::string& name : brokenTickets(folder)) {
        const std::string stem = name.substr(0, name.rfind(kBroken));
        if (moveToFreeName(folder.broken() + name, folder.ticket(stem)) != 0) continue;
        std::error_code ignored;
        fs::remove(folder.broken() + fs::path(name).stem().string() + kReason, ignored);
        ++back;
    }
    return back;
}

}  // namespace tavrin
