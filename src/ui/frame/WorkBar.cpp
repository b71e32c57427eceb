#include "ui/frame/WorkBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace tavrin {

WorkBar::WorkBar(const QString& name, const QString& stopTip, QWidget* parent)
    : QWidget(parent), label_(new QLabel(this)), progress_(new QProgressBar(this)), button_(new QToolButton(this)) {
    setObjectName("bar" + name);
    progress_->setObjectName("progress" + name);
    progress_->setFixedWidth(140);
    progress_->setFormat("%v / %m");
    button_->setObjectName("stop" + name);
    button_->setProperty("handler", "stop" + name);
    button_->setText(tr("Stop"));
    button_->setToolTip(stopTip);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part :
         {static_cast<QWidget*>(label_), static_cast<QWidget*>(progress_), static_cast<QWidget*>(button_)})
        line->addWidget(part);
    hide();
    soon_.setSingleShot(true);
    soon_.setInterval(500);
    connect(&soon_, &QTimer::timeout, this, &QWidget::show);
    connect(button_, &QToolButton::clicked, this, [this] {
        label_->setText(tr("Stopping..."));  // the answer comes at once
        if (stop_) stop_();
    });
}

void WorkBar::begin(const QString& what, int all, std::function<void()> stop) {
    label_->setText(what);
    progress_->setAccessibleName(what);
    progress_->setRange(0, all);
    progress_->setValue(0);
    stop_ = std::move(stop);
    soon_.start();
}

void WorkBar::setDone(int done) {
    progress_->setValue(done);
}

void WorkBar::end() {
    soon_.stop();
    hide();
}

}  // namespace tavrin
