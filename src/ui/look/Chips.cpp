#include "ui/look/Chips.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QToolButton>

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

}  // namespace

Chips::Chips(Binder& binder, QWidget* parent) : QWidget(parent), binder_(binder) {
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

QWidget* Chips::makeChip(ControlRow* row) {
    auto* chip = new QWidget(this);
    auto* line = new QHBoxLayout(chip);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    const QString label = ControlRow::translated(row->binding().label);
    QToolButton* words = makeButton(QString(row->binding().control) + "Chip", wordsOf(row), chip);
    words->setProperty("handler", "showControl");
    words->setToolTip(tr("Set here; a click leads to the control"));
    connect(words, &QToolButton::clicked, this, [this, row] { emit wanted(row); });
    QToolButton* cross = makeButton(QString(row->binding().control) + "ChipReset", QStringLiteral("\u00d7"), chip);
    cross->setProperty("handler", "resetControl");
    cross->setToolTip(tr("Put the default back"));
    cross->setAccessibleName(tr("Reset %1").arg(label));
    connect(cross, &QToolButton::clicked, row, &ControlRow::resetWanted);
    line->addWidget(words);
    line->addWidget(cross);
    return chip;
}

void Chips::refresh() {
    std::vector<ControlRow*> rows;
    for (ControlRow* row : binder_.rows())
        if (!row->isAtDefault()) rows.push_back(row);
    if (rows != rows_ || chips_.empty()) {
        for (QWidget* old : chips_) {
            old->hide();
            old->deleteLater();  // its cross may be at work
        }
        chips_.clear();
        rows_ = rows;
        const std::size_t shown = all_ ? rows.size() : std::min(rows.size(), kFirst);
        for (std::size_t i = 0; i < shown; ++i)
            chips_.push_back(makeChip(rows[i]));
        if (rows.size() > kFirst) {
            QToolButton* more =
                makeButton("chipsMore", all_ ? tr("fewer") : tr("%1 more").arg(rows.size() - shown), this);
            more->setProperty("handler", "showMoreChips");
            more->setToolTip(tr("Shows what else is set here, or only the first"));
            connect(more, &QToolButton::clicked, this, [this] {
                all_ = !all_;
                rows_.clear();
                refresh();
            });
            chips_.push_back(more);
        }
        for (QWidget* chip : chips_)
            chip->show();
        placeInTabOrder();
        updateGeometry();
    }
    for (std::size_t i = 0; i < rows.size() && i < chips_.size(); ++i)
        if (auto* words = chips_[i]->findChild<QToolButton*>(QString(rows[i]->binding().control) + "Chip"))
            words->setText(wordsOf(rows[i]));
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
