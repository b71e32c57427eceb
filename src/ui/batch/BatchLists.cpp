#include "ui/batch/BatchLists.h"

#include <QFileInfo>
#include <QIcon>
#include <QPixmap>

#include "core/files/NameText.h"
#include "core/image/SmallPicture.h"

namespace tavrin {

namespace {

constexpr int kSmall = 72, kLast = 8, kMostFailures = 1000;

void setUp(QListWidget* list, const char* name, const char* handler, const QString& title, const QString& toolTip) {
    list->setObjectName(name);
    list->setProperty("handler", handler);
    list->setAccessibleName(title);
    list->setToolTip(toolTip);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setTabKeyNavigation(false);
}

QString fileName(const QString& path) {
    return path.section('/', -1);
}

}  // namespace

PlanList::PlanList(QWidget* parent) : QListWidget(parent) {
    setUp(this, "listBatchPlan", "ShowBatchStatus", tr("What will be made"),
          tr("The pictures of the next run, in its order; what was made before is left out"));
    setUniformItemSizes(true);
    setFixedHeight(6 * (fontMetrics().height() + 6));
}

void PlanList::show(const BatchOutlook& outlook, const QString& extension) {
    clear();
    for (const PlannedPicture& one : outlook.first) {
        QStringList sources;
        for (const std::string& name : {one.names.foreground, one.names.background, one.names.state})
            if (!name.empty() && name != kUseCurrent) sources.append(fileName(textOfName(name)));
        add(sources.join(" + "), textOfName(one.picture) + extension);
    }
    if (outlook.left > count()) addItem(tr("and %1 more").arg(outlook.left - count()));
}

void PlanList::add(const QString& portrait, const QString& picture) {
    if (count() >= kMost) return;
    auto* item = new QListWidgetItem(tr("%1 from %2").arg(fileName(picture), portrait), this);
    item->setToolTip(picture);
}

LastPictures::LastPictures(QWidget* parent) : QListWidget(parent) {
    setUp(this, "listBatchResults", "showResults", tr("Last pictures"), tr("The pictures that were made last"));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setIconSize({kSmall, kSmall});
    setGridSize({kSmall + 12, kSmall + 8 + fontMetrics().height()});
    setUniformItemSizes(true);
    setFixedHeight(2 * gridSize().height() + 6);
    readers_.setMaxThreadCount(1);
}

void LastPictures::add(const QString& picture) {
    auto* item = new QListWidgetItem(fileName(picture));
    item->setToolTip(picture);
    insertItem(0, item);
    while (count() > kLast)
        delete takeItem(count() - 1);
    readers_.clear();  // only the newest are still wanted
    for (int row = count() - 1; row >= 0; --row) {
        if (!this->item(row)->icon().isNull()) continue;
        readers_.start([this, path = this->item(row)->toolTip()] {
            const QImage small = readSmallPicture(nameOfText(path), 2 * kSmall).pixels;
            QMetaObject::invokeMethod(
                this,
                [this, path, small] {
                    for (int at = 0; at < count(); ++at)
                        if (this->item(at)->toolTip() == path && !small.isNull())
                            this->item(at)->setIcon(QIcon(QPixmap::fromImage(small)));
                },
                Qt::QueuedConnection);
        });
    }
}

FailureList::FailureList(QWidget* parent) : QListWidget(parent) {
    setUp(this, "listBatchFailures", "showFailures", tr("What could not be made"),
          tr("Pictures that could not be made, each with its reason"));
    setWordWrap(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedHeight(6 * (fontMetrics().height() + 6));
}

void FailureList::add(const QString& what, const QString& reason) {
    if (count() >= kMostFailures) delete takeItem(0);
    auto* item = new QListWidgetItem(reason.isEmpty() ? what : tr("%1: %2").arg(fileName(what), reason), this);
    item->setToolTip(reason.isEmpty() ? what : what + '\n' + reason);
    scrollToItem(item);
}

}  // namespace tavrin
