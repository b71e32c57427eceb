#include "ui/strip/PictureList.h"

#include <algorithm>
#include <unordered_set>

#include "core/files/NameText.h"
#include "core/files/StandardPath.h"

namespace tavrin {

QString markWord(PictureMark mark) {
    switch (mark) {
        case PictureMark::keep:
            return PictureList::tr("keep");
        case PictureMark::reject:
            return PictureList::tr("reject");
        case PictureMark::lookAgain:
            return PictureList::tr("look again");
        default:
            return {};
    }
}

PictureList::PictureList(MarkOf markOf, QObject* parent) : QAbstractListModel(parent), markOf_(std::move(markOf)) {}

bool PictureList::setPaths(std::vector<std::string> paths) {
    if (paths == paths_) return false;
    beginResetModel();
    paths_ = std::move(paths);
    indexOf_.clear();
    for (std::size_t i = 0; i < paths_.size(); ++i)
        indexOf_.emplace(paths_[i], i);
    std::erase_if(small_, [this](const auto& entry) { return !contains(entry.first); });
    std::erase_if(results_, [this](const auto& entry) { return !contains(entry.first); });
    shown_.clear();
    for (std::size_t i = 0; i < paths_.size(); ++i)
        if (!filter_ || markAt(i) == *filter_) shown_.push_back(i);
    endResetModel();
    return true;
}

void PictureList::setFilter(std::optional<PictureMark> filter) {
    if (filter == filter_) return;
    filter_ = filter;
    std::vector<std::string> paths;
    paths.swap(paths_);  // so that they are others than before
    setPaths(std::move(paths));
}

void PictureList::setPresent(const std::string& path) {
    if (path == present_) return;
    const std::string before = std::exchange(present_, path);
    tellChanged(before);
    tellChanged(present_);
}

/// A picture that the filter no longer shows goes, one that it shows now comes in its place.
void PictureList::markChanged(const std::string& path) {
    const auto found = indexOf_.find(path);
    if (found == indexOf_.end()) return;
    const auto place = std::ranges::lower_bound(shown_, found->second);
    const bool isShown = place != shown_.end() && *place == found->second;
    const bool belongs = !filter_ || markAt(found->second) == *filter_;
    const int row = static_cast<int>(place - shown_.begin());
    if (isShown && !belongs) {
        beginRemoveRows({}, row, row);
        shown_.erase(place);
        endRemoveRows();
    } else if (!isShown && belongs) {
        beginInsertRows({}, row, row);
        shown_.insert(place, found->second);
        endInsertRows();
    } else {
        tellChanged(path);
    }
}

void PictureList::tellChanged(const std::string& path) {
    if (const int row = rowOf(path); row >= 0) emit dataChanged(index(row), index(row));
}

void PictureList::takeThumbnail(const std::string& path, const Thumbnail& thumbnail) {
    if (!contains(path)) return;
    small_[path] = {QPixmap::fromImage(thumbnail.pixels), QString::fromStdString(thumbnail.error)};
    tellChanged(path);
}

std::vector<std::string> PictureList::wanted(int first, int last) const {
    std::vector<std::string> paths;
    for (int row = std::max(first, 0); row <= std::min(last, rowCount() - 1); ++row) {
        const auto found = small_.find(path(row));
        if (found == small_.end() || !found->second.isTrusted) paths.push_back(path(row));
    }
    return paths;
}

void PictureList::keepNear(int first, int last) {
    std::unordered_set<std::string> near;
    for (int row = std::max(first, 0); row <= std::min(last, rowCount() - 1); ++row)
        near.insert(path(row));
    std::erase_if(small_, [&](const auto& entry) { return !near.contains(entry.first); });
    std::erase_if(results_, [&](const auto& entry) { return !near.contains(entry.first); });
}

void PictureList::setShowsResults(bool shows) {
    if (std::exchange(showsResults_, shows) != shows && rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1));
}

void PictureList::takeResult(const std::string& path, const QImage& result) {
    if (!contains(path)) return;
    results_[path] = {QPixmap::fromImage(result)};
    if (showsResults_) tellChanged(path);
}

std::vector<std::string> PictureList::wantedResults(int first, int last) const {
    std::vector<std::string> paths;
    for (int row = std::max(first, 0); row <= std::min(last, rowCount() - 1); ++row) {
        const auto found = results_.find(path(row));
        if (found == results_.end() || !found->second.isTrusted) paths.push_back(path(row));
    }
    return paths;
}

void PictureList::distrustResults() {
    for (auto& [path, result] : results_)
        result.isTrusted = false;
}

QPixmap PictureList::pictureOf(const std::string& path) const {
    if (const auto result = results_.find(path);
        showsResults_ && result != results_.end() && !result->second.pixels.isNull())
        return result->second.pixels;
    const auto small = small_.find(path);
    return small == small_.end() ? QPixmap() : small->second.pixels;
}

void PictureList::distrustThumbnails() {
    for (auto& [path, small] : small_)
        small.isTrusted = false;
}

int PictureList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int PictureList::rowOf(const std::string& path) const {
    const auto found = indexOf_.find(path);
    if (found == indexOf_.end()) return -1;
    const auto place = std::ranges::lower_bound(shown_, found->second);
    return place != shown_.end() && *place == found->second ? static_cast<int>(place - shown_.begin()) : -1;
}

int PictureList::neighbour(int step) const {
    const auto found = indexOf_.find(present_);
    if (shown_.empty()) return -1;
    if (found == indexOf_.end()) return step > 0 ? 0 : rowCount() - 1;
    const auto after = std::ranges::upper_bound(shown_, found->second);
    const auto from = std::ranges::lower_bound(shown_, found->second);
    const auto row = step > 0 ? after - shown_.begin() + step - 1 : from - shown_.begin() + step;
    return row >= 0 && row < rowCount() ? static_cast<int>(row) : -1;
}

/// Name and state, for those who hear the list.
QString PictureList::spoken(std::size_t index) const {
    QStringList words{textOfName(lastPathComponent(paths_[index]))};
    if (const QString word = markWord(markAt(index)); !word.isEmpty()) words.append(word);
    if (paths_[index] == present_) words.append(tr("open now"));
    if (const auto small = small_.find(paths_[index]); small != small_.end() && !small->second.problem.isEmpty())
        words.append(tr("cannot be read"));
    return words.join(", ");
}

QVariant PictureList::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const std::size_t at = shown_[static_cast<std::size_t>(index.row())];
    const auto small = small_.find(paths_[at]);
    switch (role) {
        case Qt::DisplayRole:
            return textOfName(lastPathComponent(paths_[at]));
        case Qt::ToolTipRole:
            if (small != small_.end() && !small->second.problem.isEmpty())
                return tr("%1: %2").arg(textOfName(paths_[at]), small->second.problem);
            return textOfName(paths_[at]);
        case Qt::AccessibleTextRole:
            return spoken(at);
        case Qt::DecorationRole:
            return pictureOf(paths_[at]);
        case ProblemRole:
            return small == small_.end() ? QString() : small->second.problem;
        case MarkRole:
            return static_cast<int>(markAt(at));
        case PresentRole:
            return paths_[at] == present_;
        default:
            return {};
    }
}

}  // namespace tavrin
