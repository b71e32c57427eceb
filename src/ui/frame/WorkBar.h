#pragma once

#include <functional>

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tavrin {

/// How far a work is that takes more than half a second, and a button that stops it. Shorter ones show nothing, and
/// one of which nobody knows how long it takes only that it goes on.
class WorkBar : public QWidget {
    Q_OBJECT

  public:
    /// @param name of the work, by which its parts are found ("stopWork")
    /// @param stopTip what stopping does
    WorkBar(const QString& name, const QString& stopTip, QWidget* parent = nullptr);

    /// @param all how much there is to do; 0 where nobody knows
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
