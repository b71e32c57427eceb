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
    /// @param leads items that stand above the rows
    GroupBox(const BindingGroup& group, Binder& binder, QWidget* parent = nullptr,
             const std::vector<QWidget*>& leads = {});

    const BindingGroup& group() const { return group_; }
    /// Another title than the group's, for as long as it says more.
    void setTitle(const QString& title);
    /// Adds what the search leaves alone, below the rows.
    void addWidget(QWidget* widget) { body_->layout()->addWidget(widget); }
    /// Adds what tells something and takes no focus, above all else; the search leaves it alone.
    void addStatus(QWidget* status);
    /// Adds what is no row and is found like one: by its accessible name, and by names and tips of its parts.
    void addItem(QWidget* item);
    bool isFolded() const;
    void setFolded(bool folded);
    /// Folds as a person does: it is remembered, and a panel is closed or opened.
    void fold(bool folded);
    /// Shows the items that have all these words in their names, tips or settings, unfolded; without words all of
    /// them, folded as they were.
    /// @return whether there are any
    bool showMatching(const QStringList& words, Slips slips = Slips::none);
    const std::vector<ControlRow*>& rows() const { return rows_; }
    /// Rows and added items, from top to bottom.
    const std::vector<QWidget*>& items() const { return items_; }
    /// What an item is called, what people are told of it, and all that it is found by: the names of its parts and
    /// its setting, too.
    static QString nameOf(const QWidget& item);
    QString toldOf(const QWidget& item) const;
    QString wordsOf(const QWidget& item) const;

  private:
    QWidget* makeHeader();

    const BindingGroup& group_;
    Binder& binder_;
    QToolButton* header_ = nullptr;
    QWidget* body_;
    std::vector<ControlRow*> rows_;
    std::vector<QWidget*> items_;
};

}  // namespace tavrin
