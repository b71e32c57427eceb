#pragma once

#include <memory>
#include <string>

#include <QImage>

#include "core/state/Interface.h"
#include "core/state/SystemInfo.h"
#include "key/Combine.h"

namespace tavrin {

/// Makes previews of pictures that nobody has open, from a state of its own and on the caller's thread: one portrait
/// over one background after the other. The subject is keyed once where the key is the refined one. The bytes are
/// those of the loop's first preview of such a state.
class PreviewMaker {
  public:
    /// @param state with settings, size and portrait named, and nothing read yet
    explicit PreviewMaker(std::unique_ptr<SystemInfo> state);

    /// @param background "" for that of the state
    /// @return the combined preview, RGBA; null on failure, with `problem` set
    QImage over(const std::string& background = "");
    /// Why there is no picture, as one plain line; "" when there is one.
    const std::string& problem() const { return problem_; }

  private:
    /// Alerts are for who opens a picture.
    class Nobody : public Interface {
        bool wantsPixels() const override { return false; }
    };

    bool load(BitmapInfo& record);
    bool preparePortrait();
    bool prepareBackground(const std::string& background);
    void key();

    Nobody nobody_;
    const std::unique_ptr<SystemInfo> info_;
    RefinedSubject subject_;
    ScreenColor screen_;  // before the first key
    bool hasPortrait_ = false;
    std::string problem_;
};

}  // namespace tavrin
