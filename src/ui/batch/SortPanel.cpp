#include "ui/batch/SortPanel.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include "core/files/NameText.h"

namespace tavrin {

SortPanel::SortPanel(QWidget* parent)
    : QWidget(parent),
      folder_(new QLineEdit(this)),
      all_(new QLabel("0", this)),
      landscape_(new QLabel("0", this)),
      portrait_(new QLabel("0", this)),
      choose_(addButton("selectImagerSortFolder", tr("Choose..."), tr("Chooses the folder whose photos are sorted"))),
      sort_(addButton("sortImagesInFolder", tr("Sort"),
                      tr("Copies the photos into the subfolders Portrait and Landscape; the originals stay"))),
      stop_(addButton("stopSortingImages", tr("Stop"), tr("Ends sorting after the photo in hand"))) {
    setObjectName("sortPanel");
    setAccessibleName(tr("Sort photos by shape"));
    setToolTip(tr("Splits a folder of photos into upright ones and wide ones, such as backgrounds for an event"));
    folder_->setObjectName("textBatchSortFolder");
    folder_->setProperty("handler", "selectImagerSortFolder:");
    folder_->setReadOnly(true);
    folder_->setAccessibleName(tr("Photos to sort"));
    folder_->setToolTip(tr("The folder whose photos are sorted"));
    folder_->setPlaceholderText(tr("none"));
    all_->setObjectName("textNumberOfImages");
    landscape_->setObjectName("textNumberOfHImages");
    portrait_->setObjectName("textNumberOfVImages");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 4);
    auto* first = new QHBoxLayout;
    first->addWidget(folder_, 1);
    first->addWidget(choose_);
    auto* counts = new QGridLayout;
    const std::pair<QString, QLabel*> rows[] = {
        {tr("Photos"), all_}, {tr("Landscape"), landscape_}, {tr("Portrait"), portrait_}};
    for (int row = 0; row < 3; ++row) {
        counts->addWidget(new QLabel(rows[row].first, this), row, 0);
        counts->addWidget(rows[row].second, row, 1);
    }
    auto* last = new QHBoxLayout;
    last->addWidget(sort_);
    last->addWidget(stop_);
    last->addStretch();
    column->addLayout(first);
    column->addLayout(counts);
    column->addLayout(last);
    pool_.setMaxThreadCount(1);
    connect(choose_, &QToolButton::clicked, this, &SortPanel::selectImagerSortFolder);
    connect(sort_, &QToolButton::clicked, this, &SortPanel::sortImagesInFolder);
    connect(stop_, &QToolButton::clicked, this, [this] { stopWanted_ = true; });
    showButtons();
}

SortPanel::~SortPanel() {
    stopWanted_ = true;
    pool_.clear();
    pool_.waitForDone();
}

QToolButton* SortPanel::addButton(const char* name, const QString& text, const QString& toolTip) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setProperty("handler", QString(name) + ':');
    button->setText(text);
    button->setAccessibleName(toolTip);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void SortPanel::showButtons() {
    choose_->setEnabled(!running_);
    sort_->setEnabled(!running_ && !folder_->text().isEmpty());
    stop_->setEnabled(running_);
}

void SortPanel::showCounts(int landscape, int portrait) {
    landscape_->setNum(landscape);
    portrait_->setNum(portrait);
}

void SortPanel::selectImagerSortFolder() {
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder of Photos to Sort"), folder_->text());
    if (!folder.isEmpty()) setFolder(folder);
}

void SortPanel::setFolder(const QString& folder) {
    if (running_) return;
    folder_->setText(folder);
    folder_->setToolTip(folder);
    all_->setNum(sorter_.selectImagerSortFolder(nameOfText(folder)));
    showCounts(0, 0);
    showButtons();
}

void SortPanel::sortImagesInFolder() {
    if (running_ || folder_->text().isEmpty()) return;
    running_ = true;
    stopWanted_ = false;
    showButtons();
    pool_.start([this] {
        const auto shown = [this](int landscape, int portrait) {
            QMetaObject::invokeMethod(
                this, [this, landscape, portrait] { showCounts(landscape, portrait); }, Qt::QueuedConnection);
        };
        const SortedImages sorted = sorter_.sortImagesInFolder(shown, &stopWanted_);
        QMetaObject::invokeMethod(
            this, [this, sorted] { end(sorted); }, Qt::QueuedConnection);
    });
}

void SortPanel::end(const SortedImages& sorted) {
    running_ = false;
    showButtons();
    if (!sorted.problem.empty()) return emit failed(tr("The photos are not sorted."), textOfName(sorted.problem));
    const QString sums = tr("Copied: %1, there already: %2, not copied or not read: %3.")
                             .arg(sorted.copied)
                             .arg(sorted.alreadyThere)
                             .arg(sorted.failures.size());
    if (sorted.failures.empty())
        return emit told(sorted.stopped ? tr("Sorting was stopped. %1").arg(sums)
                                        : tr("The photos are sorted. %1").arg(sums));
    QStringList lines;
    for (const std::string& line : sorted.failures)
        lines.append(textOfName(line));
    emit failed(tr("Not every photo is sorted. %1").arg(sums), lines.join('\n'));
}

}  // namespace tavrin
