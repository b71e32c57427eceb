#include "ui/text/WordRows.h"

#include <utility>

#include <QEvent>
#include <QFontComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/files/NameText.h"
#include "ui/bind/WheelGuard.h"

namespace tavrin {

namespace {

constexpr int kPause = 1000;          // ms without a key that end a step
constexpr int kMostLetters = 10'000;  // of a text that is laid out
constexpr int kLinesShown = 3;
constexpr int kLabelWidth = 90;

}  // namespace

WordRow::WordRow(const WordSetting& setting, Binder& binder, QWidget* parent)
    : QWidget(parent), setting_(setting), binder_(binder) {
    setAccessibleName(ControlRow::translated(setting.label));
    connect(&binder, &Binder::shown, this, &WordRow::refresh);
}

std::string WordRow::name() const {
    return ownerPrefix(binder_.editor().info(), setting_.owner) + setting_.setting;
}

void WordRow::take(const QString& value) {
    const std::string word = nameOfText(value);
    if (word == binder_.editor().value(name())) return;
    binder_.run(accessibleName(), [&](SettingEditor& editor) {
        editor.set(name(), word);
        if (setting_.handler->then) setting_.handler->then(editor, ownerPrefix(editor.info(), setting_.owner));
    });
}

void WordRow::addControl(QWidget* control) {
    control_ = control;
    control->setObjectName(setting_.control);
    control->setProperty("handler", setting_.handler->name);
    control->setProperty("setting", setting_.setting);
    control->setAccessibleName(accessibleName());
    control->setToolTip(ControlRow::translated(setting_.toolTip));
    auto* label = new QLabel(accessibleName(), this);
    label->setBuddy(control);
    label->setMinimumWidth(kLabelWidth);
    const bool isHigh = qobject_cast<QPlainTextEdit*>(control);
    label->setAlignment((isHigh ? Qt::AlignTop : Qt::AlignVCenter) | Qt::AlignLeading);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(control, 1);
    refresh();
}

void WordRow::refresh() {
    const QSignalBlocker quiet(control_);
    showWord(textOfName(binder_.editor().value(name())));
}

TypedRow::TypedRow(const WordSetting& setting, Binder& binder, QWidget* parent)
    : WordRow(setting, binder, parent), binder_(binder) {
    pause_.setSingleShot(true);
    pause_.setInterval(kPause);
    connect(&pause_, &QTimer::timeout, this, &TypedRow::endTyping);
}

void TypedRow::typed(const QString& text) {
    if (!std::exchange(typing_, true)) binder_.editor().beginStep(accessibleName().toStdString());
    take(text);
    pause_.start();
}

void TypedRow::endTyping() {
    pause_.stop();
    if (!std::exchange(typing_, false)) return;
    binder_.editor().endStep();
    emit binder_.changed();
}

bool TypedRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) endTyping();
    return WordRow::eventFilter(watched, event);
}

LineRow::LineRow(const WordSetting& setting, Binder& binder, QWidget* parent)
    : TypedRow(setting, binder, parent), line_(new QLineEdit(this)) {
    line_->setMaxLength(kMostLetters);
    line_->setClearButtonEnabled(true);
    line_->installEventFilter(this);
    connect(line_, &QLineEdit::textEdited, this, &LineRow::typed);
    connect(line_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty()) typed(text);  // by the button that clears
    });
    addControl(line_);
}

void LineRow::showWord(const QString& word) {
    if (line_->text() != word) line_->setText(word);
}

TextRow::TextRow(const WordSetting& setting, Binder& binder, QWidget* parent)
    : TypedRow(setting, binder, parent), edit_(new QPlainTextEdit(this)) {
    edit_->setTabChangesFocus(true);
    edit_->setFixedHeight(kLinesShown * edit_->fontMetrics().lineSpacing() + 14);
    edit_->installEventFilter(this);
    connect(edit_, &QPlainTextEdit::textChanged, this, [this] { typed(edit_->toPlainText().left(kMostLetters)); });
    addControl(edit_);
}

void TextRow::insert(const QString& text) {
    edit_->insertPlainText(text);
    edit_->setFocus();
}

void TextRow::showWord(const QString& word) {
    if (edit_->toPlainText() != word) edit_->setPlainText(word);
}

PickRow::PickRow(const WordSetting& setting, std::span<const Word> words, Binder& binder, QWidget* parent)
    : WordRow(setting, binder, parent), box_(new QComboBox(this)) {
    for (const Word& word : words)
        box_->addItem(ControlRow::translated(word.label), QString(word.value));
    new WheelGuard(box_);
    connect(box_, &QComboBox::activated, this, [this](int at) { take(box_->itemData(at).toString()); });
    addControl(box_);
}

/// A word of a state that none of the choices has shows none.
void PickRow::showWord(const QString& word) {
    box_->setCurrentIndex(box_->findData(word));
}

FontRow::FontRow(const WordSetting& setting, Binder& binder, QWidget* parent)
    : WordRow(setting, binder, parent), box_(new QFontComboBox(this)) {
    box_->setEditable(false);
    box_->setMinimumContentsLength(8);
    box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    new WheelGuard(box_);
    connect(box_, &QComboBox::activated, this, [this](int at) { take(box_->itemText(at)); });
    addControl(box_);
}

/// A font that is gone keeps its name here, for the state has it.
void FontRow::showWord(const QString& word) {
    const int at = box_->findText(word, Qt::MatchFixedString);
    box_->setCurrentIndex(at);
    if (at < 0) box_->setPlaceholderText(word.isEmpty() ? word : WordRow::tr("%1 (not installed)").arg(word));
}

}  // namespace tavrin
