#include "session/SettingEditor.h"

#include <algorithm>
#include <utility>

#include "core/state/ChangeFlags.h"
#include "core/state/SettingNames.h"
#include "session/SettingChanges.h"

namespace tavrin {

std::string SettingEditor::value(const std::string& setting) const {
    return fieldValue(info_, setting).value_or("");
}

void SettingEditor::beginStep(const std::string& label) {
    if (depth_++ == 0) open_ = {label, {}};
}

void SettingEditor::endStep() {
    if (depth_ == 0 || --depth_ > 0) return;
    std::erase_if(open_.changes, [](const Change& change) { return change.before == change.after; });
    if (open_.changes.empty()) return;
    steps_.resize(done_);  // what was taken back and not done again is gone
    steps_.push_back(std::exchange(open_, {}));
    done_ = steps_.size();
}

std::string SettingEditor::set(const std::string& setting, const std::string& value) {
    const std::string before = this->value(setting);
    std::string problem = changeSetting(info_, setting, value);
    if (problem.empty()) note(setting, before, this->value(setting));
    return problem;
}

void SettingEditor::apply(const std::vector<std::string>& settings, const std::function<void(SystemInfo&)>& write) {
    std::vector<std::string> before;
    for (const std::string& setting : settings)
        before.push_back(value(setting));
    write(info_);
    unsigned redo = kRedoNothing;
    beginStep("");
    for (std::size_t i = 0; i < settings.size(); ++i) {
        const std::string after = value(settings[i]);
        if (after != before[i]) redo |= redoOf(info_, settings[i]);
        note(settings[i], before[i], after);
    }
    endStep();
    raiseFlags(info_, redo);
}

/// The first value and the last count.
void SettingEditor::note(const std::string& setting, const std::string& before, const std::string& after) {
    beginStep(setting);
    const auto known = std::find_if(open_.changes.begin(), open_.changes.end(),
                                    [&](const Change& change) { return change.setting == setting; });
    if (known == open_.changes.end()) {
        open_.changes.push_back({setting, before, after});
    } else {
        known->after = after;
    }
    endStep();
}

bool SettingEditor::undo() {
    if (depth_ > 0 || done_ == 0) return false;
    const std::vector<Change>& changes = steps_[--done_].changes;
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        changeSetting(info_, change->setting, change->before);
    return true;
}

bool SettingEditor::redo() {
    if (depth_ > 0 || done_ == steps_.size()) return false;
    for (const Change& change : steps_[done_++].changes)
        changeSetting(info_, change.setting, change.after);
    return true;
}

void SettingEditor::forgetSteps() {
    steps_.clear();
    done_ = 0;
}

}  // namespace tavrin
