#include "ui/batch/BatchProgress.h"

#include <algorithm>

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tavrin {

BatchProgress::BatchProgress(QWidget* parent)
    : QWidget(parent), bar_(new QProgressBar(this)), left_(new QLabel(this)) {
    setObjectName("batchProgress");
    bar_->setObjectName("batchProgressBar");
    bar_->setAccessibleName(tr("Progress of the batch"));
    bar_->setFormat("%v / %m");
    left_->setObjectName("batchTimeLeft");
    left_->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(bar_);
    column->addWidget(left_);
    hide();
}

void BatchProgress::begin(int all) {
    all_ = all;
    ended_ = failed_ = skipped_ = 0;
    since_.start();
    bar_->show();
    show();
    refresh();
}

void BatchProgress::setAll(int all) {
    all_ = all;
    refresh();
}

void BatchProgress::addOne(bool failed) {
    ++ended_;
    failed_ += failed ? 1 : 0;
    refresh();
}

QString BatchProgress::span(double seconds) {
    const int whole = qRound(seconds);
    if (whole < 60) return tr("%1 s").arg(whole);
    if (whole < 3600) return tr("%1 min %2 s").arg(whole / 60).arg(whole % 60);
    return tr("%1 h %2 min").arg(whole / 3600).arg(whole % 3600 / 60);
}

/// A watch makes more than it saw at first.
void BatchProgress::refresh() {
    const int all = std::max(all_, ended_);
    bar_->setRange(0, std::max(all, 1));
    bar_->setValue(ended_);
    if (ended_ == 0 || ended_ == all) return left_->setText(tr("Working..."));
    const double each = static_cast<double>(since_.elapsed()) / 1000.0 / ended_;
    left_->setText(tr("About %1 left").arg(span(each * (all - ended_))));
}

QString BatchProgress::sums() const {
    QString line = tr("Pictures made: %1, in %2").arg(made()).arg(span(static_cast<double>(since_.elapsed()) / 1000));
    if (skipped_ > 0) line += tr("; made before: %1").arg(skipped_);
    if (failed_ > 0) line += tr("; failed: %1").arg(failed_);
    return line;
}

void BatchProgress::end() {
    bar_->hide();
    left_->setText(sums());
}

}  // namespace tavrin
