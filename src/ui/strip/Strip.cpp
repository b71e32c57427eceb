#include "ui/strip/Strip.h"

#include <algorithm>
#include <filesystem>

#include <QComboBox>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "core/files/StandardPath.h"
#include "ui/WindowSettings.h"
#include "ui/bind/WheelGuard.h"
#include "ui/strip/PictureDelegate.h"

namespace tavrin {

namespace {

constexpr const char* kFoldedKey = "folded/strip";
constexpr std::size_t kMarksToTakeBack = 200;

/// Each with the mark that it shows; the first one shows all.
constexpr std::optional<PictureMark> kFilters[] = {std::nullopt, PictureMark::none, PictureMark::keep,
                                                   PictureMark::reject, PictureMark::lookAgain};

}  // namespace

Strip::Strip(SystemInfo& info, QWidget* parent)
    : QWidget(parent),
      info_(info),
      marks_(Places::current().xmlFolder() + "Marks"),
      ahead_(std::make_shared<ReadAhead>()),
      portraits_(new Shelf(
          "portraitStrip", tr("Portraits"), [this](const std::string& path) { return marks_.mark(path); }, this)),
      backgrounds_(new Shelf("backgroundStrip", tr("Backgrounds"), {}, this)),
      results_(info),
      loader_([this](const std::string& path, Thumbnail thumbnail) {
          QMetaObject::invokeMethod(
              this,
              [this, path, thumbnail = std::move(thumbnail)] {
                  portraits_->list().takeThumbnail(path, thumbnail);
                  backgrounds_->list().takeThumbnail(path, thumbnail);
              },
              Qt::QueuedConnection);
      }) {
    setObjectName("strip");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 2, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(portraits_, 5);
    layout->addWidget(backgrounds_, 2);
    portraits_->view()->setSelectionMode(QAbstractItemView::ExtendedSelection);
    portraits_->line()->addWidget(makeFilter());
    auto* folder = new QToolButton(backgrounds_);
    folder->setObjectName("choosePickDirectory");
    folder->setProperty("handler", "choosePickDirectory");
    folder->setProperty("quiet", true);
    folder->setText(tr("Folder..."));
    folder->setAccessibleName(tr("Folder of the backgrounds"));
    folder->setToolTip(tr("Chooses the folder whose backgrounds stand here"));
    backgrounds_->line()->addWidget(folder);
    connect(folder, &QToolButton::clicked, this, &Strip::pickFolderWanted);
    for (Shelf* shelf : {portraits_, backgrounds_})
        connectShelf(shelf);
    info_.readSource = [ahead = ahead_](const std::string& path) { return ahead->read(path); };
    connectResults();
    setFolded(windowSettings().value(kFoldedKey).toBool());
}

/// The shelves ask for marks, and the state for what was read ahead.
Strip::~Strip() {
    info_.readSource = nullptr;
    delete portraits_;
    delete backgrounds_;
}

QComboBox* Strip::makeFilter() {
    auto* filter = new QComboBox(portraits_);
    filter->setObjectName("markFilter");
    filter->setProperty("handler", "chooseFilter");
    filter->setAccessibleName(tr("Portraits shown"));
    filter->setToolTip(tr("Shows only the portraits with this mark"));
    filter->setFrame(false);
    filter->addItems({tr("All"), tr("Unmarked"), tr("Keep"), tr("Reject"), tr("Look again")});
    new WheelGuard(filter);
    connect(filter, &QComboBox::activated, this, &Strip::chooseFilter);
    return filter;
}

void Strip::chooseFilter(int entry) {
    portraits_->list().setFilter(kFilters[entry]);
    portraits_->tellCount();
    portraits_->showPresent();
}

void Strip::connectShelf(Shelf* shelf) {
    const bool isPortraits = shelf == portraits_;
    connect(shelf, &Shelf::failed, this, &Strip::failed);
    connect(shelf->view(), &StripView::viewChanged, this, &Strip::fetchThumbnails);
    connect(shelf, &Shelf::opened, this, [this, isPortraits](const std::string& path) {
        isPortraits ? emit portraitWanted(textOfName(path)) : emit backgroundWanted(textOfName(path));
    });
    if (!isPortraits) return;
    connect(shelf, &Shelf::listed, this, &Strip::openFirst);
    connect(shelf, &Shelf::failed, this, [this] { opensFirst_ = false; });
}

void Strip::follow() {
    portraits_->setPresent(info_.pForegroundBitmapInfo->sSourceImageFullPath);
    const bool picks = !info_.oQLXInfo->sPickDirectory.load().empty();
    backgrounds_->setPresent(info_.pBackgroundBitmapInfo->sSourceImageFullPath, picks);
    followPickDirectory();
}

void Strip::followPickDirectory() {
    const std::string folder = standardizePath(info_.oQLXInfo->sPickDirectory);
    if (!folder.empty()) backgrounds_->follow(folder);
}

void Strip::openFolder(const QString& folder) {
    const std::string name = standardizePath(nameOfText(folder));
    opensFirst_ = true;
    portraits_->follow("");  // the same folder is looked at anew
    portraits_->follow(name);
}

void Strip::openPictures(const QStringList& paths) {
    std::vector<std::string> names;
    std::ranges::transform(paths, std::back_inserter(names), nameOfText);
    opensFirst_ = true;
    portraits_->show(std::move(names));
}

/// The first picture of a folder that was opened, once that is listed.
void Strip::openFirst() {
    if (!std::exchange(opensFirst_, false)) return;
    if (portraits_->list().paths().empty()) {
        emit failed(tr("There is no picture in the folder."), textOfName(portraits_->folder()));
    } else {
        emit portraitWanted(textOfName(portraits_->list().paths().front()));
    }
}

void Strip::walk(int step) {
    emit portraits_->view()->walked(step);
}

void Strip::setMark(const std::string& path, PictureMark mark) {
    const std::string problem = marks_.setMark(path, mark);
    portraits_->list().markChanged(path);
    portraits_->tellCount();
    if (!problem.empty()) emit failed(tr("The mark is not kept."), QString::fromStdString(problem));
    emit marksChanged();
}

/// Where to go is asked before the filter takes the portrait away.
void Strip::mark(PictureMark mark) {
    PictureList& list = portraits_->list();
    const std::string path = list.present();
    if (path.empty()) return;
    int next = mark == PictureMark::reject ? list.neighbour(1) : -1;
    if (mark == PictureMark::reject && next < 0) next = list.neighbour(-1);
    const std::string after = next < 0 ? std::string() : list.path(next);
    marked_.push_back({path, marks_.mark(path)});
    if (marked_.size() > kMarksToTakeBack) marked_.pop_front();
    setMark(path, mark);
    if (!after.empty()) emit portraitWanted(textOfName(after));
}

void Strip::takeMarkBack() {
    if (marked_.empty()) return;
    const Marked last = std::move(marked_.back());
    marked_.pop_back();
    setMark(last.path, last.before);
    if (last.path != portraits_->list().present()) emit portraitWanted(textOfName(last.path));
}

/// What can be seen comes first, then a page to either side. What lies further away costs nothing.
void Strip::fetchThumbnails() {
    std::vector<std::string> seen, near;
    if (!folded_) {
        for (Shelf* shelf : {portraits_, backgrounds_}) {
            PictureList& list = shelf->list();
            const auto [first, last] = shelf->view()->visibleRows();
            const int page = last - first + 1;
            list.keepNear(first - 2 * page, last + 2 * page);
            std::ranges::copy(list.wanted(first, last), std::back_inserter(seen));
            std::ranges::copy(list.wanted(last + 1, last + page), std::back_inserter(near));
            std::ranges::copy(list.wanted(first - page, first - 1), std::back_inserter(near));
        }
    }
    const std::size_t count = seen.size();
    std::ranges::move(near, std::back_inserter(seen));
    constexpr int kPoints = 80;  // the longer side of a picture on the screen
    const bool isFine = kPoints * devicePixelRatioF() > static_cast<int>(ThumbnailSize::normal);
    fetchResults();
    loader_.want(std::move(seen), count, isFine ? ThumbnailSize::large : ThumbnailSize::normal);
}

void Strip::readAhead(CombineThread& loop) {
    results_.follow(loop);
    const PictureList& list = portraits_->list();
    std::vector<std::string> wanted{list.present()};
    for (const int step : {1, -1})
        if (const int row = list.neighbour(step); row >= 0) wanted.push_back(list.path(row));
    results_.wantNext({wanted.begin() + 1, wanted.end()});
    ahead_->want(std::move(wanted));
}

void Strip::connectResults() {
    connect(&results_, &Results::portraitMade, this, [this](const std::string& portrait, const QImage& picture) {
        portraits_->list().takeResult(portrait, picture);
    });
    connect(&results_, &Results::portraitsChanged, this, [this] {
        portraits_->list().distrustResults();
        fetchResults();
    });
}

void Strip::showResults(bool shows) {
    portraits_->list().setShowsResults(shows);
    fetchResults();
}

/// Only those that can be seen: each takes a while.
void Strip::fetchResults() {
    std::vector<std::string> wanted;
    const PictureList& list = portraits_->list();
    if (!folded_ && list.showsResults()) {
        const auto [first, last] = portraits_->view()->visibleRows();
        wanted = list.wantedResults(first, last);
    }
    const int side = static_cast<int>(PictureDelegate::kItem.height() * devicePixelRatioF());
    results_.wantPortraits(wanted, side);
}

bool Strip::isReadAhead(const QString& path) const {
    return ahead_->has(nameOfText(path));
}

void Strip::setFolded(bool folded) {
    folded_ = folded;
    windowSettings().setValue(kFoldedKey, folded);
    for (Shelf* shelf : {portraits_, backgrounds_})
        shelf->setFolded(folded);
    fetchThumbnails();
}

QStringList Strip::selectedPortraits() const {
    std::vector<int> rows;
    for (const QModelIndex& index : portraits_->view()->selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    std::ranges::sort(rows);
    QStringList paths;
    for (const int row : rows)
        paths.append(textOfName(portraits_->list().path(row)));
    return paths;
}

}  // namespace tavrin
