#pragma once

#include <cstddef>
#include <cstdint>
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
    /// What a step did besides settings. It lives as long as the program.
    struct Elsewhere {
        std::function<void()> takeBack, doAgain;
    };
    struct Step {
        std::string label;  ///< what was changed, in the user's words
        std::vector<Change> changes;
        Elsewhere elsewhere = {};
        std::uint64_t number = 0;  ///< no two steps of a history have the same; from 1 on
    };
    /// Every step that there is, how many of them are in force, and the number of the last one that was when the
    /// picture was saved (0: none was).
    struct History {
        std::vector<Step> steps;
        std::size_t done = 0;
        std::uint64_t saved = 0;
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
    /// Adds what was done elsewhere to the step that is open. It makes a step, and no change of the picture.
    void note(Elsewhere elsewhere);

    /// Takes the last step back, or does the one that was taken back again. Nothing happens inside a step.
    /// @return whether there was one
    bool undo();
    bool redo();
    /// Takes the last step back for good, if it has this number and is in force: another takes its place.
    /// @return whether it was that
    bool dropStep(std::uint64_t number);
    /// Takes back or does again until that many steps are in force, as far as there are steps.
    void goTo(std::size_t done);
    const std::vector<Step>& steps() const { return history_.steps; }
    std::size_t stepsDone() const { return history_.done; }
    /// Number of the last step in force that changed a setting or the list of items, 0 for none: tells whether the
    /// picture was changed in between.
    std::uint64_t position() const;
    /// The picture was saved as it was at a position.
    void markSaved(std::uint64_t position) { history_.saved = position; }
    bool isUnsaved() const { return position() != history_.saved; }

    const History& history() const { return history_; }
    /// Goes on with the steps of another time, on the settings that they led to. What a step that is open did before
    /// belongs to neither.
    void setHistory(History history);
    /// Forgets all steps: another state was loaded, on which they do not rest.
    void forgetSteps() { setHistory({}); }

  private:
    void note(const std::string& setting, const std::string& before, const std::string& after);

    SystemInfo& info_;
    History history_;
    Step open_;
    int depth_ = 0;
    std::uint64_t lastNumber_ = 0;
};

}  // namespace tavrin
