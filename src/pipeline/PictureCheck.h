#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/state/SystemInfo.h"
#include "key/screen/ScreenLook.h"
#include "pipeline/Judgement.h"

namespace tavrin {

/// Something about a picture that a person would want to be told; the picture was made all the same.
struct PictureWarning {
    std::string kind;  ///< one word for programs: "no-screen", "clothes" ...
    std::string text;  ///< one plain line for people
};

/// Looks at the portrait before the key and at the picture after it. It changes nothing but, where it may, the colour
/// of the screen.
class PictureCheck {
  public:
    /// @param mayChooseScreen takes green or blue as the portrait shows it, whatever the settings say
    explicit PictureCheck(bool mayChooseScreen) : mayChooseScreen_(mayChooseScreen) {}

    /// To be called when the portrait's file was read, before its screen is measured.
    void lookAtPortrait(SystemInfo& info, const QImage& portrait);

    /// How sure it is that the matte of a finished picture is good; nothing when no key ran.
    /// @param resolution of the picture. Its key must have run on the preview too for a word about clothes.
    std::optional<Judgement> judge(const SystemInfo& info, Resolution resolution) const;

    /// What there is to say of a finished picture.
    /// @param judgement of `judge`
    std::vector<PictureWarning> warnings(const SystemInfo& info, const std::optional<Judgement>& judgement) const;

  private:
    void tellScreen(const SystemInfo& info, const MatteMeasures& measures,
                    std::vector<PictureWarning>& warnings) const;

    const bool mayChooseScreen_;
    bool changedScreen_ = false;
    ScreenLook look_;
};

}  // namespace tavrin
