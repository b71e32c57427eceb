#include "ui/picture/StoryPanel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr int kTextWidth = 240, kMargin = 12;

QWidget* valueOf(const StoryLine& line, QWidget* parent) {
    auto* value = new QWidget(parent);
    auto* layout = new QHBoxLayout(value);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    if (line.color) {
        QPixmap swatch(14, 14);
        const auto channel = [](double c) { return static_cast<int>(clampTo(c, 0.0, 255.0)); };
        swatch.fill(QColor(channel(line.color->r), channel(line.color->g), channel(line.color->b)));
        auto* shown = new QLabel(value);
        shown->setPixmap(swatch);
        layout->addWidget(shown, 0, Qt::AlignTop);
    }
    auto* text = new QLabel(line.text, value);
    text->setWordWrap(true);
    text->setFixedWidth(line.color ? kTextWidth - 20 : kTextWidth);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setAccessibleName(line.title + ' ' + line.text);
    layout->addWidget(text, 1);
    return value;
}

}  // namespace

StoryPanel::StoryPanel(QWidget* view) : QFrame(view), rows_(new QFormLayout) {
    setObjectName("storyPanel");
    setAccessibleName(tr("Story of a pixel"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setCursor(Qt::ArrowCursor);
    setFocusPolicy(Qt::StrongFocus);
    auto* close = new QToolButton(this);
    close->setObjectName("storyClose");
    close->setProperty("handler", "AskPicture");
    close->setProperty("quiet", true);
    close->setText(tr("close"));
    close->setAccessibleName(tr("Close the story of the pixel"));
    close->setToolTip(tr("Closes this panel; Esc does the same"));
    close->setFocusPolicy(Qt::TabFocus);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto* title = new QLabel("<b>" + tr("This pixel") + "</b>", this);
    auto* head = new QHBoxLayout;
    head->addWidget(title, 1);
    head->addWidget(close);
    rows_->setRowWrapPolicy(QFormLayout::DontWrapRows);
    rows_->setVerticalSpacing(4);
    auto* column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addLayout(rows_);
    hide();
}

void StoryPanel::show(const PixelStory& story, const QPointF& at) {
    while (rows_->rowCount() > 0)
        rows_->removeRow(0);
    for (const StoryLine& line : storyLines(story)) {
        auto* title = new QLabel(line.title, this);
        title->setAlignment(Qt::AlignTop);
        rows_->addRow(title, valueOf(line, this));
    }
    layout()->activate();
    adjustSize();
    const QSize room = parentWidget()->size();
    move(at.x() < room.width() / 2.0 ? room.width() - width() - kMargin : kMargin, kMargin);
    QFrame::show();
    raise();
}

void StoryPanel::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QFrame::keyPressEvent(event);
    hide();
    parentWidget()->setFocus();
}

}  // namespace tavrin
