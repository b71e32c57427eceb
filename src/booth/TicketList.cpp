#include "booth/TicketList.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <unordered_set>

#include "core/image/PictureTypes.h"
#include "folders/FolderListing.h"
#include "folders/NextFileInFolder.h"

namespace tavrin {

namespace {

/// The ticks behind the last "_" of a stem; 0 for one that no press made.
long long ticksOf(std::string_view stem) {
    constexpr std::size_t kMostDigits = 18;
    const std::string_view digits = stem.substr(stem.rfind('_') + 1);
    if (digits.empty() || digits.size() > kMostDigits) return 0;
    long long ticks = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return 0;
        ticks = ticks * 10 + (c - '0');
    }
    return ticks;
}

bool isOneOf(const std::vector<std::string>& extensions, std::string_view extension) {
    return std::ranges::any_of(extensions, [extension](const std::string& one) {
        return std::ranges::equal(one, extension, [](char known, char c) {
            return known == static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        });
    });
}

}  // namespace

TicketList listTickets(const BoothFolder& folder) {
    static const std::vector<std::string> ticket{"QLX"};
    TicketList list;
    FolderListing listing = listFolder(folder.output());
    list.problem = std::move(listing.problem);
    std::unordered_set<std::string_view> photos;
    for (const std::string& name : listing.names) {
        const std::size_t dot = name.rfind('.');
        if (dot == 0 || dot == std::string::npos) continue;
        const std::string_view stem(name.data(), dot), extension = std::string_view(name).substr(dot + 1);
        if (isOneOf(ticket, extension)) {
            ++list.tickets;
            if (extension == "qlx") list.pending.emplace_back(stem);  // under which name alone a ticket is loaded
        } else if (isOneOf(photoExtensions(), extension)) {
            photos.insert(stem);
            ++list.photos;
        }
    }
    std::erase_if(list.pending, [&photos](const std::string& stem) { return photos.contains(stem); });
    // The system lists names in no order that means anything; guests have one.
    std::ranges::sort(list.pending, [](const std::string& one, const std::string& other) {
        const long long before = ticksOf(one), after = ticksOf(other);
        return before != after ? before < after : one < other;
    });
    return list;
}

std::vector<std::string> listNotes(const BoothFolder& folder) {
    std::vector<std::string> stems;
    for (const std::string& name : listFolder(folder.hidden()).names) {
        constexpr std::string_view kNote = ".job";
        if (name.ends_with(kNote)) stems.push_back(name.substr(0, name.size() - kNote.size()));
    }
    return stems;
}

}  // namespace tavrin
