#include "ui/frame/SegmentBar.h"

#include <algorithm>

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

namespace tavrin {

namespace {

constexpr int kSegmentsInALine = 5;

constexpr Segment kAdjustments[] = {{"groupEasy", QT_TRANSLATE_NOOP("Panel", "Quick")},
                                    {"groupKey", QT_TRANSLATE_NOOP("Panel", "Key")},
                                    {"groupHair", QT_TRANSLATE_NOOP("Panel", "Hair")},
                                    {"groupLight", QT_TRANSLATE_NOOP("Panel", "Light")},
                                    {"groupPlace", QT_TRANSLATE_NOOP("Panel", "Place")}};

constexpr Segment kEffects[] = {{"groupShadow", QT_TRANSLATE_NOOP("Panel", "Shadow")},
                                {"MyEffectsFrame1Panel", QT_TRANSLATE_NOOP("Panel", "Frame")},
                                {"MyEffectsLightingPanel", QT_TRANSLATE_NOOP("Panel", "Lighting")},
                                {"MyEffectsCartoonPanel", QT_TRANSLATE_NOOP("Panel", "Drawing")},
                                {"myGreenGuardPanel", QT_TRANSLATE_NOOP("Panel", "Guard")}};

}  // namespace

SegmentBar::SegmentBar(const char* handler, std::span<const Segment> segments, const PanelPage& page,
                       QScrollArea& scroll, Field<std::int32_t>& selected, QWidget* parent)
    : QWidget(parent),
      segments_(segments),
      page_(page),
      scroll_(scroll),
      selected_(selected),
      buttons_(new QButtonGroup(this)) {
    setObjectName(handler);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int i = 0; i < static_cast<int>(segments.size()); ++i) {
        auto* button = new QToolButton(this);
        button->setObjectName(QString("%1Segment%2").arg(handler).arg(i));
        button->setProperty("segment", true);
        button->setProperty("handler", QString("%1:").arg(handler));
        button->setText(ControlRow::translated(segments[static_cast<std::size_t>(i)].label));
        button->setAccessibleName(tr("Go to: %1").arg(button->text()));
        button->setToolTip(tr("Scrolls to this part of the page"));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        buttons_->addButton(button, i);
        layout->addWidget(button, i / kSegmentsInALine, i % kSegmentsInALine);
    }
    connect(buttons_, &QButtonGroup::idClicked, this, &SegmentBar::goTo);
    connect(scroll.verticalScrollBar(), &QScrollBar::valueChanged, this, &SegmentBar::follow);
    buttons_->button(std::clamp<int>(selected_, 0, static_cast<int>(segments.size()) - 1))->setChecked(true);
}

GroupBox* SegmentBar::groupOf(int segment) const {
    const QString name = segments_[static_cast<std::size_t>(segment)].group;
    const auto found = std::ranges::find(page_.groups(), name, &GroupBox::objectName);
    return found == page_.groups().end() ? nullptr : *found;
}

int SegmentBar::topOf(int segment) const {
    const GroupBox* group = groupOf(segment);
    return group ? group->mapTo(scroll_.widget(), QPoint()).y() : 0;
}

/// The last parts of a page cannot come to its top; the one that was asked for is in force all the same.
void SegmentBar::goTo(int segment) {
    if (GroupBox* group = groupOf(segment)) group->setFolded(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    scroll_.verticalScrollBar()->setValue(topOf(segment));
    selected_ = segment;
    buttons_->button(segment)->setChecked(true);
}

void SegmentBar::follow() {
    if (!isVisible()) return;
    const int top = scroll_.verticalScrollBar()->value() + scroll_.viewport()->height() / 4;
    int seen = 0;
    for (int i = 1; i < static_cast<int>(segments_.size()); ++i)
        if (topOf(i) <= top) seen = i;
    selected_ = seen;
    buttons_->button(seen)->setChecked(true);
}

SegmentBar* adjustmentSegments(const PanelPage& page, QScrollArea& scroll, SystemInfo& info) {
    return new SegmentBar("selectAdjustmentTab", kAdjustments, page, scroll, info.iSelectedAdjustment);
}

SegmentBar* effectSegments(const PanelPage& page, QScrollArea& scroll, SystemInfo& info) {
    return new SegmentBar("selectEffectsTab", kEffects, page, scroll, info.iSelectedEffect);
}

}  // namespace tavrin
