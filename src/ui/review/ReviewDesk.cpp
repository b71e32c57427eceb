#include "ui/review/ReviewDesk.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QTimer>

#include "core/Log.h"
#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "delivery/pages/ComparePage.h"
#include "delivery/pages/ReviewPages.h"

namespace tavrin {

namespace {

/// The picture of a link that is its index in the list of a page, or "".
QString pictureOf(const QString& link, const std::vector<std::string>& pictures) {
    bool isNumber = false;
    const std::size_t index = link.toULongLong(&isNumber);
    return isNumber && index < pictures.size() ? textOfName(pictures[index]) : QString();
}

}  // namespace

ReviewDesk::ReviewDesk(SystemInfo& info, QWidget* window)
    : QObject(window),
      info_(info),
      window_(window),
      review_(new PageWindow("MyReviewBatchOutputPanel", tr("Results of the Batch"),
                             {[this](const QString& name) { return mayGoFromReview(name); }}, window)),
      compare_(new PageWindow("MyCompareFilesPanel", tr("Compare Portraits"),
                              {[this](const QString& name) { return mayGoFromCompare(name); },
                               [this](double left) { info_.iLastScrollHtmlFileChooser = static_cast<int>(left); }},
                              window)) {
    connect(review_, &PageWindow::told, this, &ReviewDesk::told);
    connect(compare_, &PageWindow::told, this, &ReviewDesk::told);
}

void ReviewDesk::showReviewBatchOutput() {
    page_ = QString::fromStdString(reviewPageName(1));
    showReviewPage();
}

/// Writes the pages anew and shows the one that was seen last.
void ReviewDesk::showReviewPage() {
    const std::string folder = standardizePath(info_.oQLXInfo->sLastBatchOutput);
    if (folder.empty()) return emit told(tr("No batch has been run yet."));
    const WrittenPages written = setupReviewBatchOutput(info_, folder, window_->screen()->geometry().width());
    results_ = info_.myFileNames;
    if (!written.problem.empty())
        emit failed(tr("The pages cannot be written."), QString::fromStdString(written.problem));
    if (written.count == 0) return emit told(tr("%1 holds no pictures.").arg(textOfName(folder)));
    const QString page = textOfName(folder) + '/' + page_;
    review_->showPage(QFileInfo::exists(page) ? page
                                              : textOfName(folder) + '/' + QString::fromStdString(reviewPageName(1)));
}

void ReviewDesk::noteSaved(const QString& path, bool done) {
    if (path != mended_) return;
    mended_.clear();
    if (done) showReviewPage();
}

void ReviewDesk::showCompareFiles() {
    const QString portrait = textOfName(standardizePath(info_.oQLXInfo->sForegroundPath));
    if (portrait.isEmpty()) return changeFolder();
    compare(QFileInfo(portrait).path());
}

void ReviewDesk::compare(const QString& folder) {
    if (folder != compared_) info_.iLastScrollHtmlFileChooser = 0;
    const WrittenPages written = setupCompareFiles(info_, nameOfText(folder), window_->screen()->geometry().width());
    if (!written.problem.empty())
        return emit failed(tr("The pages cannot be written."), QString::fromStdString(written.problem));
    if (written.count == 0) return emit told(tr("%1 holds no pictures.").arg(folder));
    compared_ = folder;
    portraits_ = info_.myFileNames;
    compare_->showPage(textOfName(comparePagePath()));
}

void ReviewDesk::changeFolder() {
    QWidget* over = compare_->isVisible() ? static_cast<QWidget*>(compare_) : window_;
    const QString folder = QFileDialog::getExistingDirectory(over, tr("Folder of Portraits"), compared_);
    if (!folder.isEmpty()) compare(folder);
}

/// Pages may be turned; what else is clicked names a picture. The window is used when the page has had its answer.
bool ReviewDesk::mayGoFromReview(const QString& name) {
    logTrace("Gallery Link: " + name.toStdString());
    if (name.startsWith("FilesInFolder")) {
        const QString folder = textOfName(standardizePath(info_.oQLXInfo->sLastBatchOutput));
        if (!QFileInfo::exists(folder + '/' + name)) return false;  // there may be a link more than pages
        page_ = name;
        return true;
    }
    const QString path = pictureOf(name, results_);
    if (path.isEmpty()) return false;
    QTimer::singleShot(0, this, [this, path] {
        review_->hide();
        emit resultChosen(path);
    });
    return false;
}

bool ReviewDesk::mayGoFromCompare(const QString& name) {
    logTrace("Gallery Link: " + name.toStdString());
    if (name == kChangeFolderLink) {
        QTimer::singleShot(0, this, &ReviewDesk::changeFolder);
        return false;
    }
    if (const QString path = pictureOf(name, portraits_); !path.isEmpty()) {
        QTimer::singleShot(0, this, [this, path] {
            compare_->hide();
            emit portraitChosen(path);
        });
    }
    return false;  // there is no page of that name
}

std::vector<Command> reviewCommands(ReviewDesk& desk) {
    return {{"showReviewBatchOutput",
             "&File",
             ReviewDesk::tr("Re&view a Batch..."),
             ReviewDesk::tr("Shows every result of the last batch beside its mask; a click opens one to be mended"),
             "",
             {},
             {},
             [&desk](bool) { desk.showReviewBatchOutput(); }},
            {"showCompareFiles",
             "&File",
             ReviewDesk::tr("&Compare Portraits..."),
             ReviewDesk::tr("Shows the portraits of the folder side by side; a double click opens one"),
             "",
             {},
             {},
             [&desk](bool) { desk.showCompareFiles(); }}};
}

}  // namespace tavrin
