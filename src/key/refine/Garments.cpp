#include "key/refine/Garments.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/raster/Pixels.h"
#include "key/pixel/ChannelRoles.h"
#include "key/refine/Areas.h"
#include "key/refine/OuterScreen.h"
#include "key/refine/Parts.h"
#include "key/refine/ScreenRatio.h"

namespace tavrin::refine {

namespace {

constexpr int kHalo = 4;  // columns beyond an area that its windows look at
constexpr double kCell = 8.0, kSeamReach = 6.0;
constexpr float kStrange = 6.0f, kStrangeShare = 0.12f;   // levels, and of the screen's difference
constexpr float kLeastLight = 0.4f;                       // of the plate's, in a shade of it
constexpr float kMostAlpha = 0.9f;                        // the simple alpha: more has no need of this
constexpr float kWholeCell = 0.97f;                       // share of a cell's pixels that are strange
constexpr double kWindow = 5.0;                           // cells
constexpr float kShadeHere = 0.6f, kShadeOfPart = 0.33f;  // the most that is left over, of what a mixture leaves
constexpr float kLeastTexture = 2.0f;                     // levels squared; less is noise
constexpr double kLeastPart = 0.002, kLeastSamples = 0.001;
constexpr float kKeyed = 0.9f;       // the key's own alpha: nothing is to be mended
constexpr float kTakenAway = 0.02f;  // share of a part that is the key's screen
constexpr float kOtherHue = 0.35f;   // of the screen's difference, for such a part
struct HueLimits {
    float most, share;  // squared sines
};
constexpr std::size_t kMostDyes = 16;
constexpr double kLeastOfDye = 0.02;  // of the cloth
constexpr HueLimits kCellHue{0.015f, 0.15f}, kPixelHue{0.03f, 0.25f};
constexpr double kOwn = 0.5;  // other hue, of the haze that there would be

using Color = std::array<float, 3>;

float leastStrangeness(float difference) {
    return std::max(kStrange, kStrangeShare * difference);
}

float lengthOf(const Color& color) {
    return std::sqrt(color[0] * color[0] + color[1] * color[1] + color[2] * color[2]);
}

// What is left of a difference's square when what goes along a direction is taken off.
float leftOver(const Color& difference, const Color& along) {
    float square = 0.0f, product = 0.0f, length = 0.0f;
    for (std::size_t i = 0; i < 3; ++i) {
        square += difference[i] * difference[i];
        product += difference[i] * along[i];
        length += along[i] * along[i];
    }
    return square - product * product / std::max(length, 1.0f);
}

// One pixel of each cell, whether it may be such cloth by the screen's mean colour: a first look that costs little.
bool mayBeThere(const Shot& shot, float difference, const Mask& screen, int size) {
    const ChannelRoles roles(shot.blue);
    const int columns = shot.width / size, rows = shot.height / size;
    if (columns < 3 || rows < 3) return false;
    const auto pixelAt = [&](int c, int row) {
        return shot.pixels + pixelOffset(shot.width, c * size + size / 2, row * size + size / 2);
    };
    std::array<std::int64_t, 3> sums{};
    std::int64_t count = 0;
    for (int row = 0; row < rows; ++row) {
        for (int c = 0; c < columns; ++c) {
            if (!screen.at(c * size + size / 2, row * size + size / 2)) continue;
            const std::uint8_t* const p = pixelAt(c, row);
            sums[0] += p[0];
            sums[1] += p[roles.green];
            sums[2] += p[roles.blue];
            ++count;
        }
    }
    if (count == 0 || sums[1] == 0) return false;
    const float ofRed = static_cast<float>(sums[0]) / static_cast<float>(sums[1]),
                ofBlue = static_cast<float>(sums[2]) / static_cast<float>(sums[1]);
    const float least = leastStrangeness(difference), lead = (1.0f - kMostAlpha) * difference;
    // How many cells in a row, up to this one, of this row and of those before it, may be: three by three count.
    std::vector<std::uint8_t> runs(static_cast<std::size_t>(columns));
    std::int64_t found = 0;
    for (int row = 0; row < rows; ++row) {
        int across = 0;
        for (int c = 0; c < columns; ++c) {
            const std::uint8_t* const p = pixelAt(c, row);
            const auto r = static_cast<float>(p[0]), g = static_cast<float>(p[roles.green]),
                       b = static_cast<float>(p[roles.blue]);
            const bool may =
                g - std::max(r, b) > lead && std::max(std::abs(r - g * ofRed), std::abs(b - g * ofBlue)) > least;
            across = may ? across + 1 : 0;
            std::uint8_t& down = runs[static_cast<std::size_t>(c)];
            down = across >= 3 ? static_cast<std::uint8_t>(std::min(down + 1, 3)) : std::uint8_t{0};
            found += down >= 3;
        }
    }
    return static_cast<double>(found) > kLeastSamples * columns * rows;
}

// Whether a colour has the hue of a dye rather than that of the screen: the angle to it is a small part of the
// screen's.
bool hasHue(const Color& own, const Color& dye, const Color& behind, const HueLimits& limits) {
    const auto angle = [&](const Color& color) {
        const float length = lengthOf(color);
        return leftOver(color, dye) / std::max(length * length, 1.0f);
    };
    return angle(own) < std::min(limits.most, limits.share * angle(behind));
}

// What is no shade of a plate: the least strangeness, and light.
struct Limits {
    float strange, light;
};

// The pixels of `wanted`, and some others, that are no shade of a plate.
Mask strangePixels(const RunContext& context, const Shot& shot, const Cells& plate, int size, const Limits& limits,
                   const Mask& wanted) {
    Mask strange(shot.width, shot.height);
    runAreas(context, wanted, [&](const Area& area) {
        const Strip strip = area.strip(shot, kHalo);
        ScreenRatio ratio(strip, plate, size);
        std::vector<float> light(static_cast<std::size_t>(strip.width)), off(light);
        std::vector<std::uint8_t> flags(light.size() + 8);
        for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
            ratio.fill(y, light.data(), off.data());
            for (std::size_t x = 0; x < off.size(); ++x)
                flags[x] = (off[x] > limits.strange) | (light[x] < limits.light);
            strange.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
        }
    });
    return strange;
}

// Sorts the cells of a picture into parts of cloth.
class Tailor {
  public:
    Tailor(const RunContext& context, const Shot& shot, float difference, const OuterScreen& outer)
        : context_(context),
          shot_(shot),
          outer_(outer),
          difference_(difference),
          least_(leastStrangeness(difference)),
          columns_(outer.look.columns()),
          rows_(outer.look.rows()),
          strange_(outer.look.count()),
          whole_(outer.look.count()) {
        for (std::size_t i = 0; i < strange_.size(); ++i) {
            const Color own = ownAt(i), behind = behindAt(i);
            const float lead = own[1] - std::max(own[0], own[2]),
                        all = std::max(behind[1] - std::max(behind[0], behind[2]), 0.3f * difference);
            strange_[i] = outer.strangeness(i) > least_;
            whole_[i] = strange_[i] != 0 && lead > (1.0f - kMostAlpha) * all;
        }
        keepWhole();
        differences_ = differences();
    }

