#include "pipeline/MatteMeasures.h"

#include <algorithm>
#include <cmath>

#include "key/guard/GreenClothes.h"
#include "pipeline/ScreenLight.h"
#include "pipeline/SubjectBounds.h"

namespace tavrin {

namespace {

constexpr int kHalf = 128, kSolid = 235, kClear = 20;
constexpr int kDarkest = 20;                        // below it a hue means nothing
constexpr double kAlike = 0.15, kStrange = 0.30;    // ratios to the screen's channel
constexpr int kEdge = 1;                            // samples beside an edge, which hold some of both
constexpr int kFar = 3;                             // samples from here on no edge reaches
constexpr int kWindow = 20;                         // samples: side of the square that shows what is wrong
constexpr double kDeepShade = 0.08, kShade = 0.45;  // of the screen's level
constexpr int kBlack = 5, kWhite = 252;
constexpr int kPatch = 3;                          // samples to each side that make a surface rough or smooth
constexpr double kRough = 2.0, kLeastRough = 1.0;  // times the screen's middle, and levels on top

/// How a sample stands to the screen that was keyed.
enum class Likeness { alike, between, strange };

/// Colours with the screen's channel as green.
struct Roles {
    double red = 0.0, green = 0.0, blue = 0.0;
};

Likeness likenessTo(const Roles& screen, const Roles& color) {
    if (screen.green < kDarkest) return Likeness::between;
    if (color.green < kDarkest) return screen.green > 4 * kDarkest ? Likeness::strange : Likeness::between;
    const double red = std::abs(color.red / color.green - screen.red / screen.green);
    const double blue = std::abs(color.blue / color.green - screen.blue / screen.green);
    const double most = std::max(red, blue), level = color.green / screen.green;
    if (most > kStrange) return Likeness::strange;
    return most < kAlike && level > 0.45 && level < 1.5 ? Likeness::alike : Likeness::between;
}

/// The screen's hue at the level of a hard shadow. The finest hair before the screen has it too.
bool isShaded(const Roles& screen, const Roles& color) {
    if (screen.green < kDarkest || color.green < kDarkest / 2) return false;
    const double red = std::abs(color.red / color.green - screen.red / screen.green);
    const double blue = std::abs(color.blue / color.green - screen.blue / screen.green);
    const double level = color.green / screen.green;
    return std::max(red, blue) < kAlike && level > kDeepShade && level < kShade;
}

/// Looks at one map; each step measures one thing.
class Measurer {
  public:
    Measurer(const SystemInfo& info, const MatteMap& map)
        : info_(info), map_(map), removed_(map.width, map.height), solid_(removed_), clear_(removed_) {
        forEach([this](int x, int y) {
            const int alpha = this->alpha(x, y);
            if (alpha < kHalf) removed_.set(x, y);
            if (alpha >= kSolid) solid_.set(x, y);
            if (alpha <= kClear) clear_.set(x, y);
        });
        for (Marks* marks : {&removed_, &solid_, &clear_})
            marks->sum();
    }

    MatteMeasures measure(const ScreenLook& look) {
        const double all = static_cast<double>(map_.count());
        found_.subject = 1.0 - removed_.total() / all;
        found_[MatteMeasure::nothing] = found_.subject < kNearlyEmpty ? 1.0 : 0.0;
        tellScreen(look);
        tellColors();
        tellShades();
        tellShadow();
        tellRoom();
        tellParts();
        tellCut();
        return found_;
    }

  private:
    template <class Each>
    void forEach(const Each& each) const {
        for (int y = 0; y < map_.height; ++y) {
            for (int x = 0; x < map_.width; ++x)
                each(x, y);
        }
    }

    int alpha(int x, int y) const { return map_.at(x, y)[3]; }

    Roles rolesAt(int x, int y) const {
        const std::uint8_t* p = map_.at(x, y);
        return {double(p[0]), double(p[map_.greenByte()]), double(p[map_.blueByte])};
    }

