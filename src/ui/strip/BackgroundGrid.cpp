#include "ui/strip/BackgroundGrid.h"

#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/files/NameText.h"
#include "ui/strip/PictureDelegate.h"
#include "ui/strip/Strip.h"

namespace tavrin {

namespace {

constexpr QSize kItem(190, 220);

}  // namespace

BackgroundGrid::BackgroundGrid(Strip& strip, QWidget* parent)
    : QDialog(parent), strip_(strip), list_({}), view_(new QListView(this)), count_(new QLabel(this)) {
    setObjectName("backgroundGrid");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("All Backgrounds"));
    layOut();
    list_.setShowsResults(true);
    soon_.setSingleShot(true);
    soon_.setInterval(15);
    connect(&soon_, &QTimer::timeout, this, &BackgroundGrid::fetch);
    connect(view_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { soon_.start(); });
    connect(strip_.backgrounds(), &Shelf::listed, this, &BackgroundGrid::follow);
    connect(&strip_.results(), &Results::backgroundMade, this, &BackgroundGrid::take);
    connect(&strip_.results(), &Results::backgroundsChanged, this, [this] {
        list_.distrustResults();
        fetch();
    });
    connect(&strip_.backgrounds()->list(), &QAbstractItemModel::dataChanged, this,
            [this] { list_.setPresent(strip_.backgrounds()->list().present()); });
    follow();
}

void BackgroundGrid::layOut() {
    view_->setObjectName("backgroundGridView");
    view_->setAccessibleName(tr("The portrait over each background"));
    view_->setViewMode(QListView::IconMode);
    view_->setMovement(QListView::Static);
    view_->setResizeMode(QListView::Adjust);
    view_->setUniformItemSizes(true);
    view_->setGridSize(kItem);
    view_->setItemDelegate(new PictureDelegate(view_, kItem));
    view_->setVerticalScrollMode(QListView::ScrollPerPixel);
    view_->setModel(&list_);
    const auto choose = [this](const QModelIndex& index) { emit chosen(textOfName(list_.path(index.row()))); };
    connect(view_, &QListView::clicked, this, choose);
    connect(view_, &QListView::activated, this, choose);
    auto* column = new QVBoxLayout(this);
    column->addWidget(count_);
    column->addWidget(view_, 1);
    resize(4 * kItem.width() + 60, 2 * kItem.height() + 80);
}

/// The folder of the strip may be another, or have other files.
void BackgroundGrid::follow() {
    list_.setPaths(strip_.backgrounds()->list().paths());
    list_.setPresent(strip_.backgrounds()->list().present());
    soon_.start();
}

void BackgroundGrid::fetch() {
    const int columns = std::max(1, view_->viewport()->width() / kItem.width());
    const int first = view_->verticalScrollBar()->value() / kItem.height() * columns;
    const int last = first + (view_->viewport()->height() / kItem.height() + 2) * columns - 1;
    const int page = last - first + 1;
    list_.keepNear(first - 4 * page, last + 4 * page);
    const std::vector<std::string> wanted = list_.wantedResults(first, last);
    count_->setText(list_.paths().empty() ? tr("No folder of backgrounds was chosen yet.")
                    : wanted.empty()
                        ? tr("%1 backgrounds. A click lays one behind the portrait.").arg(list_.rowCount())
                        : tr("%1 pictures are being made...").arg(wanted.size()));
    strip_.results().wantBackgrounds(wanted, static_cast<int>(kItem.height() * devicePixelRatioF()));
}

void BackgroundGrid::take(const std::string& background, const QImage& picture, const QString& problem) {
    if (!problem.isEmpty()) list_.takeThumbnail(background, {{}, problem.toStdString()});
    list_.takeResult(background, picture);
    if (!soon_.isActive()) soon_.start();
}

void BackgroundGrid::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    soon_.start();
}

void BackgroundGrid::done(int result) {
    strip_.results().wantBackgrounds({}, 0);
    QDialog::done(result);
}

}  // namespace tavrin
