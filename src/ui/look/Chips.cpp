#include "ui/look/Chips.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QToolButton>

#include "session/Recipe.h"
#include "session/TextItems.h"

namespace tavrin {

namespace {

constexpr std::size_t kFirst = 6;
constexpr int kGap = 4;

QString wordsOf(const ControlRow* row) {
    const QString label = ControlRow::translated(row->binding().label), value = row->valueText();
    return value.isEmpty() ? label : tavrin::Chips::tr("%1: %2").arg(label, value);
}

QToolButton* makeButton(const QString& name, const QString& text, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setProperty("chip", true);
    button->setText(text);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

const GroupBox* groupOf(const QWidget* row) {
    for (const QWidget* at = row; at; at = at->parentWidget())
        if (const auto* group = qobject_cast<const GroupBox*>(at)) return group;
    return nullptr;
}

std::map<std::string, std::string> startOf(const SystemInfo& info) {
    const SettingValues values = settingsOf(info);
    return {values.begin(), values.end()};
}

}  // namespace

Chips::Chips(Binder& binder, QWidget* parent)
    : QWidget(parent), binder_(binder), start_(startOf(binder.editor().info())) {
    setObjectName("chips");
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    due_.setSingleShot(true);  // a drag shows its control many times
    connect(&due_, &QTimer::timeout, this, &Chips::refresh);
    connect(&binder, &Binder::shown, this, [this] {
        if (!due_.isActive()) due_.start(30);
    });
}

/// An item on the picture was not there at the start, so its defaults stand for that.
bool Chips::isAtStart(const ControlRow& row) const {
    const auto start = start_.find(binder_.settingOf(row.binding()));
    if (row.binding().owner == Owner::item || start == start_.end()) return row.isAtDefault();
    return start->second == binder_.editor().value(start->first);
}

Chips::Entry Chips::entryOf(ControlRow* row) const {
    return {row->binding().control,
            ControlRow::translated(row->binding().label),
            wordsOf(row),
            tr("Set here; a click leads to the control"),
            tr("Put back what it is at the start"),
            row,
            [this, row] {
                const auto start = start_.find(binder_.settingOf(row->binding()));
                if (row->binding().owner == Owner::item || start == start_.end()) return emit row->resetWanted();
                emit row->changed(QString::fromStdString(start->second).toDouble());
            }};
}

Chips::Entry Chips::entryOf(const GroupBox* group) const {
    const std::vector<QWidget*>& items = group->items();
    return {group->objectName(),
            ControlRow::translated(group->group().title),
            binder_.onWords(group->group()),
            tr("Switched on; a click leads to its controls"),
            tr("Switch it off"),
            items.empty() ? static_cast<const QWidget*>(group) : items.front(),
            [this, group] { binder_.switchOff(group->group()); }};
}

Chips::Entry Chips::itemsEntry() const {
    const auto row =
        std::ranges::find(binder_.rows(), Owner::item, [](ControlRow* one) { return one->binding().owner; });
    return {"items",
            tr("Texts and pictures"),
            tr("Texts and pictures: %1").arg(binder_.editor().info().iFontObjectCount()),
            tr("On the picture; a click leads to the controls"),
            tr("Take all of them away"),
            row == binder_.rows().end() ? nullptr : *row,
            [this] {
                binder_.run(tr("Take all texts and pictures away"),
                            [](SettingEditor& editor) { setItemCount(editor, "0"); });
            }};
}

Chips::Entry Chips::entryOf(PictureRow* slot) const {
    return {slot->setting().control,  slot->accessibleName(),
            slot->accessibleName(),   tr("Switched on; a click leads to its controls"),
            tr("Switch it off"),      slot,
            [slot] { slot->clear(); }};
}

/// An effect counts as one, however many of its controls are set.
std::vector<Chips::Entry> Chips::entries() const {
    std::vector<Entry> entries;
    const GroupBox* last = nullptr;
    for (ControlRow* row : binder_.rows()) {
        const GroupBox* group = groupOf(row);
        if (!group || !group->group().acts) {
            if (!isAtStart(*row)) entries.push_back(entryOf(row));
        } else if (group != last && binder_.isOn(group->group())) {
            entries.push_back(entryOf(group));
        }
        last = group;
    }
    for (PictureRow* slot : slots_)
        if (slot->hasFile()) entries.push_back(entryOf(slot));
    if (binder_.editor().info().iFontObjectCount() > 0) entries.push_back(itemsEntry());
    return entries;
}

QWidget* Chips::makeChip(const Entry& entry) {
    auto* chip = new QWidget(this);
    auto* line = new QHBoxLayout(chip);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    QToolButton* words = makeButton(entry.name + "Chip", entry.words, chip);
    words->setProperty("handler", "showControl");
    words->setToolTip(entry.toolTip);
    connect(words, &QToolButton::clicked, this, [this, place = entry.place] { emit wanted(place); });
    QToolButton* cross = makeButton(entry.name + "ChipReset", QStringLiteral("\u00d7"), chip);
    cross->setProperty("handler", "resetControl");
    cross->setToolTip(entry.offToolTip);
    cross->setAccessibleName(tr("%1: %2").arg(entry.offToolTip, entry.label));
    connect(cross, &QToolButton::clicked, this, entry.off);
    line->addWidget(words);
    line->addWidget(cross);
    return chip;
}

void Chips::rebuild() {
    for (QWidget* old : chips_) {
        old->hide();
        old->deleteLater();  // its cross may be at work
    }
    chips_.clear();
    const std::size_t shown = all_ ? entries_.size() : std::min(entries_.size(), kFirst);
    for (std::size_t i = 0; i < shown; ++i)
        chips_.push_back(makeChip(entries_[i]));
    if (entries_.size() > kFirst) {
        QToolButton* more =
            makeButton("chipsMore", all_ ? tr("fewer") : tr("%1 more").arg(entries_.size() - shown), this);
        more->setProperty("handler", "showMoreChips");
        more->setToolTip(tr("Shows what else is set here, or only the first"));
        connect(more, &QToolButton::clicked, this, [this] {
            all_ = !all_;
            rebuild();
            layOut(width(), true);
        });
        chips_.push_back(more);
    }
    for (QWidget* chip : chips_)
        chip->show();
    placeInTabOrder();
    updateGeometry();
}

/// Chips stay while only their words change, so that one with the focus keeps it.
void Chips::refresh() {
    std::vector<Entry> now = entries();
    const bool same = std::ranges::equal(now, entries_, {}, &Entry::name, &Entry::name);
    entries_ = std::move(now);
    if (!same || chips_.empty()) rebuild();
    for (std::size_t i = 0; i < entries_.size() && i < chips_.size(); ++i)
        if (auto* words = chips_[i]->findChild<QToolButton*>(entries_[i].name + "Chip"))
            words->setText(entries_[i].words);
    layOut(width(), true);
}

/// New buttons come last in the window's order, and stand before the controls.
void Chips::placeInTabOrder() {
    const auto takesTab = [this](const QWidget* widget) {
        return (widget->focusPolicy() & Qt::TabFocus) && !isAncestorOf(widget);
    };
    QWidget* last = previousInFocusChain();
    while (last != this && !takesTab(last))
        last = last->previousInFocusChain();
    for (QWidget* chip : chips_) {
        QList<QToolButton*> buttons = chip->findChildren<QToolButton*>();
        if (auto* button = qobject_cast<QToolButton*>(chip)) buttons.append(button);
        for (QToolButton* button : buttons) {
            setTabOrder(last, button);
            last = button;
        }
    }
}

/// Fills lines from the start of the reading direction.
/// @return the height that it takes
int Chips::layOut(int width, bool place) const {
    int x = 0, y = 0, height = 0;
    for (QWidget* chip : chips_) {
        const QSize size = chip->sizeHint().boundedTo(QSize(std::max(width, 1), QWIDGETSIZE_MAX));
        if (x > 0 && x + size.width() > width) {
            x = 0;
            y += height + kGap;
        }
        const int left = layoutDirection() == Qt::RightToLeft ? width - x - size.width() : x;
        if (place) chip->setGeometry(QRect(QPoint(left, y), size));
        x += size.width() + kGap;
        height = size.height();
    }
    return y + height;
}

QSize Chips::sizeHint() const {
    return {200, layOut(std::max(width(), 200), false)};
}

void Chips::resizeEvent(QResizeEvent*) {
    layOut(width(), true);
}

}  // namespace tavrin
