#include "ui/frame/MessageBar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tavrin {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), details_(new QLabel(this)), more_(new QToolButton(this)) {
    setObjectName("messageBar");
    setAccessibleName(tr("Messages"));
    for (QLabel* label : {text_, details_}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);  // names of files come from anywhere
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    more_->setObjectName("messageDetails");
    more_->setProperty("handler", "showDetails");
    more_->setText(tr("Details"));
    more_->setToolTip(tr("Show the reason"));
    more_->setCheckable(true);
    connect(more_, &QToolButton::toggled, details_, &QWidget::setVisible);
    auto* close = new QToolButton(this);
    close->setObjectName("messageClose");
    close->setProperty("handler", "closeMessage");
    close->setText(tr("Close"));
    close->setToolTip(tr("Close this message"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* line = new QHBoxLayout;
    line->addWidget(text_, 1);
    line->addWidget(more_);
    line->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 6, 8, 6);
    layout->addLayout(line);
    layout->addWidget(details_);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
    hide();
}

void MessageBar::showLine(const QString& line, const QString& details) {
    text_->setText(line);
    details_->setText(details);
    more_->setVisible(!details.isEmpty());
    more_->setChecked(false);
    details_->hide();
    show();
}

void MessageBar::tell(const QString& line) {
    showLine(line, QString());
    timer_.start(6000);
}

void MessageBar::fail(const QString& line, const QString& details) {
    timer_.stop();
    showLine(line, details);
}

}  // namespace tavrin
