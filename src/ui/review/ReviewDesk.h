#pragma once

#include <string>
#include <vector>

#include <QObject>
#include <QTimer>

#include "core/state/SystemInfo.h"
#include "delivery/pages/ReviewPages.h"
#include "ui/bind/Command.h"
#include "ui/review/PageMaker.h"
#include "ui/review/PageWindow.h"

namespace tavrin {

/// Pages to look through many pictures and pick one: the results of a batch beside their masks, and the portraits of
/// a folder side by side.
class ReviewDesk : public QObject {
    Q_OBJECT

  public:
    ReviewDesk(SystemInfo& info, QWidget* window);

    /// The results of the last batch.
    void showReviewBatchOutput();
    /// The portraits of the folder that the last one was opened from.
    void showCompareFiles();
    /// When this result has been written again, its pages come back with it.
    void showAgainAfter(const QString& path) { mended_ = path; }
    void noteSaved(const QString& path, bool done);

  signals:
    /// A result is to be mended.
    void resultChosen(const QString& path);
    void portraitChosen(const QString& path);
    void told(const QString& line);
    void failed(const QString& line, const QString& reason);

  private:
    void showReviewPage();
    QString pageOf(int number) const;
    void showFirstPage(int page, const std::vector<std::string>& pictures);
    void endReview(const WrittenPages& written);
    void endCompare(const QString& folder, const WrittenPages& written);
    bool mayGoFromReview(const QString& name);
    bool mayGoFromCompare(const QString& name);
    void compare(const QString& folder);
    void changeFolder();

    SystemInfo& info_;
    QWidget* window_;
    PageWindow *review_, *compare_;
    PageMaker *reviewMaker_, *compareMaker_;
    QTimer slow_;                                   ///< until it is told that pages are being made
    bool isMaking_ = false;                         ///< only the first page of results stands
    std::vector<std::string> results_, portraits_;  ///< on the pages: either may be open while the other is written
    int page_ = 1, shown_ = 0;                      ///< pages of results: the one wished last, the one that is seen
    QString compared_;                              ///< the folder on the page
    QString mended_;                                ///< the result that is being written again
};

/// What the menu has of it.
std::vector<Command> reviewCommands(ReviewDesk& desk);

}  // namespace tavrin
