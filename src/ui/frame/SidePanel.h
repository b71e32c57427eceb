#pragma once

#include <vector>

#include <QDockWidget>

#include "ui/adjust/AdjustPage.h"
#include "ui/bind/Command.h"
#include "ui/effects/EffectsPage.h"
#include "ui/look/Chips.h"
#include "ui/text/TextPage.h"

class QAction;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

namespace tavrin {

class SegmentBar;

/// The controls beside the picture, in pages with a main tab for each. It stands left, right or by itself, and finds
/// any control of any page by words.
class SidePanel : public QDockWidget {
    Q_OBJECT

  public:
    SidePanel(Binder& binder, QWidget* parent = nullptr);

    /// Adds a page and its main tab, behind those of smaller keys. The page of the last time is turned to.
    void addPage(PanelPage* page);
    const std::vector<PanelPage*>& pages() const { return pages_; }
    PanelPage* page() const { return current_; }
    /// Turns to the page of a main tab, by the tab's key equivalent. A key that no tab has changes nothing.
    void selectMainTab(int key);

    QLineEdit* searchField() const { return search_; }
    /// The groups of all pages.
    const std::vector<GroupBox*>& groups() const { return groups_; }
    /// Shows an item of a group, whatever is folded or searched for, and gives it the focus.
    void reveal(const QWidget* item);
    /// What the search finds besides controls.
    void setActions(std::vector<QAction*> actions) { actions_ = std::move(actions); }
    /// Puts every default of both layers back, as one step.
    void resetAll();

    /// The small maps of the layer and of the selected item.
    ScaleView* scaleView() const { return adjust_->scaleView(); }
    TextScaleView* textScaleView() const { return adjust_->textScaleView(); }
    EffectsPage* effects() const { return effects_; }
    TextPage* texts() const { return texts_; }

  signals:
    /// A main tab was chosen.
    void mainTabSelected(int key);

  private:
    QLineEdit* makeSearch();
    QScrollArea* makePages();
    void showPage(PanelPage* page);
    void showSegments();
    void layOutTabs();
    void find(const QString& text);
    bool showFound(const QStringList& words, Slips slips);
    bool showActions(const QStringList& words, Slips slips);
    void goToFirstFound();

    Binder& binder_;
    QGridLayout* tabs_;
    QButtonGroup* tabGroup_;
    QLineEdit* search_;
    QLabel* nothing_;
    QWidget* chips_ = nullptr;
    QWidget* found_;       ///< buttons of the actions that were found
    QVBoxLayout* column_;  ///< of the pages
    QScrollArea* scroll_;
    AdjustPage* adjust_;
    EffectsPage* effects_;
    TextPage* texts_;
    std::vector<QAction*> actions_;
    std::vector<PanelPage*> pages_;
    std::vector<GroupBox*> groups_;
    std::vector<SegmentBar*> segments_;
    PanelPage* current_ = nullptr;
};

/// The commands that turn to the pages of a panel.
std::vector<Command> pageCommands(SidePanel& panel);

}  // namespace tavrin
