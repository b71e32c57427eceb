#pragma once

#include <vector>

#include <QObject>

#include "ui/bind/ControlRow.h"

namespace tavrin {

/// Ties rows of controls to settings: reads a control into its setting, shows settings in their controls, resets
/// them, and makes one step of undo of one drag. Every change asks the loop for a picture.
class Binder : public QObject {
    Q_OBJECT

  public:
    explicit Binder(SettingEditor& editor, QObject* parent = nullptr);

    SettingEditor& editor() const { return editor_; }
    /// Ties a row to the setting of its binding; both live as long as the binder.
    void bind(ControlRow* row);
    const std::vector<ControlRow*>& rows() const { return rows_; }

    /// Puts the defaults of a group back, as one step.
    void resetGroup(const BindingGroup& group);
    /// Whether the effect of a group is on for the picture at hand; and off it goes, as one step.
    bool isOn(const BindingGroup& group) const;
    /// What is on, such as "Shadow: wall".
    QString onWords(const BindingGroup& group) const;
    void switchOff(const BindingGroup& group);
    /// Shows every setting in its control.
    void UpdateAllUI();
    /// As an action changes several settings: one step, a new picture, and every control shows what became of it.
    void run(const QString& label, const std::function<void(SettingEditor&)>& action);
    void undo();
    void redo();
    /// Takes back or does again until that many steps are in force.
    void goTo(std::size_t done);

    std::string settingOf(const Binding& binding) const;

  signals:
    /// A setting was changed, done again or taken back.
    void changed();
    /// The controls show the settings anew.
    void shown();
    void told(const QString& line);

  private:
    void change(const Binding& binding, double setting);
    void reset(const Binding& binding);
    bool isOn(const OnSetting& one) const;
    void finish();
    void showAll();
    void show(ControlRow& row) const;

    SettingEditor& editor_;
    std::vector<ControlRow*> rows_;
};

/// A value of a setting as text, whole where the mapping says so.
std::string settingText(const Mapping& mapping, double setting);

}  // namespace tavrin