    Garments cut() const {
        const Parts parts = findParts(columns_, rows_, shaded(), Neighbours::four);
        const std::vector<Part> found = measure(parts);
        Mask kept(columns_, rows_);
        forCells([&](int c, int row) {
            if (isCloth(found[static_cast<std::size_t>(parts.labels[at(c, row)])])) kept.set(row, c, c + 1);
        });
        if (kept.count() == 0) return {};
        const std::vector<Dye> dyes = findDyes(kept);
        dropGrey(dyes, kept);
        if (kept.count() == 0) return {};
        kept = grown(context_, kept, 1);
        kept |= pieces(dyes, kept);
        const Mask near = grown(context_, kept, kNear);
        const auto pixels = [&](const auto& isSet) {
            return maskOf(context_, shot_.width, shot_.height, outer_.size, isSet);
        };
        const Mask solid = pixels([&](int c, int row) { return kept.at(c, row); });
        return {shrunk(context_, solid, std::max(1, outer_.size / 2)),
                dyedPixels(dyes, grown(context_, solid, outer_.size)),
                pixels([&](int c, int row) { return strange_[at(c, row)] != 0 && near.at(c, row); })};
    }

  private:
    static constexpr int kNear = 3, kPieceReach = 10;  // cells

    // Sums over cells of one hue.
    struct Dye {
        double cells = 0.0, hue = 0.0, haze = 0.0;
        Color color{};
        // No haze over the screen, nor the screen's light on grey, looks like that.
        bool isOwn() const { return haze < 0.0 || std::abs(hue) > kOwn * haze; }
    };
    // Sums over a part.
    struct Part {
        double shade = 0.0, mix = 0.0, screen = 0.0, key = 0.0, strange = 0.0;
        Dye all;
        bool atSide = false;  // beside or above
    };

