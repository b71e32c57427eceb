#pragma once

namespace tavrin {

/// How the number of a control becomes the value of its setting, and back. A setting that is a whole number takes the
/// truncated one.
struct Mapping {
    const char* text;  ///< the rule in words, for lists of controls
    double (*toSetting)(double control);
    double (*toControl)(double setting);
    int decimals = 0;      ///< what the number field shows; 0: the setting is a whole number
    double shownBy = 1.0;  ///< the number field shows the setting times this
};

inline constexpr Mapping kPlain{"value", [](double v) { return v; }, [](double s) { return s; }};
inline constexpr Mapping kState{"state", [](double v) { return v != 0.0 ? 1.0 : 0.0; },
                                [](double s) { return s != 0.0 ? 1.0 : 0.0; }};
inline constexpr Mapping kLess100{"value - 100", [](double v) { return v - 100.0; },
                                  [](double s) { return s + 100.0; }};
inline constexpr Mapping kLess200{"value - 200", [](double v) { return v - 200.0; },
                                  [](double s) { return s + 200.0; }};
inline constexpr Mapping kDegrees{"value - 90", [](double v) { return v - 90.0; }, [](double s) { return s + 90.0; },
                                  1};
/// In the field stand percent.
inline constexpr Mapping kScale{"(value - 100) / 80, at least 0.01",
                                [](double v) {
                                    const double scale = (v - 100.0) / 80.0;
                                    return scale < 0.01 ? 0.01 : scale;
                                },
                                [](double s) { return s * 80.0 + 100.0; }, 1, 100.0};

}  // namespace tavrin
