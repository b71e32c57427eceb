#pragma once

#include <deque>
#include <memory>

#include <QWidget>

#include "browse/PictureMarks.h"
#include "browse/ReadAhead.h"
#include "browse/ThumbnailLoader.h"
#include "core/state/SystemInfo.h"
#include "ui/strip/Results.h"
#include "ui/strip/Shelf.h"

class QComboBox;

namespace tavrin {

/// The strip below the picture: the portraits of a folder and the backgrounds to choose from. It opens nothing
/// itself: it says what is wanted.
class Strip : public QWidget {
    Q_OBJECT

  public:
    explicit Strip(SystemInfo& info, QWidget* parent = nullptr);
    ~Strip() override;

    /// Shows what the state has as its sources now.
    void follow();
    /// Fills the strip with a folder's portraits and opens the first one.
    void openFolder(const QString& folder);
    /// The same with these pictures.
    void openPictures(const QStringList& paths);
    /// The folder of `sPickDirectory` may be another one.
    void followPickDirectory();
    /// Opens the portrait that comes so many after the present one, of those that the filter shows.
    void walk(int step);
    /// Marks the present portrait; after a rejected one the next is opened, after the last the one before.
    void mark(PictureMark mark);
    /// Takes the last mark back and opens its portrait.
    void takeMarkBack();
    bool hasMarkToTakeBack() const { return !marked_.empty(); }
    /// The full picture stands, so that there is time for the portraits beside it.
    void readAhead(CombineThread& loop);
    /// Shows portraits as they come out of the key, where that is known.
    void showResults(bool shows);
    Results& results() { return results_; }
    bool isReadAhead(const QString& path) const;
    void setFolded(bool folded);
    bool isFolded() const { return folded_; }

    /// The portraits that are selected, in their order.
    QStringList selectedPortraits() const;
    Shelf* portraits() const { return portraits_; }
    Shelf* backgrounds() const { return backgrounds_; }

  signals:
    void portraitWanted(const QString& path);
    void backgroundWanted(const QString& path);
    void pickFolderWanted();
    void marksChanged();
    void failed(const QString& line, const QString& details);

  private:
    struct Marked {
        std::string path;
        PictureMark before;
    };

    QComboBox* makeFilter();
    void chooseFilter(int entry);
    void connectShelf(Shelf* shelf);
    void fetchThumbnails();
    void fetchResults();
    void connectResults();
    void openFirst();
    void setMark(const std::string& path, PictureMark mark);

    SystemInfo& info_;
    PictureMarks marks_;
    std::shared_ptr<ReadAhead> ahead_;
    Shelf *portraits_, *backgrounds_;
    std::deque<Marked> marked_;  // the last one at the end
    bool folded_ = false, opensFirst_ = false;
    Results results_;
    ThumbnailLoader loader_;  // the last, so that it ends first
};

}  // namespace tavrin