    std::size_t at(int c, int row) const { return static_cast<std::size_t>(row * columns_ + c); }
    Color ownAt(std::size_t i) const {
        return {outer_.look.row(0, 0)[i], outer_.look.row(0, 1)[i], outer_.look.row(0, 2)[i]};
    }
    Color behindAt(std::size_t i) const {
        return {outer_.behind.row(0, 0)[i], outer_.behind.row(0, 1)[i], outer_.behind.row(0, 2)[i]};
    }

    // Leaves of the whole cells those of which no pixel has the screen's hue.
    void keepWhole() {
        const Mask wanted = maskOf(context_, shot_.width, shot_.height, outer_.size,
                                   [&](int c, int row) { return whole_[at(c, row)] != 0; });
        const Mask strange = strangePixels(context_, shot_, outer_.behind, outer_.size, {least_, 0.0f}, wanted);
        const Cells shares = sharesOf(context_, strange, outer_.size);
        for (std::size_t i = 0; i < whole_.size(); ++i)
            whole_[i] = whole_[i] != 0 && shares.row(0, 0)[i] > kWholeCell;
    }

    bool isInner(int c, int row) const {
        for (int y = std::max(row - 1, 0); y <= std::min(row + 1, rows_ - 1); ++y) {
            for (int x = std::max(c - 1, 0); x <= std::min(c + 1, columns_ - 1); ++x) {
                if (whole_[at(x, y)] == 0) return false;
            }
        }
        return true;
    }

    // What shading and mixing leave over of the differences to the next whole cells, and how many of these there are.
    Cells differences() const {
        Cells cells(columns_, rows_, 3);
        for (int row = 0; row < rows_; ++row) {
            for (int c = 0; c < columns_; ++c) {
                const std::size_t i = at(c, row);
                if (whole_[i] == 0) continue;
                const Color own = ownAt(i), behind = behindAt(i);
                const auto look = [&](std::size_t next) {
                    if (whole_[next] == 0) return;
                    Color change = ownAt(next), away;
                    const Color there = behindAt(next);
                    for (std::size_t k = 0; k < 3; ++k) {
                        change[k] -= own[k] + (there[k] - behind[k]);
                        away[k] = own[k] - behind[k];
                    }
                    cells.row(0, 0)[i] += leftOver(change, own);
                    cells.row(0, 1)[i] += leftOver(change, away);
                    cells.row(0, 2)[i] += 1.0f;
                };
                if (c + 1 < columns_) look(i + 1);
                if (row + 1 < rows_) look(at(c, row + 1));
            }
        }
        return cells;
    }

    // The inner cells around which shading explains the colours and mixing does not.
    std::vector<std::uint8_t> shaded() const {
        const auto around = [&](int plane) {
            Cells one(columns_, rows_, 1);
            std::copy_n(differences_.row(0, plane), one.count(), one.row(0, 0));
            return blurred(context_, one, kWindow);
        };
        const Cells shade = around(0), mix = around(1), pairs = around(2);
        std::vector<std::uint8_t> set(whole_.size());
        for (int row = 0; row < rows_; ++row) {
            for (int c = 0; c < columns_; ++c) {
                const std::size_t i = at(c, row);
                set[i] = shade.row(0, 0)[i] < kShadeHere * mix.row(0, 0)[i] &&
                         mix.row(0, 0)[i] > kLeastTexture * pairs.row(0, 0)[i] && isInner(c, row);
            }
        }
        return set;
    }