    /// To the screen as a whole or to that of the place, whichever it is more like.
    Likeness likeness(int x, int y) const {
        const Roles color = rolesAt(x, y);
        const Likeness whole = likenessTo({info_.baseRed, info_.baseGreen, info_.baseBlue}, color);
        if (whole == Likeness::alike) return whole;
        const auto cell = static_cast<std::size_t>(y * 20 / map_.height * 20 + x * 20 / map_.width);
        if (info_.iBaseGreenArray[cell] < kDarkest) return whole;
        return std::min(
            whole,
            likenessTo({info_.iBaseRedArray[cell], info_.iBaseGreenArray[cell], info_.iBaseBlueArray[cell]}, color));
    }

    void take(MatteMeasure measure, Marks& marks, double of) {
        marks.sum();
        found_[measure] = of > 0.0 ? marks.total() / of : 0.0;
        if (marks.total() > 0) found_.place(measure) = marks.densest(kWindow);
    }

    void tellScreen(const ScreenLook& look) {
        found_[MatteMeasure::noScreen] = look.kind == ScreenKind::none      ? 1.0
                                         : look.kind == ScreenKind::unclear ? 0.5
                                                                            : 0.0;
        if (!look.isScreen()) return;
        const bool isBlue = look.kind == ScreenKind::blue;
        found_[MatteMeasure::otherScreen] = isBlue != info_.bUseBlueLogic ? 1.0 : 0.0;
        found_[MatteMeasure::darkScreen] = 255.0 - look.level;
        found_[MatteMeasure::overexposed] = look.washedOut;
        found_[MatteMeasure::uneven] = look.spread;
        tellDarkPlace(look.level);
    }

    /// The screen along the upper and side edges, in thirds of the picture.
    void tellDarkPlace(double middle) {
        double sums[3][3] = {}, counts[3][3] = {}, rim[3][3] = {};
        const int wide = map_.width / 8, high = map_.height / 8;
        forEach([&](int x, int y) {
            if (x >= wide && x < map_.width - wide && y >= high) return;
            const int column = x * 3 / map_.width, row = y * 3 / map_.height;
            const Roles color = rolesAt(x, y);
            rim[row][column] += 1.0;
            if (likeness(x, y) == Likeness::strange) return;
            sums[row][column] += color.green;
            counts[row][column] += 1.0;
        });
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                if (counts[row][column] < 0.1 * rim[row][column] + 1.0) continue;
                const double darker = 1.0 - sums[row][column] / counts[row][column] / std::max(middle, 1.0);
                if (darker <= found_[MatteMeasure::darkPlace]) continue;
                found_[MatteMeasure::darkPlace] = darker;
                found_.darkColumn = column;
                found_.darkRow = row;
            }
        }
        found_.place(MatteMeasure::darkPlace) =
            QPoint((2 * found_.darkColumn + 1) * map_.width / 6, (2 * found_.darkRow + 1) * map_.height / 6);
    }

    bool isAmidRemoved(int x, int y) const {
        return removed_.around(x, y, kEdge) >= (2 * kEdge + 1) * (2 * kEdge + 1);
    }
    /// Farther from the subject than the finest ends of its hair.
    bool isAmidClear(int x, int y) const { return clear_.around(x, y, kFar) >= (2 * kFar + 1) * (2 * kFar + 1); }
    bool isAmidKept(int x, int y) const { return removed_.around(x, y, kEdge) == 0; }

    void tellColors() {
        const double all = static_cast<double>(map_.count());
        Marks unlike(map_.width, map_.height), undecided(unlike), residue(unlike), previews(unlike), flat(unlike);
        forEach([&](int x, int y) {
            const int alpha = this->alpha(x, y);
            const bool amidRemoved = isAmidRemoved(x, y), amidKept = isAmidKept(x, y);
            if (amidRemoved || amidKept) {
                const Likeness like = likeness(x, y);
                if (amidRemoved && like == Likeness::strange) unlike.set(x, y);
                if (amidKept && like == Likeness::alike) residue.set(x, y);
                if (amidKept && isFlat(map_.at(x, y))) flat.set(x, y);
                if (differsInPreview(x, y, alpha)) previews.set(x, y);
            }
            const bool half = alpha > kClear && alpha < kSolid;
            if (half && (solid_.around(x, y, kFar) == 0 || clear_.around(x, y, kFar) == 0)) undecided.set(x, y);
        });
        take(MatteMeasure::unlike, unlike, all);
        take(MatteMeasure::undecided, undecided, all);
        take(MatteMeasure::residue, residue, all);
        take(MatteMeasure::previews, previews, all);
        take(MatteMeasure::exposure, flat, found_.subject * all);
    }

