#pragma once

#include <QTimer>
#include <QWidget>

#include "browse/FolderFollower.h"
#include "ui/strip/PictureList.h"
#include "ui/strip/StripView.h"

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace tavrin {

/// One part of the strip: the pictures of a folder in a row, with a line above that tells how many.
class Shelf : public QWidget {
    Q_OBJECT

  public:
    /// @param name of the view, by which others find it
    Shelf(const QString& name, const QString& title, PictureList::MarkOf markOf, QWidget* parent = nullptr);

    /// Shows a folder's pictures as soon as they are listed, and follows what becomes of them. The one that is shown
    /// already is not listed anew.
    void follow(const std::string& folder);
    /// Shows these pictures and no folder.
    void show(std::vector<std::string> paths);
    /// Marks the picture under work. One that is not here brings its folder with it, unless `stays`.
    void setPresent(const std::string& path, bool stays = false);
    void setFolded(bool folded);

    const std::string& folder() const { return folder_; }
    PictureList& list() { return list_; }
    StripView* view() const { return view_; }
    /// The line above the pictures, for what belongs to this shelf alone.
    QHBoxLayout* line() const { return line_; }
    void tellCount();
    void showPresent();
    /// Gives up a folder that is still being read; what is shown stays.
    void stopReading();

  signals:
    /// The pictures of a folder have been looked at.
    void listed();
    /// A picture is wanted by a click or a key.
    void opened(const std::string& path);
    void failed(const QString& line, const QString& details);

  private:
    void take(const FolderPictures& pictures);

    const QString title_;
    PictureList list_;
    StripView* view_;
    QLabel* count_;
    QToolButton* stop_;
    QHBoxLayout* line_;
    std::string folder_;
    bool isListed_ = true, isLate_ = false;
    QTimer late_;              ///< what takes longer is told and can be given up
    FolderFollower follower_;  // the last, so that it ends first
};

}  // namespace tavrin