    float keyOf(int c, int row) const {
        const int left = c * outer_.size, right = std::min(left + outer_.size, shot_.width), top = row * outer_.size,
                  bottom = std::min(top + outer_.size, shot_.height);
        int sum = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x)
                sum += shot_.keyRow(y)[x];
        }
        return static_cast<float>(sum) / static_cast<float>(255 * (right - left) * (bottom - top));
    }

    void add(std::size_t i, Dye& dye) const {
        const Color own = ownAt(i), behind = behindAt(i);
        dye.cells += 1.0;
        for (std::size_t k = 0; k < 3; ++k)
            dye.color[k] += own[k];
        // Any shade of the screen with any haze over it lies in one plane.
        const Color normal{behind[1] - behind[2], behind[2] - behind[0], behind[0] - behind[1]};
        dye.hue += static_cast<double>((normal[0] * own[0] + normal[1] * own[1] + normal[2] * own[2]) /
                                       std::max(lengthOf(normal), 1.0f));
        const float others = (own[0] + own[2]) * 0.5f, screens = (behind[0] + behind[2]) * 0.5f;
        dye.haze += static_cast<double>(others - screens * (own[1] - others) / std::max(behind[1] - screens, 8.0f));
    }

    void add(int c, int row, Part& part) const {
        const std::size_t i = at(c, row);
        add(i, part.all);
        part.shade += static_cast<double>(differences_.row(0, 0)[i]);
        part.mix += static_cast<double>(differences_.row(0, 1)[i]);
        part.screen += static_cast<double>(outer_.screen.row(0, 0)[i]);
        part.key += static_cast<double>(keyOf(c, row));
        part.strange += static_cast<double>(outer_.strangeness(i));
        part.atSide |= c == 0 || c == columns_ - 1 || row == 0;
    }

    bool isCloth(const Part& part) const {
        if (part.all.cells < kLeastPart * static_cast<double>(whole_.size())) return false;
        if (part.shade > kShadeOfPart * part.mix || part.key > kKeyed * part.all.cells) return false;
        if (part.screen <= kTakenAway * part.all.cells) return true;
        // The key took some of it for screen: floors and walls of another paint, glare and glass are no cloth.
        return !part.atSide && part.strange > kOtherHue * difference_ * part.all.cells && part.all.isOwn();
    }

    // The hues of cloth, in the order of their first cells.
    std::vector<Dye> findDyes(const Mask& cloth) const {
        std::vector<Dye> dyes;
        forCells([&](int c, int row) {
            if (!cloth.at(c, row)) return;
            const std::size_t i = at(c, row);
            if (const std::size_t dye = dyeOf(i, dyes); dye < dyes.size()) {
                add(i, dyes[dye]);
            } else if (dyes.size() < kMostDyes) {
                add(i, dyes.emplace_back());
            }
        });
        std::erase_if(dyes,
                      [&](const Dye& dye) { return dye.cells < kLeastOfDye * static_cast<double>(cloth.count()); });
        return dyes;
    }

    std::vector<Part> measure(const Parts& parts) const {
        std::vector<Part> found(static_cast<std::size_t>(parts.count) + 1);
        forCells([&](int c, int row) {
            const int label = parts.labels[at(c, row)];
            if (label != 0) add(c, row, found[static_cast<std::size_t>(label)]);
        });
        return found;
    }

    // The place of the first dye whose hue a cell has, or that of none.
    std::size_t dyeOf(std::size_t i, const std::vector<Dye>& dyes) const {
        const auto dye = std::find_if(dyes.begin(), dyes.end(), [&](const Dye& one) {
            return hasHue(ownAt(i), one.color, behindAt(i), kCellHue);
        });
        return static_cast<std::size_t>(dye - dyes.begin());
    }

    // Grey in the screen's light is solid as well, but its colour does not tell how much of it that light is.
    void dropGrey(const std::vector<Dye>& dyes, Mask& cloth) const {
        Mask grey(columns_, rows_);
        forCells([&](int c, int row) {
            if (!cloth.at(c, row)) return;
            const std::size_t dye = dyeOf(at(c, row), dyes);
            if (dye < dyes.size() && !dyes[dye].isOwn()) grey.set(row, c, c + 1);
        });
        cloth &= grey.inverted();
    }

    // What else nearby has the same dye, however small, such as the other side of a strap: parts of whole cells that
    // touch what is known, or are wide enough to have an inside.
    Mask pieces(const std::vector<Dye>& dyes, const Mask& known) const {
        const Mask near = grown(context_, known, kPieceReach);
        std::vector<std::uint8_t> set(whole_.size());
        forCells([&](int c, int row) {
            const std::size_t i = at(c, row);
            if (whole_[i] == 0 || !near.at(c, row)) return;
            const std::size_t dye = dyeOf(i, dyes);
            set[i] = dye < dyes.size() && dyes[dye].isOwn();
        });
        const Parts parts = findParts(columns_, rows_, set, Neighbours::four);
        std::vector<std::uint8_t> kept(static_cast<std::size_t>(parts.count) + 1);
        forCells([&](int c, int row) {
            if (known.at(c, row) || isInner(c, row)) kept[static_cast<std::size_t>(parts.labels[at(c, row)])] = 1;
        });
        kept[0] = 0;
        Mask cells(columns_, rows_);
        forCells([&](int c, int row) {
            if (kept[static_cast<std::size_t>(parts.labels[at(c, row)])] != 0) cells.set(row, c, c + 1);
        });
        return cells;
    }

    // Pixels of `wanted` of a dye that cannot be the screen's light.
    Mask dyedPixels(const std::vector<Dye>& dyes, const Mask& wanted) const {
        Mask dyed(shot_.width, shot_.height);
        runAreas(context_, wanted, [&](const Area& area) {
            const Strip strip = area.strip(shot_, kHalo);
            ScreenRatio ratio(strip, outer_.behind, outer_.size);
            std::vector<std::uint8_t> flags(static_cast<std::size_t>(area.width()) + 8);
            for (int y = area.top; y < area.bottom && !context_.isSuperseded(); ++y) {
                const auto [own, behind] = ratio.colors(y);
                for (int x = 0; x < area.width(); ++x) {
                    const int at = x + area.left - strip.left;
                    flags[static_cast<std::size_t>(x)] = std::any_of(dyes.begin(), dyes.end(), [&](const Dye& dye) {
                        return dye.isOwn() && hasHue({own.r[at], own.g[at], own.b[at]}, dye.color,
                                                     {behind.r[at], behind.g[at], behind.b[at]}, kPixelHue);
                    });
                }
                dyed.pack(y, area.left, area.width(), flags.data());
            }
        });
        dyed &= wanted;
        return dyed;
    }

    template <class Work>
    void forCells(const Work& work) const {
        for (int row = 0; row < rows_; ++row) {
            for (int c = 0; c < columns_; ++c)
                work(c, row);
        }
    }

    const RunContext& context_;
    const Shot& shot_;
    const OuterScreen& outer_;
    const float difference_, least_;
    const int columns_, rows_;
    std::vector<std::uint8_t> strange_, whole_;  // cells by their means; and by all of their pixels
    Cells differences_;
};

}  // namespace

Garments findGarments(const RunContext& context, const Shot& shot, float difference, const Mask& screen) {
    const int size = shot.cell(kCell);
    if (!mayBeThere(shot, difference, screen, size)) return {};
    const OuterScreen outer = findOuterScreen(context, shot, screen, size);
    return Tailor(context, shot, difference, outer).cut();
}

Mask findSeams(const RunContext& context, const Shot& shot, const Plate& plate, const Mask& solid) {
    const int reach = shot.px(kSeamReach);
    Mask seams = shrunk(context, grown(context, solid, reach), reach);
    seams &= solid.inverted();
    seams &= grown(context, plate.cloth, 2 * reach);
    const Limits limits{leastStrangeness(plate.difference), kLeastLight};
    seams &= strangePixels(context, shot, plate.colors, kPlateCell, limits, seams);
    return seams;
}

}  // namespace tavrin::refine
