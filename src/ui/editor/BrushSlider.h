#pragma once

#include <QWidget>

class QLabel;

namespace tavrin {

class Groove;
class NumberField;

/// A slider of a tool, 0 to 100, with its name above and a word at each end.
class BrushSlider : public QWidget {
    Q_OBJECT

  public:
    explicit BrushSlider(const char* name, QWidget* parent = nullptr);

    void setTexts(const QString& text, const QString& least, const QString& most);
    void setTip(const QString& tip);
    int value() const;
    /// Shows a value, unless a hand is on the slider.
    void showValue(int value);

  signals:
    void moved();

  private:
    void step(int direction, Qt::KeyboardModifiers modifiers);

    QLabel *text_, *least_, *most_;
    Groove* groove_;
    NumberField* number_;
};

}  // namespace tavrin
