#include "ui/frame/SidePanel.h"

#include <algorithm>

#include <QAction>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/WindowSettings.h"
#include "ui/frame/SegmentBar.h"

namespace tavrin {

namespace {

constexpr const char* kPageKey = "mainTab";
constexpr int kTabsInALine = 4;

/// The part of an item that takes the keys; of buttons to choose from, the one in force.
void giveFocus(QWidget* item) {
    const auto* row = qobject_cast<const ControlRow*>(item);
    QWidget* control = row ? row->control() : item;
    if (control->focusPolicy() == Qt::NoFocus) {
        QWidget* first = nullptr;
        for (QWidget* part : control->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<const QAbstractButton*>(part);
            if ((part->focusPolicy() & Qt::TabFocus) && (!first || (button && button->isChecked()))) first = part;
        }
        if (first) control = first;
    }
    control->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace

SidePanel::SidePanel(Binder& binder, QWidget* parent)
    : QDockWidget(tr("Controls"), parent),
      binder_(binder),
      tabs_(new QGridLayout),
      tabGroup_(new QButtonGroup(this)),
      search_(makeSearch()),
      nothing_(new QLabel(tr("No control has these words."))),
      found_(new QWidget),
      scroll_(makePages()),
      adjust_(new AdjustPage(binder)),
      effects_(new EffectsPage(binder)),
      texts_(new TextPage(binder)) {
    setObjectName("ControlPickerWindow");
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    auto* whole = new QWidget(this);
    auto* column = new QVBoxLayout(whole);
    tabs_->setSpacing(2);
    column->addLayout(tabs_);
    column->addWidget(search_);
    chips_ = new QWidget(whole);
    auto* chips = new Chips(binder, chips_);
    auto* chipColumn = new QVBoxLayout(chips_);
    chipColumn->setContentsMargins(0, 0, 0, 0);
    chipColumn->addWidget(chips);
    connect(chips, &Chips::wanted, this, &SidePanel::reveal);
    for (PictureRow* slot : effects_->overlays())
        chips->addSlot(slot);
    column->addWidget(chips_);
    SystemInfo& info = binder.editor().info();
    segments_ = {adjustmentSegments(*adjust_, *scroll_, info), effectSegments(*effects_, *scroll_, info)};
    for (SegmentBar* bar : segments_)
        column->addWidget(bar);
    column->addWidget(scroll_, 1);
    setWidget(whole);
    connect(effects_, &EffectsPage::wanted, this, &SidePanel::reveal);
    addPage(adjust_);
    addPage(effects_);
    connect(texts_, &TextPage::wanted, this, &SidePanel::reveal);
    addPage(texts_);
}

QLineEdit* SidePanel::makeSearch() {
    auto* search = new QLineEdit;
    search->setObjectName("searchControls");
    search->setProperty("handler", "find");
    search->setPlaceholderText(tr("Search the controls"));
    search->setAccessibleName(search->placeholderText());
    search->setToolTip(tr("Finds controls and commands by words in any order; Enter goes to the first"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, &SidePanel::find);
    connect(search, &QLineEdit::returnPressed, this, &SidePanel::goToFirstFound);
    return search;
}

QScrollArea* SidePanel::makePages() {
    auto* pages = new QWidget;
    column_ = new QVBoxLayout(pages);
    column_->setSpacing(4);
    (new QVBoxLayout(found_))->setContentsMargins(0, 0, 0, 0);
    for (QWidget* unseen : {found_, static_cast<QWidget*>(nothing_)}) {
        column_->addWidget(unseen);
        unseen->hide();
    }
    column_->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(pages);
    return scroll;
}

void SidePanel::addPage(PanelPage* page) {
    page->alignLabels();
    pages_.push_back(page);
    groups_.insert(groups_.end(), page->groups().begin(), page->groups().end());
    column_->insertWidget(column_->count() - 1, page);
    page->hide();
    const int needed = page->minimumSizeHint().width() + column_->contentsMargins().left() +
                       column_->contentsMargins().right() + scroll_->verticalScrollBar()->sizeHint().width();
    scroll_->setMinimumWidth(std::max(scroll_->minimumWidth(), needed));

    const PageTitle& title = page->title();
    auto* tab = new QToolButton;
    tab->setObjectName(QString("main") + title.command);
    tab->setProperty("tab", true);
    tab->setProperty("handler", "selectMainTab:");
    tab->setText(ControlRow::translated(title.title));
    tab->setAccessibleName(tr("Controls: %1").arg(tab->text()));
    tab->setToolTip(ControlRow::translated(title.toolTip));
    tab->setCheckable(true);
    tab->setFocusPolicy(Qt::TabFocus);
    tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    tabGroup_->addButton(tab, title.key);
    connect(tab, &QToolButton::clicked, this, [this, page] { selectMainTab(page->title().key); });
    layOutTabs();
    if (!current_ || windowSettings().value(kPageKey).toString() == title.name) showPage(page);
}

/// By their keys, a few in a line.
void SidePanel::layOutTabs() {
    std::ranges::sort(pages_, {}, [](const PanelPage* page) { return page->title().key; });
    for (int i = 0; i < static_cast<int>(pages_.size()); ++i) {
        QAbstractButton* tab = tabGroup_->button(pages_[static_cast<std::size_t>(i)]->title().key);
        tabs_->addWidget(tab, i / kTabsInALine, i % kTabsInALine);
        setTabOrder(search_, tab);  // behind it, and it behind the tab: before it, after the tabs that were there
        setTabOrder(tab, search_);
    }
}

void SidePanel::selectMainTab(int key) {
    const auto page = std::ranges::find(pages_, key, [](const PanelPage* one) { return one->title().key; });
    if (page == pages_.end()) return;
    windowSettings().setValue(kPageKey, (*page)->title().name);
    search_->clear();
    showPage(*page);
    show();
    raise();
    emit mainTabSelected(key);
}

/// Each page comes back where it was scrolled to.
void SidePanel::showPage(PanelPage* page) {
    if (current_) {
        current_->setProperty("scrolledTo", scroll_->verticalScrollBar()->value());
        current_->hide();
    }
    current_ = page;
    page->show();
    chips_->setVisible(page->title().showsChips);
    showSegments();
    tabGroup_->button(page->title().key)->setChecked(true);
    scroll_->widget()->layout()->activate();
    scroll_->verticalScrollBar()->setValue(page->property("scrolledTo").toInt());
}

/// Those of the page that is turned to, unless pages are mixed by a search.
void SidePanel::showSegments() {
    for (SegmentBar* bar : segments_)
        bar->setVisible(&bar->page() == current_ && search_->text().isEmpty());
}

/// Words with slips of the fingers count only where there is nothing without.
void SidePanel::find(const QString& text) {
    const QStringList words = searchWords(text);
    const bool any = showFound(words, Slips::none) || showFound(words, Slips::some);
    for (PanelPage* page : pages_)
        if (words.isEmpty()) page->setVisible(page == current_);
    nothing_->setVisible(!any);
    showSegments();
}

/// While words are searched for, every page that has them is shown.
bool SidePanel::showFound(const QStringList& words, Slips slips) {
    bool any = showActions(words, slips);
    for (PanelPage* page : pages_) {
        const bool has = page->showMatching(words, slips);
        page->setVisible(has);
        any = any || has;
    }
    return any;
}

bool SidePanel::showActions(const QStringList& words, Slips slips) {
    constexpr int kMost = 6;
    for (QToolButton* old : found_->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly))
        delete old;
    int shown = 0;
    for (QAction* action : actions_) {
        if (words.isEmpty() || shown == kMost) break;
        const QString text = action->text().section('\t', 0, 0).remove('&');
        if (!hasWords(text + ' ' + action->toolTip(), words, slips)) continue;
        auto* button = new QToolButton(found_);
        button->setObjectName(action->objectName() + "Found");
        button->setProperty("handler", action->objectName());
        button->setText(text);
        button->setToolTip(action->toolTip());
        button->setEnabled(action->isEnabled());
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(button, &QToolButton::clicked, action, &QAction::trigger, Qt::QueuedConnection);
        found_->layout()->addWidget(button);
        ++shown;
    }
    found_->setVisible(shown > 0);
    return shown > 0;
}

void SidePanel::goToFirstFound() {
    for (const PanelPage* page : pages_)
        if (QWidget* item = page->isHidden() ? nullptr : page->firstShown()) return giveFocus(item);
    if (auto* button = found_->findChild<QToolButton*>(); button && !found_->isHidden()) button->setFocus();
}

void SidePanel::reveal(const QWidget* item) {
    show();
    raise();
    search_->clear();
    for (PanelPage* page : pages_)
        if (page->isAncestorOf(item)) selectMainTab(page->title().key);
    const auto group = std::ranges::find_if(groups_, [item](const GroupBox* one) { return one->isAncestorOf(item); });
    if (group != groups_.end()) (*group)->setFolded(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (group != groups_.end()) scroll_->ensureWidgetVisible(*group);  // all of it, where it fits
    scroll_->ensureWidgetVisible(const_cast<QWidget*>(item));
    giveFocus(const_cast<QWidget*>(item));
}

void SidePanel::resetAll() {
    SystemInfo& info = binder_.editor().info();
    const auto layer = info.iActiveBitmap.load();
    binder_.run(tr("Reset all"), [&](SettingEditor&) {
        for (const int one : {0, 1}) {
            info.iActiveBitmap = one;
            for (const GroupBox* group : groups_)
                if (group->group().reset) binder_.resetGroup(group->group());
        }
        info.iActiveBitmap = layer;
    });
}

std::vector<Command> pageCommands(SidePanel& panel) {
    std::vector<Command> commands;
    for (const PanelPage* page : panel.pages()) {
        const PageTitle& title = page->title();
        commands.push_back({title.command,
                            commands.empty() ? "|&View" : "&View",
                            SidePanel::tr("Controls: %1").arg(ControlRow::translated(title.title)),
                            ControlRow::translated(title.toolTip),
                            "",
                            QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + title.key)),
                            {},
                            [&panel, key = title.key](bool) { panel.selectMainTab(key); }});
    }
    return commands;
}

}  // namespace tavrin
