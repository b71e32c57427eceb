#pragma once

#include <QObject>

namespace tavrin {

/// Holds tool tips back while a button of the mouse is down or the wheel has just turned, so that none covers what is
/// being done, and all of them while nobody wants any.
class TipGuard : public QObject {
  public:
    /// @param parent the whole program's events pass by here as long as it lives
    explicit TipGuard(QObject* parent);

    /// Kept for the next start.
    void setWanted(bool wanted);
    bool areWanted() const { return wanted_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool wanted_;
    qint64 lastTurn_ = 0;  ///< of the wheel, in milliseconds; 0: never
};

}  // namespace tavrin
