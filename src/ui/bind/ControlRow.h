#pragma once

#include <QToolButton>
#include <QWidget>

#include "ui/bind/Binding.h"

class QButtonGroup;
class QCheckBox;

namespace tavrin {

/// A control with its label and the dot that marks a value away from the default and, pressed, brings it back. It
/// speaks of settings; the mapping to the control's own number is inside.
class ControlRow : public QWidget {
    Q_OBJECT

  public:
    explicit ControlRow(const Binding& binding, QWidget* parent = nullptr);

    const Binding& binding() const { return binding_; }
    /// Shows a value of the setting.
    void showSetting(double setting);
    bool isAtDefault() const;
    /// The value in the words of the control, such as "110" or "Dark"; "" for a box.
    QString valueText() const;
    /// Room that the label takes, so that the rows of a panel can be made to stand in line; 0 without one of its own.
    int labelWidth() const;
    void setLabelWidth(int width);
    /// The widget that has the control's name.
    virtual QWidget* control() const = 0;

    static QString translated(const char* text);

  signals:
    /// Between these two lies one drag; what changes outside of them is a change by itself.
    void began();
    void ended();
    void changed(double setting);
    void resetWanted();
    /// One plain sentence for the person at the control.
    void told(const QString& line);

  protected:
    virtual void showValue(double setting) = 0;
    /// The dot, and label and dot together, for the row's layout.
    QToolButton* makeDot(QWidget* parent);
    QWidget* makeLabel(QWidget* buddy);
    bool eventFilter(QObject* watched, QEvent* event) override;
    double settingShown() const { return setting_; }

    const Binding& binding_;

  private:
    QToolButton* dot_ = nullptr;
    QWidget *label_ = nullptr, *labelHolder_ = nullptr;
    double setting_ = 0.0;
};

/// A box that is on or off.
class BoxRow : public ControlRow {
  public:
    explicit BoxRow(const Binding& binding, QWidget* parent = nullptr);
    QWidget* control() const override;

  protected:
    void showValue(double setting) override;

  private:
    QCheckBox* box_;
};

/// A few buttons in a row, one of which is in force. A value that none of them has shows none.
class ChoiceRow : public ControlRow {
    Q_OBJECT

  public:
    explicit ChoiceRow(const Binding& binding, QWidget* parent = nullptr);
    QWidget* control() const override;

  protected:
    void showValue(double setting) override;

  private:
    QButtonGroup* buttons_;
    QWidget* segments_;
};

/// The row for a binding: box, choice or slider.
ControlRow* makeRow(const Binding& binding, QWidget* parent);

}  // namespace tavrin
