#pragma once

#include <vector>

#include <QLayout>
#include <QWidget>

#include "ui/bind/Binder.h"
#include "ui/bind/WordSearch.h"

class QToolButton;

namespace tavrin {

/// The controls of a group under a title that folds them away, with a reset for all of them. Folded or not is
/// remembered.
class GroupBox : public QWidget {
    Q_OBJECT

  public:
    GroupBox(const BindingGroup& group, Binder& binder, QWidget* parent = nullptr);

    const BindingGroup& group() const { return group_; }
    /// Adds what is no row, below the rows.
    void addWidget(QWidget* widget) { body_->layout()->addWidget(widget); }
    bool isFolded() const;
    void setFolded(bool folded);
    /// Shows the rows that have all these words in their names, tips or settings, unfolded; without words all rows,
    /// folded as they were.
    /// @return whether there are any
    bool showMatching(const QStringList& words, Slips slips = Slips::none);
    const std::vector<ControlRow*>& rows() const { return rows_; }
    /// All that a row of the group is found by.
    QString wordsOf(const ControlRow& row) const;

  private:
    QWidget* makeHeader(Binder& binder);

    const BindingGroup& group_;
    QToolButton* header_ = nullptr;
    QWidget* body_;
    std::vector<ControlRow*> rows_;
};

}  // namespace tavrin
