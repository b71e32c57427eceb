#pragma once

#include "ui/bind/ControlRow.h"

namespace tavrin {

class Groove;
class NumberField;

/// Label, groove and number field in one row. The groove has the control's own number, whole; the field shows the
/// setting and takes what lies between two positions of the groove, where the setting is no whole number.
class SliderRow : public ControlRow {
    Q_OBJECT

  public:
    explicit SliderRow(const Binding& binding, QWidget* parent = nullptr);
    QWidget* control() const override;

    /// How far an arrow moves the control of a range: a fiftieth, with Shift the least there is, with Ctrl a tenth.
    static double stepFor(const Binding& binding, Qt::KeyboardModifiers modifiers);

  protected:
    void showValue(double setting) override;

  private:
    void moveGroove(int value);
    void step(int direction, Qt::KeyboardModifiers modifiers);
    void enter(double shown);
    /// Holds a value of the control at the ends of the range.
    void take(double value, bool tellEnds);
    double settingOf(double value) const;
    QString shownText(double value) const;

    Groove* groove_;
    NumberField* field_;
};

}  // namespace tavrin
