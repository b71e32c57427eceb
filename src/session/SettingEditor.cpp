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
    if (depth_++ > 0) return;
    open_ = {};
    open_.label = label;
}

void SettingEditor::endStep() {
    if (depth_ == 0 || --depth_ > 0) return;
    std::erase_if(open_.changes, [](const Change& change) { return change.before == change.after; });
    if (open_.changes.empty() && !open_.elsewhere.takeBack) return;
    open_.number = ++lastNumber_;
    history_.steps.resize(history_.done);  // what was taken back and not done again is gone
    history_.steps.push_back(std::exchange(open_, {}));
    history_.done = history_.steps.size();
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

void SettingEditor::note(Elsewhere elsewhere) {
    beginStep("");
    open_.elsewhere = std::move(elsewhere);
    endStep();
}

bool SettingEditor::undo() {
    if (depth_ > 0 || history_.done == 0) return false;
    const Step& step = history_.steps[--history_.done];
    for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
        changeSetting(info_, change->setting, change->before);
    if (step.elsewhere.takeBack) step.elsewhere.takeBack();
    return true;
}

bool SettingEditor::redo() {
    if (depth_ > 0 || history_.done == history_.steps.size()) return false;
    const Step& step = history_.steps[history_.done++];
    for (const Change& change : step.changes)
        changeSetting(info_, change.setting, change.after);
    if (step.elsewhere.doAgain) step.elsewhere.doAgain();
    return true;
}

bool SettingEditor::dropStep(std::uint64_t number) {
    if (history_.done == 0 || history_.done < history_.steps.size() || history_.steps.back().number != number ||
        !undo())
        return false;
    history_.steps.pop_back();
    return true;
}

void SettingEditor::goTo(std::size_t done) {
    while (history_.done > done && undo()) {
    }
    while (history_.done < done && redo()) {
    }
}

std::uint64_t SettingEditor::position() const {
    for (std::size_t i = history_.done; i > 0; --i)
        if (const Step& step = history_.steps[i - 1]; !step.changes.empty()) return step.number;
    return 0;
}

void SettingEditor::setHistory(History history) {
    history_ = std::move(history);
    history_.done = std::min(history_.done, history_.steps.size());
    open_.changes.clear();
    open_.elsewhere = {};
    for (const Step& step : history_.steps)
        lastNumber_ = std::max(lastNumber_, step.number);
}

}  // namespace tavrin
