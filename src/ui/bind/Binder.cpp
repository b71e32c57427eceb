#include "ui/bind/Binder.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tavrin {

namespace {

double numberOf(const std::string& text) {
    double number = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

void setOff(SettingEditor& editor, const PanelActs& acts) {
    for (const OnSetting& one : acts.switches)
        editor.set(one.setting, one.off);
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
    show(*row);
}

void Binder::change(const Binding& binding, double setting) {
    const Handler& handler = *binding.handler;
    editor_.beginStep(ControlRow::translated(binding.label).toStdString());
    const std::string problem = editor_.set(settingOf(binding), settingText(*binding.mapping, setting));
    if (!problem.empty()) emit told(QString::fromStdString(problem));
    if (handler.then) handler.then(editor_, ownerPrefix(editor_.info(), binding.owner));
    editor_.endStep();
    if (!handler.asksWhen || handler.asksWhen(editor_.info())) editor_.info().StartUpdate();
    showAll();
}

void Binder::reset(const Binding& binding) {
    change(binding, binding.reset);
}

void Binder::resetGroup(const BindingGroup& group) {
    run(tr("Reset %1").arg(ControlRow::translated(group.title)), [&](SettingEditor& editor) {
        for (const Binding& binding : group.bindings)
            editor.set(settingOf(binding), settingText(*binding.mapping, binding.reset));
        if (group.acts) setOff(editor, *group.acts);
        if (group.reset->then) group.reset->then(editor, ownerPrefix(editor.info(), Owner::active));
    });
}

bool Binder::isOn(const OnSetting& one) const {
    const std::string value = editor_.value(one.setting);
    return value != one.off && value != "0";
}

bool Binder::isOn(const BindingGroup& group) const {
    return group.acts &&
           std::ranges::any_of(group.acts->switches, [this](const OnSetting& one) { return isOn(one); });
}

QString Binder::onWords(const BindingGroup& group) const {
    const QString title = ControlRow::translated(group.title);
    QStringList words;
    if (group.acts->word) words.append(group.acts->word(editor_.info()));
    for (const OnSetting& one : group.acts->switches) {
        if (group.acts->word || !isOn(one)) continue;
        const double value = numberOf(editor_.value(one.setting));
        for (const Binding& binding : group.bindings)
            for (const Choice& choice : binding.choices)
                if (binding.setting == std::string_view(one.setting) && choice.value == value)
                    words.append(ControlRow::translated(choice.label));
    }
    words.removeAll(QString());
    return words.isEmpty() ? title : tr("%1: %2").arg(title, words.join(QStringLiteral(", ")));
}

void Binder::switchOff(const BindingGroup& group) {
    run(tr("%1 off").arg(ControlRow::translated(group.title)),
        [&](SettingEditor& editor) { setOff(editor, *group.acts); });
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
    showAll();
}

void Binder::showAll() {
    UpdateAllUI();
    emit changed();
}

void Binder::show(ControlRow& row) const {
    const Binding& binding = row.binding();
    if (binding.enabledWhen) row.setEnabled(binding.enabledWhen(editor_.info()));
    row.showSetting(numberOf(editor_.value(settingOf(binding))));
}

void Binder::UpdateAllUI() {
    for (ControlRow* row : rows_)
        show(*row);
    emit shown();
}

}  // namespace tavrin
