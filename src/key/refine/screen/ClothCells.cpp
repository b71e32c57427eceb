#include "key/refine/screen/ClothCells.h"

#include <algorithm>

#include "key/refine/screen/Garments.h"
#include "key/refine/screen/Strange.h"

namespace tavrin::refine {

namespace {

constexpr float kLeastShare = 0.3f;                       // of the usual difference, for a plate without colour
constexpr float kWholeCell = 0.97f;                       // share of a cell's pixels that are strange
constexpr double kWindow = 5.0;                           // cells
constexpr float kShadeHere = 0.6f, kShadeOfPart = 0.33f;  // the most that is left over, of what a mixture leaves
constexpr float kLeastTexture = 2.0f;                     // levels squared; less is noise
constexpr double kShadedShare = 0.5;                      // of a part: in the folds of a veil there are such places
constexpr double kSmallShare = 0.4;                       // of the least part, beside a larger one
constexpr float kNextToNothing = 0.06f;                   // of the key's alpha
constexpr double kTakenAway = 0.02;                       // share of a part that is the key's screen
constexpr double kOtherHue = 0.35;                        // of the screen's difference, for such a part

double number(float value) {
    return static_cast<double>(value);
}

}  // namespace

ClothCells::ClothCells(const RunContext& context, const Shot& shot, float difference, const OuterScreen& outer)
    : context_(context),
      shot_(shot),
      outer_(outer),
      difference_(difference),
      columns_(outer.look.columns()),
      rows_(outer.look.rows()),
      strange_(outer.look.count()),
      whole_(outer.look.count()) {
    findWhole();
}

Color ClothCells::own(std::size_t cell) const {
    return {outer_.look.row(0, 0)[cell], outer_.look.row(0, 1)[cell], outer_.look.row(0, 2)[cell]};
}

Color ClothCells::behind(std::size_t cell) const {
    return {outer_.behind.row(0, 0)[cell], outer_.behind.row(0, 1)[cell], outer_.behind.row(0, 2)[cell]};
}

void ClothCells::findWhole() {
    const float least = leastStrangeness(difference_);
    const auto leadOf = [](const Color& color) { return color[1] - std::max(color[0], color[2]); };
    for (std::size_t i = 0; i < strange_.size(); ++i) {
        const float usual = std::max(leadOf(behind(i)), kLeastShare * difference_);
        strange_[i] = outer_.strangeness(i) > least;
        whole_[i] = strange_[i] != 0 && leadOf(own(i)) > (1.0f - kNotNearScreen) * usual;
    }
    const Mask wanted = maskOf(context_, shot_.width, shot_.height, outer_.size,
                               [&](int c, int row) { return whole_[at(c, row)] != 0; });
    const Mask pixels = strangePixels(context_, shot_, outer_.behind, outer_.size, {least, 0.0f}, wanted);
    const Cells shares = sharesOf(context_, pixels, outer_.size);
    for (std::size_t i = 0; i < whole_.size(); ++i)
        whole_[i] = whole_[i] != 0 && shares.row(0, 0)[i] > kWholeCell;
}

bool ClothCells::isInner(int c, int row) const {
    for (int y = std::max(row - 1, 0); y <= std::min(row + 1, rows_ - 1); ++y) {
        for (int x = std::max(c - 1, 0); x <= std::min(c + 1, columns_ - 1); ++x) {
            if (!isWhole(at(x, y))) return false;
        }
    }
    return true;
}

// Adds what shading and what mixing leaves over of the difference between two cells, and that there was one.
void ClothCells::compare(std::size_t from, std::size_t to, Cells& left) const {
    if (!isWhole(to)) return;
    const Color here = own(from), plate = behind(from), there = own(to), next = behind(to);
    Color change, away;
    for (std::size_t k = 0; k < 3; ++k) {
        change[k] = there[k] - here[k] - (next[k] - plate[k]);
        away[k] = here[k] - plate[k];
    }
    left.row(0, 0)[from] += leftOver(change, here);
    left.row(0, 1)[from] += leftOver(change, away);
    left.row(0, 2)[from] += 1.0f;
}

// From each whole cell to those at its right and below it.
Cells ClothCells::leftOvers() const {
    Cells left(columns_, rows_, 3);
    forCells([&](int c, int row) {
        const std::size_t i = at(c, row);
        if (!isWhole(i)) return;
        if (c + 1 < columns_) compare(i, i + 1, left);
        if (row + 1 < rows_) compare(i, at(c, row + 1), left);
    });
    return left;
}

// The inner cells around which shading explains the colours and mixing does not.
std::vector<std::uint8_t> ClothCells::shadedCells(const Cells& left, const std::vector<std::uint8_t>& inner) const {
    const auto around = [&](int plane) {
        Cells one(columns_, rows_, 1);
        std::copy_n(left.row(0, plane), one.count(), one.row(0, 0));
        return blurred(context_, one, kWindow);
    };
    const Cells shade = around(0), mix = around(1), pairs = around(2);
    std::vector<std::uint8_t> set(whole_.size());
    forCells([&](int c, int row) {
        const std::size_t i = at(c, row);
        set[i] = shade.row(0, 0)[i] < kShadeHere * mix.row(0, 0)[i] &&
                 mix.row(0, 0)[i] > kLeastTexture * pairs.row(0, 0)[i] && inner[i] != 0;
    });
    return set;
}

// The mean of the key's alpha, 0 to 1.
float ClothCells::keyOf(int c, int row) const {
    const int left = c * outer_.size, right = std::min(left + outer_.size, shot_.width), top = row * outer_.size,
              bottom = std::min(top + outer_.size, shot_.height);
    int sum = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x)
            sum += shot_.keyRow(y)[x];
    }
    return static_cast<float>(sum) / static_cast<float>(255 * (right - left) * (bottom - top));
}

