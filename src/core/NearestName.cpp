#include "core/NearestName.h"

#include <algorithm>
#include <cctype>
#include <limits>

namespace tavrin {

namespace {

// A longer one is no slip of the fingers.
constexpr std::size_t kLongestName = 100;

std::string lowerCase(const std::string& text) {
    std::string lower = text.substr(0, kLongestName);
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

}  // namespace

std::size_t editDistance(const std::string& one, const std::string& other) {
    const std::string a = lowerCase(one), b = lowerCase(other);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[b.size()];
}

std::string nearestName(const std::string& wrong, const std::vector<std::string>& names) {
    std::string nearest;
    std::size_t least = std::numeric_limits<std::size_t>::max();
    for (const std::string& name : names) {
        const std::size_t distance = editDistance(wrong, name);
        if (distance >= least) continue;
        least = distance;
        nearest = name;
    }
    return nearest;
}

}  // namespace tavrin
