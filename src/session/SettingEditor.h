#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Changes of settings by a person at the window. Each goes through `changeSetting`, so that the flags follow, and
/// belongs to a step that can be taken back: all of one drag, one click, one reset. The caller asks for the pass. For
/// the main thread.
class SettingEditor {
  public:
    struct Change {
        std::string setting, before, after;
    };
    struct Step {
        std::string label;  ///< what was changed, in the user's words
        std::vector<Change> changes;
    };

    explicit SettingEditor(SystemInfo& info) : info_(info) {}

    SystemInfo& info() const { return info_; }
    /// The present value as `listFields` shows it; "" for a setting that does not exist.
    std::string value(const std::string& setting) const;

    /// What is changed until the matching `endStep` is one step. Steps inside a step belong to it. A step that comes
    /// to nothing leaves no trace.
    void beginStep(const std::string& label);
    void endStep();

    /// Gives a setting a new value, as a step of its own outside of one.
    /// @return "" when done; otherwise one plain line, and nothing is changed
    std::string set(const std::string& setting, const std::string& value);
    /// Runs something that writes these settings and no other, and raises the flags that follow.
    void apply(const std::vector<std::string>& settings, const std::function<void(SystemInfo&)>& write);

    /// Takes the last step back, or does the one that was taken back again. Nothing happens inside a step.
    /// @return whether there was one
    bool undo();
    bool redo();
    /// Every step that there is, and how many of them are in force.
    const std::vector<Step>& steps() const { return steps_; }
    std::size_t stepsDone() const { return done_; }
    /// Forgets all steps: another state was loaded, on which they do not rest.
    void forgetSteps();

  private:
    void note(const std::string& setting, const std::string& before, const std::string& after);

    SystemInfo& info_;
    std::vector<Step> steps_;
    std::size_t done_ = 0;
    Step open_;
    int depth_ = 0;
};

}  // namespace tavrin