    /// How much the screen's channel changes from sample to sample around each one that was removed, levels; -1
    /// elsewhere. Noise is the same all over a screen; cloth has folds.
    std::vector<double> roughness() const {
        Marks changes(map_.width, map_.height), counted(changes);
        forEach([&](int x, int y) {
            if (x < 1 || y < 1 || x + 1 >= map_.width || y + 1 >= map_.height || !isAmidClear(x, y)) return;
            const auto level = [this](int column, int row) { return int{map_.at(column, row)[map_.greenByte()]}; };
            const int twice = 2 * level(x, y);
            changes.add(x, y,
                        std::abs(twice - level(x - 1, y) - level(x + 1, y)) +
                            std::abs(twice - level(x, y - 1) - level(x, y + 1)));
            counted.set(x, y);
        });
        changes.sum();
        counted.sum();
        std::vector<double> roughness;
        roughness.reserve(map_.count());
        forEach([&](int x, int y) {
            const int count = counted.around(x, y, kPatch);
            roughness.push_back(count > 0 && isAmidClear(x, y) ? changes.around(x, y, kPatch) / (4.0 * count) : -1.0);
        });
        return roughness;
    }

    void tellShades() {
        const ScreenLight light(map_);
        const std::vector<double> roughness = this->roughness();
        std::vector<double> known;
        for (const double value : roughness) {
            if (value >= 0.0) known.push_back(value);
        }
        const auto middle = known.begin() + static_cast<std::ptrdiff_t>(known.size() / 2);
        std::nth_element(known.begin(), middle, known.end());
        const double most = known.empty() ? 0.0 : kRough * *middle + kLeastRough;
        Marks shades(map_.width, map_.height);
        forEach([&](int x, int y) {
            if (!isAmidClear(x, y)) return;
            const bool isRough = roughness[static_cast<std::size_t>(y * map_.width + x)] > most;
            if (isRough || isOffLight(rolesAt(x, y).green, light.at(x, y))) shades.set(x, y);
        });
        take(MatteMeasure::shades, shades, static_cast<double>(map_.count()));
    }

    void tellShadow() {
        const Roles screen{info_.baseRed, info_.baseGreen, info_.baseBlue};
        Marks shaded(map_.width, map_.height), shadow(shaded);
        forEach([&](int x, int y) {
            if (alpha(x, y) > kClear && isShaded(screen, rolesAt(x, y))) shaded.set(x, y);
        });
        shaded.sum();
        forEach([&](int x, int y) {
            if (shaded.around(x, y, kEdge) >= (2 * kEdge + 1) * (2 * kEdge + 1)) shadow.set(x, y);
        });
        take(MatteMeasure::shadow, shadow, static_cast<double>(map_.count()));
    }

    void tellRoom() {
        const QRect& source = map_.source;
        const int width = std::max(source.width() / 25, 1), height = source.height() / 2;
        if (height < 1) return;
        for (const int left : {source.left(), source.right() + 1 - width}) {
            int kept = 0;
            for (int y = source.top(); y < source.top() + height; ++y) {
                for (int x = left; x < left + width; ++x)
                    kept += alpha(x, y) >= kHalf;
            }
            const double share = static_cast<double>(kept) / (static_cast<double>(width) * height);
            if (share <= found_[MatteMeasure::room]) continue;
            found_[MatteMeasure::room] = share;
            found_.place(MatteMeasure::room) = QPoint(left, source.top() + height / 2);
        }
    }

    bool differsInPreview(int x, int y, int alpha) const {
        if (map_.preview.empty()) return false;
        const auto at =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(map_.width) + static_cast<std::size_t>(x);
        return std::abs(map_.preview[at] - alpha) >= kHalf;
    }

