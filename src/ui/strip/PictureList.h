#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include <QAbstractListModel>
#include <QPixmap>

#include "browse/PictureMarks.h"
#include "browse/Thumbnail.h"

namespace tavrin {

/// The pictures of a strip: all there are, those that the filter shows, and small pictures of the ones near the view.
class PictureList : public QAbstractListModel {
    Q_OBJECT

  public:
    enum Role { MarkRole = Qt::UserRole, PresentRole, ProblemRole };
    using MarkOf = std::function<PictureMark(const std::string& path)>;

    /// @param markOf empty: these pictures have no marks
    explicit PictureList(MarkOf markOf, QObject* parent = nullptr);

    /// @return whether these are other pictures than before
    bool setPaths(std::vector<std::string> paths);
    /// Only pictures with this mark; nothing: all of them.
    void setFilter(std::optional<PictureMark> filter);
    /// The picture that is under work.
    void setPresent(const std::string& path);
    /// Shows the mark that a picture has now.
    void markChanged(const std::string& path);

    void takeThumbnail(const std::string& path, const Thumbnail& thumbnail);
    /// Shows what the key makes of each picture, where that is known, instead of the picture.
    void setShowsResults(bool shows);
    bool showsResults() const { return showsResults_; }
    void takeResult(const std::string& path, const QImage& result);
    /// Those of rows [first, last] whose result is not known, or may be another by now.
    std::vector<std::string> wantedResults(int first, int last) const;
    /// Settings have changed: what is shown stays until it is replaced.
    void distrustResults();

    /// Those of rows [first, last] that have no small picture, or one of which nobody knows whether it still holds.
    std::vector<std::string> wanted(int first, int last) const;
    /// Lets go of all small pictures but those of rows [first, last].
    void keepNear(int first, int last);
    /// Files may have changed: what is shown stays until it is replaced.
    void distrustThumbnails();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const std::vector<std::string>& paths() const { return paths_; }
    bool contains(const std::string& path) const { return indexOf_.contains(path); }
    const std::string& present() const { return present_; }
    const std::string& path(int row) const { return paths_[shown_[static_cast<std::size_t>(row)]]; }
    /// -1 when it is not shown.
    int rowOf(const std::string& path) const;
    /// The row shown that comes `step` after the present picture, which need not be shown itself; -1 for none.
    int neighbour(int step) const;

  private:
    struct Small {
        QPixmap pixels;
        QString problem;
        bool isTrusted = true;
    };
    struct Result {
        QPixmap pixels;
        bool isTrusted = true;
    };

    PictureMark markAt(std::size_t index) const { return markOf_ ? markOf_(paths_[index]) : PictureMark::none; }
    QString spoken(std::size_t index) const;
    QPixmap pictureOf(const std::string& path) const;
    void tellChanged(const std::string& path);

    const MarkOf markOf_;
    std::vector<std::string> paths_;
    std::unordered_map<std::string, std::size_t> indexOf_;
    std::vector<std::size_t> shown_;  // of `paths_`, ascending
    std::optional<PictureMark> filter_;
    std::string present_;
    std::unordered_map<std::string, Small> small_;
    std::unordered_map<std::string, Result> results_;
    bool showsResults_ = false;
};

/// The word for a mark; "" for none.
QString markWord(PictureMark mark);

}  // namespace tavrin
