#pragma once

#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

namespace tavrin {

/// Messages of the window in a bar above the picture. A notice goes by itself; what failed stays until it is closed
/// or something newer comes, and has its reason behind "Details".
class MessageBar : public QFrame {
    Q_OBJECT

  public:
    explicit MessageBar(QWidget* parent = nullptr);

    void tell(const QString& line);
    void fail(const QString& line, const QString& details);
    QString message() const { return isHidden() ? QString() : text_->text(); }
    QString details() const { return details_->text(); }

  private:
    void showLine(const QString& line, const QString& details);

    QLabel *text_, *details_;
    QToolButton* more_;
    QTimer timer_;
};

}  // namespace tavrin
