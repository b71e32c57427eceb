#pragma once

#include <QLineEdit>

namespace tavrin {

/// A number that can be typed. What is no number leaves the old one.
class NumberField : public QLineEdit {
    Q_OBJECT

  public:
    explicit NumberField(int decimals, QWidget* parent = nullptr);
    /// Shows a number, unless somebody is typing another one.
    void setNumber(double number);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    void entered(double number);
    void refused(const QString& text);
    void stepped(int direction, Qt::KeyboardModifiers modifiers);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void readText();
    QString shown() const;

    int decimals_;
    double number_ = 0.0;
};

}  // namespace tavrin