void ClothCells::add(int c, int row, const Cells& left, Part& part) const {
    const std::size_t i = at(c, row);
    part.dye.add(own(i), behind(i), outer_.strangeness(i));
    part.shade += number(left.row(0, 0)[i]);
    part.mix += number(left.row(0, 1)[i]);
    const float key = keyOf(c, row);
    part.screen += key < kNextToNothing ? 1.0 : number(outer_.screen.row(0, 0)[i]);
    part.key += number(key);
    part.atSide |= c == 0 || c == columns_ - 1 || row == 0;
}

bool ClothCells::isCloth(const Part& part) const {
    const Dye& dye = part.dye;
    if (dye.cells < kShadedShare * part.cells) return false;
    if (part.shade > number(kShadeOfPart) * part.mix || part.key > number(kKeyed) * dye.cells) return false;
    if (part.screen <= kTakenAway * dye.cells) return true;
    // The key took some of it for screen: floors and walls of another paint, glare and glass are no cloth.
    return !part.atSide && dye.strangeness > kOtherHue * number(difference_) * dye.cells && dye.isOwn();
}

Mask ClothCells::find() const {
    Mask cloth(columns_, rows_);
    const double least = kLeastCloth * static_cast<double>(whole_.size());
    std::vector<std::uint8_t> inner(whole_.size());
    forCells([&](int c, int row) { inner[at(c, row)] = isInner(c, row); });
    if (static_cast<double>(std::count(inner.begin(), inner.end(), 1)) < least) return cloth;
    const Cells left = leftOvers();
    const std::vector<std::uint8_t> shaded = shadedCells(left, inner);
    const Parts parts = findParts(columns_, rows_, inner, Neighbours::four);
    std::vector<Part> found(static_cast<std::size_t>(parts.count) + 1);
    const auto partAt = [&](int c, int row) { return static_cast<std::size_t>(parts.labels[at(c, row)]); };
    forCells([&](int c, int row) {
        if (partAt(c, row) == 0) return;
        Part& part = found[partAt(c, row)];
        part.cells += 1.0;
        if (shaded[at(c, row)] != 0) add(c, row, left, part);
    });
    // Beside a large part smaller ones count, such as a chest beside a sleeve.
    std::vector<std::uint8_t> kept;
    bool large = false;
    for (const Part& part : found) {
        kept.push_back(part.dye.cells >= kSmallShare * least && isCloth(part));
        large |= kept.back() != 0 && part.dye.cells >= least;
    }
    if (!large) return cloth;
    forCells([&](int c, int row) {
        if (kept[partAt(c, row)] != 0 && shaded[at(c, row)] != 0) cloth.set(row, c, c + 1);
    });
    return cloth;
}

}  // namespace tavrin::refine
