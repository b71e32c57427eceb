#pragma once

#include <span>

#include <QWidget>

#include "core/state/Field.h"
#include "ui/bind/PanelPage.h"

class QButtonGroup;
class QScrollArea;

namespace tavrin {

/// A part of a long page. The text is translated in the context "Panel".
struct Segment {
    const char* group;  ///< with which it begins
    const char* label;
};

/// The parts of a page as buttons: a click scrolls to one, and the one that is seen is in force.
class SegmentBar : public QWidget {
    Q_OBJECT

  public:
    /// @param handler name of the operation behind the buttons, after which they are called, too
    /// @param selected takes the place of the part that is in force; outlives the bar, as `segments` does
    SegmentBar(const char* handler, std::span<const Segment> segments, const PanelPage& page, QScrollArea& scroll,
               Field<std::int32_t>& selected, QWidget* parent = nullptr);

    const PanelPage& page() const { return page_; }

  private:
    void goTo(int segment);
    void follow();
    GroupBox* groupOf(int segment) const;
    int topOf(int segment) const;

    const std::span<const Segment> segments_;
    const PanelPage& page_;
    QScrollArea& scroll_;
    Field<std::int32_t>& selected_;
    QButtonGroup* buttons_;
};

/// The bars of the pages that have one.
SegmentBar* adjustmentSegments(const PanelPage& page, QScrollArea& scroll, SystemInfo& info);
SegmentBar* effectSegments(const PanelPage& page, QScrollArea& scroll, SystemInfo& info);

}  // namespace tavrin
