#pragma once

#include <functional>

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tavrin {

/// How far a work is that takes more than half a second, and a button that stops it. Shorter ones show nothing.
class WorkBar : public QWidget {
    Q_OBJECT

  public:
    explicit WorkBar(QWidget* parent = nullptr);

    void begin(const QString& what, int all, std::function<void()> stop);
    void setDone(int done);
    void end();

  private:
    QLabel* label_;
    QProgressBar* progress_;
    QToolButton* button_;
    QTimer soon_;
    std::function<void()> stop_;
};

}  // namespace tavrin
