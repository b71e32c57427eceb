#include "ui/bind/Binder.h"

#include <charconv>
#include <cmath>

namespace tavrin {

namespace {

double numberOf(const std::string& text) {
    double number = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

}  // namespace

std::string settingText(const Mapping& mapping, double setting) {
    char digits[64];
    if (mapping.decimals == 0)
        return {digits, std::to_chars(digits, digits + sizeof digits, static_cast<long long>(setting)).ptr};
    return {digits, std::to_chars(digits, digits + sizeof digits, setting).ptr};
}

Binder::Binder(SettingEditor& editor, QObject* parent) : QObject(parent), editor_(editor) {}

std::string Binder::settingOf(const Binding& binding) const {
    return ownerPrefix(editor_.info(), binding.owner) + binding.setting;
}

void Binder::bind(ControlRow* row) {
    rows_.push_back(row);
    const Binding& binding = row->binding();
    connect(row, &ControlRow::began, this,
            [this, &binding] { editor_.beginStep(ControlRow::translated(binding.label).toStdString()); });
    connect(row, &ControlRow::ended, this, [this] {
        editor_.endStep();
        emit changed();
    });
    connect(row, &ControlRow::changed, this, [this, &binding](double setting) { change(binding, setting); });
    connect(row, &ControlRow::resetWanted, this, [this, &binding] { reset(binding); });
    connect(row, &ControlRow::told, this, &Binder::told);
    row->showSetting(numberOf(editor_.value(settingOf(binding))));
}

void Binder::change(const Binding& binding, double setting) {
    run(ControlRow::translated(binding.label), [&](SettingEditor& editor) {
        const std::string problem = editor.set(settingOf(binding), settingText(*binding.mapping, setting));
        if (!problem.empty()) emit told(QString::fromStdString(problem));
        if (binding.handler->then) binding.handler->then(editor, ownerPrefix(editor.info(), binding.owner));
    });
}

void Binder::reset(const Binding& binding) {
    change(binding, binding.reset);
}

void Binder::resetGroup(const BindingGroup& group) {
    run(tr("Reset %1").arg(ControlRow::translated(group.title)), [&](SettingEditor& editor) {
        for (const Binding& binding : group.bindings)
            editor.set(settingOf(binding), settingText(*binding.mapping, binding.reset));
        if (group.reset->then) group.reset->then(editor, ownerPrefix(editor.info(), Owner::active));
    });
}

void Binder::run(const QString& label, const std::function<void(SettingEditor&)>& action) {
    editor_.beginStep(label.toStdString());
    action(editor_);
    editor_.endStep();
    finish();
}

void Binder::undo() {
    if (editor_.undo()) finish();
}

void Binder::redo() {
    if (editor_.redo()) finish();
}

void Binder::goTo(std::size_t done) {
    editor_.goTo(done);
    finish();
}

void Binder::finish() {
    editor_.info().StartUpdate();
    UpdateAllUI();
    emit changed();
}

void Binder::UpdateAllUI() {
    for (ControlRow* row : rows_)
        row->showSetting(numberOf(editor_.value(settingOf(row->binding()))));
    emit shown();
}

}  // namespace tavrin
