#pragma once

#include <functional>
#include <vector>

#include <QFrame>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

class QHBoxLayout;

namespace tavrin {

/// Messages of the window in a bar above the picture. A notice goes by itself; what failed stays until it is closed
/// or something newer comes, and has its reason behind "Details". A question stays above them until it is answered.
class MessageBar : public QFrame {
    Q_OBJECT

  public:
    /// An answer to a question: a button.
    struct Answer {
        const char* id;  ///< name of the button
        QString text, toolTip;
        std::function<void()> run;
    };

    explicit MessageBar(QWidget* parent = nullptr);

    void tell(const QString& line);
    void fail(const QString& line, const QString& details);
    /// Takes the place of an older question.
    void ask(const QString& question, std::vector<Answer> answers);
    QString message() const { return isHidden() || line_->isHidden() ? QString() : text_->text(); }
    QString details() const { return details_->text(); }
    /// The question that waits, or "".
    QString question() const { return questionText_ ? questionText_->text() : QString(); }

  private:
    QToolButton* button(const char* id, const QString& text, const QString& toolTip);
    void showLine(const QString& line, const QString& details);
    void endMessage();
    void endQuestion();

    QWidget* line_;  ///< the message
    QLabel *text_, *details_;
    QToolButton* more_;
    QWidget* question_ = nullptr;
    QLabel* questionText_ = nullptr;
    QTimer timer_;
};

}  // namespace tavrin