    static bool isFlat(const std::uint8_t* p) {
        const auto [least, most] = std::minmax({p[0], p[1], p[2]});
        return most <= kBlack || least >= kWhite;
    }

    /// Pixels of one side of the half that hang together, from one of them on; they are taken out of `open`.
    std::vector<int> takePart(std::vector<char>& open, int first) const {
        std::vector<int> part;
        const auto add = [&](int x, int y) {
            const int i = y * map_.width + x;
            if (x < 0 || y < 0 || x >= map_.width || y >= map_.height || !open[static_cast<std::size_t>(i)]) return;
            open[static_cast<std::size_t>(i)] = 0;
            part.push_back(i);
        };
        add(first % map_.width, first / map_.width);
        for (std::size_t i = 0; i < part.size(); ++i) {
            const int x = part[i] % map_.width, y = part[i] / map_.width;
            add(x - 1, y);
            add(x + 1, y);
            add(x, y - 1);
            add(x, y + 1);
        }
        return part;
    }

    std::vector<std::vector<int>> parts(bool removed) const {
        std::vector<char> open(map_.count());
        for (std::size_t i = 0; i < open.size(); ++i)
            open[i] = (map_.pixels[4 * i + 3] < kHalf) == removed;
        std::vector<std::vector<int>> all;
        for (std::size_t i = 0; i < open.size(); ++i) {
            if (open[i]) all.push_back(takePart(open, static_cast<int>(i)));
        }
        return all;
    }

    bool touchesSide(const std::vector<int>& part) const {
        return std::any_of(part.begin(), part.end(), [this](int i) {
            const int x = i % map_.width, y = i / map_.width;
            return x == 0 || y == 0 || x == map_.width - 1 || y == map_.height - 1;
        });
    }

    void tellParts() {
        const double subject = found_.subject * static_cast<double>(map_.count());
        Marks specks(map_.width, map_.height), seeds(specks);
        const auto mark = [this](Marks& marks, const std::vector<int>& part) {
            for (const int i : part)
                marks.set(i % map_.width, i / map_.width);
        };
        const std::vector<std::vector<int>> kept = parts(false);
        const auto main = std::max_element(kept.begin(), kept.end(),
                                           [](const auto& a, const auto& b) { return a.size() < b.size(); });
        for (const std::vector<int>& part : kept) {
            // Two people who stand apart are no specks.
            if (part.size() * 10 < main->size()) mark(specks, part);
        }
        for (const std::vector<int>& part : parts(true)) {
            if (!touchesSide(part)) mark(seeds, part);
        }
        take(MatteMeasure::specks, specks, subject);
        take(MatteMeasure::seeds, seeds, subject);
    }

    void tellCut() {
        const auto subject = findSubject(map_.pixels.data(), map_.width, map_.source);
        if (!subject) return;
        const QRect& source = map_.source;
        const auto cut = [&](bool is, int x, int y) {
            if (!is) return;
            found_[MatteMeasure::cut] += 1.0;
            found_.place(MatteMeasure::cut) = QPoint(x, y);
        };
        const int middleX = source.left() + static_cast<int>((subject->left + subject->right) / 2 * source.width());
        const int middleY = source.top() + static_cast<int>((subject->top + subject->bottom) / 2 * source.height());
        cut(subject->cutLeft, source.left(), middleY);
        cut(subject->cutRight, source.right(), middleY);
        cut(subject->cutTop, middleX, source.top());
    }

    const SystemInfo& info_;
    const MatteMap& map_;
    Marks removed_, solid_, clear_;
    MatteMeasures found_;
};

}  // namespace

MatteMeasures measureMatte(const SystemInfo& info, const MatteMap& map, const ScreenLook& look) {
    MatteMeasures found = Measurer(info, map).measure(look);
    if (look.isScreen() && info.iGreenProtectMode == 0 && found.subject >= kNearlyEmpty) {
        found[MatteMeasure::clothes] = greenClothes(info);
        // Clothes are half transparent more often than gone.
        found.place(MatteMeasure::clothes) =
            found.place(found[MatteMeasure::undecided] > 0.0 ? MatteMeasure::undecided : MatteMeasure::unlike);
    }
    return found;
}

}  // namespace tavrin
