#include "ui/strip/Shelf.h"

#include <filesystem>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrin {

Shelf::Shelf(const QString& name, const QString& title, PictureList::MarkOf markOf, QWidget* parent)
    : QWidget(parent),
      title_(title),
      list_(std::move(markOf)),
      view_(new StripView(this)),
      count_(new QLabel(this)),
      stop_(new QToolButton(this)),
      line_(new QHBoxLayout),
      follower_([this](FolderPictures pictures) {
          QMetaObject::invokeMethod(
              this, [this, pictures = std::move(pictures)] { take(pictures); }, Qt::QueuedConnection);
      }) {
    view_->setObjectName(name);
    view_->setAccessibleName(title);
    view_->setModel(&list_);
    line_->setContentsMargins(8, 0, 4, 0);
    line_->addWidget(count_);
    line_->addWidget(stop_);
    line_->addStrut(fontMetrics().height() + 8);  // the same for every shelf
    line_->addStretch();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(line_);
    column->addWidget(view_);
    stop_->setObjectName(name + "Stop");
    stop_->setProperty("handler", "stopReading");
    stop_->setText(tr("Stop"));
    stop_->setToolTip(tr("Gives up reading this folder; the pictures that are shown stay"));
    connect(stop_, &QToolButton::clicked, this, &Shelf::stopReading);
    late_.setSingleShot(true);
    connect(&late_, &QTimer::timeout, this, [this] {
        isLate_ = !isListed_;
        tellCount();
    });
    connect(view_, &StripView::opened, this, [this](int row) { emit opened(list_.path(row)); });
    connect(view_, &StripView::walked, this, [this](int step) {
        if (const int row = list_.neighbour(step); row >= 0) emit opened(list_.path(row));
    });
    connect(&list_, &QAbstractItemModel::rowsRemoved, view_, &StripView::viewChanged);
    tellCount();
}

void Shelf::follow(const std::string& folder) {
    if (folder == folder_) return;
    folder_ = folder;
    isListed_ = folder.empty();
    isLate_ = false;
    late_.start(500);
    follower_.follow(folder);
}

void Shelf::show(std::vector<std::string> paths) {
    follow("");
    list_.setPaths(std::move(paths));
    tellCount();
    emit listed();
}

void Shelf::setPresent(const std::string& path, bool stays) {
    list_.setPresent(path);
    if (!stays && !path.empty() && !list_.contains(path)) follow(std::filesystem::path(path).parent_path().string());
    showPresent();
    tellCount();
}

void Shelf::showPresent() {
    const int row = list_.rowOf(list_.present());
    if (row < 0) return;
    view_->setCurrentIndex(list_.index(row));
    view_->showRow(row);
}

void Shelf::setFolded(bool folded) {
    view_->setHidden(folded);
}

void Shelf::stopReading() {
    if (!isListed_) follow("");
    tellCount();
}

/// "Portraits  3 of 12"
void Shelf::tellCount() {
    const bool waits = isLate_ && !isListed_;
    stop_->setVisible(waits);
    const int all = static_cast<int>(list_.paths().size());
    const int row = list_.rowOf(list_.present());
    const int shown = list_.rowCount();
    const QString number = waits         ? tr("the folder is being read...")
                           : shown < all ? tr("%1 of %2 shown").arg(shown).arg(all)
                           : row >= 0    ? tr("%1 of %2").arg(row + 1).arg(all)
                                         : QString::number(all);
    count_->setText(tr("<b>%1</b>&nbsp; %2").arg(title_, number));
}

/// What was listed for a folder that nobody follows any more came too late.
void Shelf::take(const FolderPictures& pictures) {
    if (pictures.folder != folder_) return;
    isListed_ = true;
    if (!pictures.problem.empty()) {  // it may come back, so what is shown stays
        tellCount();
        return emit failed(tr("The folder cannot be read."), QString::fromStdString(pictures.problem));
    }
    if (list_.setPaths(pictures.paths)) {
        showPresent();
    } else {
        list_.distrustThumbnails();
    }
    tellCount();
    emit view_->viewChanged();
    emit listed();
}

}  // namespace tavrin
