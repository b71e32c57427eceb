#include "ui/frame/MessageBar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tavrin {

namespace {

QLabel* plainLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);  // names of files come from anywhere
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), line_(new QWidget(this)), text_(plainLabel(line_)), details_(plainLabel(this)) {
    setObjectName("messageBar");
    setAccessibleName(tr("Messages"));
    more_ = button("messageDetails", tr("Details"), tr("Show the reason"));
    more_->setProperty("handler", "showDetails");
    more_->setCheckable(true);
    connect(more_, &QToolButton::toggled, details_, &QWidget::setVisible);
    QToolButton* close = button("messageClose", tr("Close"), tr("Close this message"));
    close->setProperty("handler", "closeMessage");
    connect(close, &QToolButton::clicked, this, &MessageBar::endMessage);
    auto* line = new QHBoxLayout(line_);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(text_, 1);
    line->addWidget(more_);
    line->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 8, 6);
    layout->addWidget(line_);
    layout->addWidget(details_);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &MessageBar::endMessage);
    endMessage();
}

QToolButton* MessageBar::button(const char* id, const QString& text, const QString& toolTip) {
    auto* button = new QToolButton(this);
    button->setObjectName(id);
    button->setProperty("handler", id);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void MessageBar::showLine(const QString& line, const QString& details) {
    text_->setText(line);
    details_->setText(details);
    more_->setVisible(!details.isEmpty());
    more_->setChecked(false);
    details_->hide();
    line_->show();
    show();
}

void MessageBar::endMessage() {
    line_->hide();
    details_->hide();
    setVisible(question_ != nullptr);
}

void MessageBar::tell(const QString& line) {
    showLine(line, QString());
    timer_.start(6000);
}

void MessageBar::fail(const QString& line, const QString& details) {
    timer_.stop();
    showLine(line, details);
}

void MessageBar::ask(const QString& question, std::vector<Answer> answers) {
    endQuestion();
    question_ = new QWidget(this);
    questionText_ = plainLabel(question_);
    questionText_->setText(question);
    auto* line = new QHBoxLayout(question_);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(questionText_, 1);
    for (Answer& answer : answers) {
        QToolButton* choice = button(answer.id, answer.text, answer.toolTip);
        line->addWidget(choice);
        connect(choice, &QToolButton::clicked, this, [this, run = std::move(answer.run)] {
            endQuestion();
            run();  // may ask again
        });
    }
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, question_);
    show();
}

void MessageBar::endQuestion() {
    if (!question_) return;
    question_->hide();
    question_->deleteLater();  // its button is still at work
    question_ = nullptr;
    questionText_ = nullptr;
    setVisible(!line_->isHidden());
}

}  // namespace tavrin
