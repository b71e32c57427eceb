#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include <QImage>

#include "core/state/Interface.h"
#include "core/state/SystemInfo.h"
#include "key/Combine.h"
#include "pipeline/Stages.h"

namespace tavrin {

/// Makes previews of pictures that nobody has open, from a state of its own and on the caller's thread: one portrait
/// over one background after the other, or with other settings. What a picture has in common with the one before is
/// not made again: layers, the refined key's subject, the picture that the key leaves. The bytes are those of the
/// loop's first preview of such a state.
///
/// A picture with a drawing, which the loop's preview leaves out, has the steps of the full picture at the preview's
/// size, but for those that exist at full size only: edges and skin.
class PreviewMaker {
  public:
    /// @param state with settings, size and portrait named, and nothing read yet
    /// @param goesOn asked before each step, on a background thread also before each piece of rows; false gives the
    ///               picture up. Null: none is given up.
    explicit PreviewMaker(std::unique_ptr<SystemInfo> state, std::function<bool()> goesOn = {});

    /// Changes settings for the pictures to come. The flags that it raises tell which layers are made anew.
    /// @param leavesSubject it changes nothing that the key goes by
    void change(const std::function<void(SystemInfo&)>& write, bool leavesSubject);

    /// @param background "" for that of the state
    /// @return the combined preview, RGBA; null on failure, with `problem` set, and where it was given up
    QImage over(const std::string& background = "");
    /// Why there is no picture, as one plain line; "" when there is one.
    const std::string& problem() const { return problem_; }
    /// The last picture was given up. The next one begins with what was ready by then.
    bool wasGivenUp() const { return givenUp_; }
    /// The alerts of the last picture, such as for an overlay that cannot be read, a line each; it was made without.
    const std::string& alerts() const { return nobody_.alert; }

  private:
    /// Alerts are for who opens a picture.
    struct Nobody : Interface {
        bool wantsPixels() const override { return false; }
        void showAlert(const std::string& message, const std::string&) override { alert += message + '\n'; }
        std::string alert;
    };
    /// What the program finds out of the sources, as it stands before the first key.
    struct Findings {
        ScreenColor screen;
        HairColors hair;
        SkinColor skin;
    };
    /// The background as it was drawn, before anything was laid on it, and where.
    struct Drawn {
        bool isThere = false;
        PixelBuffer pixels;
        LayerPlace place;
    };
    /// The picture after the stages of the key, and for which settings.
    struct Keyed {
        std::string inputs;  ///< "" for none
        PixelBuffer pixels;
        std::uint64_t seed = 0;  ///< that the next stage gets
    };

    bool make();
    bool load(BitmapInfo& record);
    bool preparePortrait();
    bool prepareBackground();
    void drawLayer(BitmapInfo& record);
    bool drawBackground();
    bool key();
    bool keyAnew();
    bool run(std::span<const Stage> stages);
    bool goesOn();

    Nobody nobody_;
    const std::unique_ptr<SystemInfo> info_;
    const std::function<bool()> goesOn_;
    const std::string ownBackground_;
    RefinedSubject subject_;
    Findings findings_;
    bool hasPortrait_ = false, givenUp_ = false;
    Drawn background_;
    Keyed keyed_;
    std::string problem_;
};

}  // namespace tavrin
