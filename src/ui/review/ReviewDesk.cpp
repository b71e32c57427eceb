#include "ui/review/ReviewDesk.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QTimer>

#include "core/Log.h"
#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "delivery/pages/ComparePage.h"
#include "ui/ReasonText.h"

namespace tavrin {

namespace {

constexpr int kSlowMs = 300;  // what is there sooner needs no message

/// The number of a page by its file name, or 0.
int numberOf(QString page) {
    return page.remove("FilesInFolder").remove(".htm").toInt();
}

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
                              window)),
      reviewMaker_(new PageMaker(this)),
      compareMaker_(new PageMaker(this)) {
    slow_.setSingleShot(true);
    slow_.setInterval(kSlowMs);
    connect(&slow_, &QTimer::timeout, this, [this] { emit told(tr("The pages are being made.")); });
    connect(review_, &PageWindow::told, this, &ReviewDesk::told);
    connect(compare_, &PageWindow::told, this, &ReviewDesk::told);
}

void ReviewDesk::showReviewBatchOutput() {
    page_ = 1;
    showReviewPage();
}

QString ReviewDesk::pageOf(int number) const {
    const QString folder = textOfName(standardizePath(info_.oQLXInfo->sLastBatchOutput));
    return folder + '/' + QString::fromStdString(reviewPageName(number));
}

/// Makes the pages anew, that which was seen last before the others, and shows it.
void ReviewDesk::showReviewPage() {
    const std::string folder = standardizePath(info_.oQLXInfo->sLastBatchOutput);
    if (folder.empty()) return emit told(tr("No batch has been run yet."));
    const ReviewWish wish{folder, window_->screen()->geometry().width(), info_.iLastReviewPage, page_};
    isMaking_ = true;
    slow_.start();
    reviewMaker_->make([this, wish](const std::atomic<bool>& stop, const PageMaker::Tell& tell) {
        const auto firstThere = [this, &tell](int page, const std::vector<std::string>& pictures) {
            tell([this, page, pictures] { showFirstPage(page, pictures); });
        };
        const WrittenPages written = setupReviewBatchOutput(wish, firstThere, &stop);
        tell([this, written] { endReview(written); });
    });
}

void ReviewDesk::showFirstPage(int page, const std::vector<std::string>& pictures) {
    slow_.stop();
    results_ = info_.myFileNames = pictures;
    shown_ = page_ = page;
    review_->showPage(pageOf(page));
}

void ReviewDesk::endReview(const WrittenPages& written) {
    slow_.stop();
    isMaking_ = false;
    if (!written.problem.empty()) emit failed(tr("The pages cannot be written."), reasonText(written.problem));
    if (written.count == 0) {
        const QString folder = textOfName(standardizePath(info_.oQLXInfo->sLastBatchOutput));
        return emit told(tr("%1 holds no pictures.").arg(folder));
    }
    results_ = info_.myFileNames = written.pictures;
    // What the folder held before is better than nothing; and a page may have been wished before it stood.
    const bool isAnother = page_ != shown_ || !written.problem.empty();
    if (isAnother && QFileInfo::exists(pageOf(page_))) review_->showPage(pageOf(shown_ = page_));
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
    const CompareWish wish{nameOfText(folder), window_->screen()->geometry().width(),
                           info_.iLastScrollHtmlFileChooser};
    slow_.start();
    compareMaker_->make([this, wish, folder](const std::atomic<bool>& stop, const PageMaker::Tell& tell) {
        const WrittenPages written = setupCompareFiles(wish, &stop);
        tell([this, folder, written] { endCompare(folder, written); });
    });
}

void ReviewDesk::endCompare(const QString& folder, const WrittenPages& written) {
    slow_.stop();
    if (!written.problem.empty()) return emit failed(tr("The pages cannot be written."), reasonText(written.problem));
    if (written.count == 0) return emit told(tr("%1 holds no pictures.").arg(folder));
    compared_ = folder;
    portraits_ = info_.myFileNames = written.pictures;
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
        const int page = numberOf(name);
        const bool stands = !isMaking_ && QFileInfo::exists(pageOf(page));  // there may be a link more than pages
        if (stands || isMaking_) page_ = page;
        if (stands) shown_ = page;
        return stands;
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
