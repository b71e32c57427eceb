#pragma once

#include <vector>

#include "ui/bind/GroupBox.h"
#include "ui/bind/WordButton.h"

class QLabel;
class QToolButton;
class QVBoxLayout;

namespace tavrin {

/// What a page of the side panel is called. Texts are translated in the context "Panel".
struct PageTitle {
    const char* name;     ///< of the page as an object
    const char* command;  ///< of the command that turns to it, and of its tab
    int key;              ///< key equivalent of its main tab
    const char *title, *toolTip;
    /// Whether what is on is listed above it: a list that grows moves the page down.
    bool showsChips = true;
};

/// A page of the side panel: groups of controls below each other, and what stands between them.
class PanelPage : public QWidget {
    Q_OBJECT

  public:
    explicit PanelPage(const PageTitle& title, QWidget* parent = nullptr);

    const PageTitle& title() const { return title_; }
    GroupBox* addGroup(const BindingGroup& group, Binder& binder);
    /// Adds a group that was made before.
    void addGroup(GroupBox* group);
    /// Adds what belongs to no group, below what is there.
    void addWidget(QWidget* widget);
    const std::vector<GroupBox*>& groups() const { return groups_; }
    /// Makes the labels of all rows equally wide, once they are there.
    void alignLabels();

    /// Shows what has all these words, under the page's title; without words all of it, without the title.
    /// @return whether there is any
    bool showMatching(const QStringList& words, Slips slips = Slips::none);
    /// The first item that is shown, whatever the search left; null without any.
    QWidget* firstShown() const;

  private:
    PageTitle title_;
    QVBoxLayout* column_;
    QLabel* heading_;
    std::vector<GroupBox*> groups_;
};

}  // namespace tavrin
