#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include <QTimer>
#include <QWidget>

#include "ui/bind/GroupBox.h"
#include "ui/effects/PictureRow.h"

namespace tavrin {

/// What is set here: a chip for every effect that is on, and for every other control that stands elsewhere than at
/// the program's start, whose state may be the user's own. A click on its words leads there; its cross switches the
/// effect off, or puts back what stood there at the start.
class Chips : public QWidget {
    Q_OBJECT

  public:
    explicit Chips(Binder& binder, QWidget* parent = nullptr);
    /// A picture that gets a chip while it is there.
    void addSlot(PictureRow* slot) { slots_.push_back(slot); }

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut(width, false); }

  signals:
    void wanted(const QWidget* item);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    /// Something that is set, and how it is told and undone.
    struct Entry {
        QString name, label, words, toolTip, offToolTip;
        const QWidget* place;  ///< where it can be changed
        std::function<void()> off;
    };

    std::vector<Entry> entries() const;
    bool isAtStart(const ControlRow& row) const;
    Entry entryOf(ControlRow* row) const;
    Entry entryOf(const GroupBox* group) const;
    Entry itemsEntry() const;
    Entry entryOf(PictureRow* slot) const;
    void refresh();
    void rebuild();
    void placeInTabOrder();
    QWidget* makeChip(const Entry& entry);
    int layOut(int width, bool place) const;

    Binder& binder_;
    const std::map<std::string, std::string> start_;  ///< every setting, as it was when the window came to be
    std::vector<PictureRow*> slots_;
    QTimer due_;
    bool all_ = false;  ///< more than the first few
    std::vector<Entry> entries_;
    std::vector<QWidget*> chips_;
};

}  // namespace tavrin
