#include "ui/look/HistoryPanel.h"

#include <QEvent>
#include <QListWidget>
#include <QSignalBlocker>

namespace tavrin {

HistoryPanel::HistoryPanel(Binder& binder, QWidget* parent)
    : QDockWidget(tr("History"), parent), binder_(binder), list_(new QListWidget(this)) {
    setObjectName("panelHistory");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    list_->setObjectName("historyList");
    list_->setProperty("handler", "goTo");
    list_->setAccessibleName(tr("Steps of this portrait"));
    list_->setToolTip(tr("A click goes back or forth to that step"));
    list_->setFrameShape(QFrame::NoFrame);
    setWidget(list_);
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) binder_.goTo(static_cast<std::size_t>(row));
    });
    connect(&binder, &Binder::changed, this, &HistoryPanel::refresh);
    refresh();
}

void HistoryPanel::refresh() {
    const QSignalBlocker quiet(list_);
    const auto& steps = binder_.editor().steps();
    const int done = static_cast<int>(binder_.editor().stepsDone());
    const int rows = static_cast<int>(steps.size()) + 1;
    while (list_->count() > rows)
        delete list_->takeItem(list_->count() - 1);
    while (list_->count() < rows)
        list_->addItem(QString());
    for (int i = 0; i < rows; ++i) {
        const bool later = i > done;
        const QString label =
            i == 0 ? tr("At the start") : QString::fromStdString(steps[static_cast<std::size_t>(i) - 1].label);
        QListWidgetItem* item = list_->item(i);
        item->setText(label);
        item->setForeground(palette().brush(later ? QPalette::PlaceholderText : QPalette::Text));
        item->setData(Qt::AccessibleTextRole, later ? tr("%1, taken back").arg(label) : label);
    }
    list_->setCurrentRow(done);
    list_->scrollToItem(list_->item(done));
}

void HistoryPanel::changeEvent(QEvent* event) {
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) refresh();
}

}  // namespace tavrin
