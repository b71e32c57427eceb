#include "ui/booth/EventPage.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFontComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSpinBox>
#include <QToolButton>

#include "ui/ReasonText.h"
#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

const BindingGroup kBoothGroup{"groupEventBooth", QT_TRANSLATE_NOOP("Panel", "Photo booth"), nullptr, {}};
const BindingGroup kGuestGroup{"groupEventGuest", QT_TRANSLATE_NOOP("Panel", "This guest"), nullptr, {}};
const BindingGroup kTextGroup{"groupEventText", QT_TRANSLATE_NOOP("Panel", "Text on the picture"), nullptr, {}};
const BindingGroup kServiceGroup{
    "groupEventService", QT_TRANSLATE_NOOP("Panel", "How the booth is doing"), nullptr, {}};

constexpr const char* kLimitKey = "eventCopyLimit";
constexpr const char* kSizes[] = {"X-Large", "Large", "Medium", "Small"};
constexpr int kMostCopies = 10, kMostInPack = 9999;

QLabel* wordLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

QWidget* gridOf(const std::vector<QToolButton*>& buttons, const QString& name) {
    auto* whole = new QWidget;
    whole->setAccessibleName(name);
    auto* grid = new QGridLayout(whole);
    grid->setContentsMargins(0, 0, 0, 0);
    int at = 0;
    for (QToolButton* button : buttons) {
        grid->addWidget(button, at / 2, at % 2);
        ++at;
    }
    return whole;
}

}  // namespace

EventPage::EventPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelEvent", "TabEvent", 3, QT_TRANSLATE_NOOP("Panel", "Event"),
                 QT_TRANSLATE_NOOP("Panel", "The photo booth: one press for each guest"), false},
                parent),
      binder_(binder) {
    addBooth();
    addGuest();
    addText();
    addService();
    updateEventUI();
    showState(State::setup);
}

QToolButton* EventPage::button(const char* name) const {
    return findChild<QToolButton*>(name);
}

QToolButton* EventPage::add(const ButtonWords& words) {
    QToolButton* button = makeButton(words.name, words.handler, words.text, words.toolTip);
    if (words.wanted) connect(button, &QToolButton::clicked, this, words.wanted);
    return button;
}

/// A label with what belongs to it in one line.
QWidget* EventPage::line(const QString& label, const std::vector<QWidget*>& parts) {
    auto* whole = new QWidget;
    whole->setAccessibleName(label);
    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins(0, 0, 0, 0);
    auto* words = new QLabel(label);
    words->setBuddy(parts.front());
    row->addWidget(words, 1);
    for (QWidget* part : parts)
        row->addWidget(part);
    return whole;
}

QLineEdit* EventPage::field(const char* name, const char* handler, const QString& label, const QString& toolTip) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setProperty("handler", handler);
    field->setAccessibleName(label);
    field->setPlaceholderText(label);
    field->setToolTip(toolTip);
    return field;
}

void EventPage::addBooth() {
    GroupBox* group = addGroup(kBoothGroup, binder_);
    tickets_ = wordLabel("textQLXCount");
    pictures_ = wordLabel("textImageCount");
    group->addStatus(line(tr("Pictures"), {pictures_}));  // each goes above the one before
    group->addStatus(line(tr("Tickets"), {tickets_}));
    QToolButton* guests = add({"buttonGuestScreen", "showGuestScreen:", tr("Guest screen"),
                               tr("Shows the picture and the backgrounds to the guests, on a second display where "
                                  "there is one"),
                               nullptr});
    guests->setCheckable(true);
    connect(guests, &QToolButton::toggled, this, &EventPage::guestScreenWanted);
    group->addItem(gridOf(
        {add({"eventModeStart", "eventModeStart:", tr("Start"),
              tr("From now on each press becomes a picture, beside what is done here"), &EventPage::startWanted}),
         add({"eventModeStop", "eventModeStop:", tr("Stop"),
              tr("Ends after the picture in hand; presses that wait are made with the next start"),
              &EventPage::stopWanted}),
         add({"buttonEventSetup", "ShowEventSetup:", tr("Setup..."), tr("Folders, letter, print page and printer"),
              &EventPage::setupWanted}),
         guests,
         add({"buttonEventLayout", "ChangeEventLayout:", QString(),
              tr("Turns to the other layout: its backgrounds, and the output size of its shape"),
              &EventPage::layoutWanted})},
        tr("Start, stop, setup, layout")));
    problem_ = wordLabel("textEventProblem");
    problem_->setProperty("problem", true);
    problem_->setFixedHeight(2 * problem_->fontMetrics().lineSpacing());  // the buttons below never move
    problem_->setAlignment(Qt::AlignTop);
    group->addWidget(problem_);
}

void EventPage::addGuest() {
    GroupBox* group = addGroup(kGuestGroup, binder_);
    search_ = field("textFieledSearch", "eventSearchForImage:", tr("Search a portrait by name"),
                    tr("Shows the first portrait whose name has these letters"));
    connect(search_, &QLineEdit::returnPressed, this, &EventPage::searchWanted);
    QToolButton* find =
        add({"buttonEventSearch", "eventSearchForImage:", tr("Find"), search_->toolTip(), &EventPage::searchWanted});
    auto* searchLine = new QWidget;
    searchLine->setAccessibleName(search_->accessibleName());
    auto* row = new QHBoxLayout(searchLine);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(search_, 1);
    row->addWidget(find);
    group->addItem(searchLine);
    address_ = field("textFieledEventEmail", "eventModeSaveAndEmail:", tr("Mail address or telephone number"),
                     tr("Where the picture goes by mail or as a text message"));
    group->addItem(address_);
    copies_ = field("textEventPrintCount", "eventModePrintCountUp:", tr("Copies"),
                    tr("Prints of the next picture, 1 to 10; 1 again after it"));
    copies_->setMaximumWidth(48);
    copies_->setAlignment(Qt::AlignCenter);
    QToolButton* fewer = add({"eventModePrintCountDown", "eventModePrintCountDown:", QString(QChar(0x2212)),
                              tr("One print less"), &EventPage::countDownWanted});
    QToolButton* more = add(
        {"eventModePrintCountUp", "eventModePrintCountUp:", "+", tr("One print more"), &EventPage::countUpWanted});
    for (QToolButton* one : {fewer, more})
        one->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    fewer->setAccessibleName(fewer->toolTip());
    more->setAccessibleName(more->toolTip());
    group->addItem(line(tr("Copies"), {fewer, copies_, more}));
    group->addItem(
        gridOf({add({"eventModeSave", "eventModeSave:", tr("Save"), tr("The picture is made and kept"),
                     &EventPage::saveWanted}),
                add({"eventModeSavePrint", "eventModeSaveAndPrint:", tr("Print"),
                     tr("The picture is made and printed"), &EventPage::printWanted}),
                add({"eventModeSaveEmail", "eventModeSaveAndEmail:", tr("Mail"),
                     tr("The picture is made and sent to the mail address"), &EventPage::mailWanted}),
                add({"eventModeSendText", "eventModeSaveAndText:", tr("Text message"),
                     tr("The picture is made and sent to the telephone number"), &EventPage::textMessageWanted})},
               tr("Save, print, mail, text message")));
    for (const char* name : {"eventModeSave", "eventModeSavePrint", "eventModeSaveEmail", "eventModeSendText"})
        button(name)->setMinimumHeight(44);
}

void EventPage::addText() {
    GroupBox* group = addGroup(kTextGroup, binder_);
    name_ = field("textFieledEventUserName", "eventTextChanged:", tr("Line of text"),
                  tr("Such as the name of the guest"));
    connect(name_, &QLineEdit::returnPressed, this, &EventPage::addTextWanted);
    group->addItem(name_);
    font_ = new QFontComboBox;
    font_->setObjectName("eventFont");
    font_->setProperty("handler", "eventModeSetupText:");
    font_->setAccessibleName(tr("Font of the line"));
    font_->setToolTip(font_->accessibleName());
    font_->setMinimumWidth(60);
    QLineEdit* typed = font_->lineEdit();
    typed->setObjectName("eventFontName");
    typed->setProperty("handler", "eventModeSetupText:");
    typed->setAccessibleName(font_->accessibleName());
    typed->setToolTip(font_->toolTip());
    group->addItem(line(tr("Font"), {font_}));
    size_ = new QComboBox;
    size_->setObjectName("evenSize");
    size_->setProperty("handler", "eventModeTextChanded:");
    size_->setAccessibleName(tr("Size of the line"));
    size_->setToolTip(size_->accessibleName());
    const QString words[] = {tr("Very large"), tr("Large"), tr("Medium"), tr("Small")};
    for (std::size_t i = 0; i < std::size(kSizes); ++i)
        size_->addItem(words[i], QString(kSizes[i]));
    group->addItem(line(tr("Size"), {size_}));
    color_ = new QButtonGroup(this);
    auto* white = new QRadioButton(tr("White"));
    auto* black = new QRadioButton(tr("Black"));
    white->setObjectName("evenColorWhite");
    black->setObjectName("evenColorBlack");
    for (QRadioButton* one : {white, black}) {
        one->setProperty("handler", "clickedEventTextColorRadiobutton:");
        one->setToolTip(tr("Colour of the line"));
    }
    color_->addButton(black, 1);
    color_->addButton(white, 2);
    connect(color_, &QButtonGroup::idClicked, this, [this](int key) { useTextColor(key == 1); });
    group->addItem(line(tr("Colour"), {white, black}));
    shadow_ = new QCheckBox(tr("Shadow"));
    shadow_->setObjectName("evenDropShadow");
    shadow_->setProperty("handler", "eventTextChanged:");
    shadow_->setToolTip(tr("A shadow below the line, in the other colour"));
    group->addItem(shadow_);
    group->addItem(add({"buttonEventAddText", "buttonAddTextClicked:", tr("Add the text"),
                        tr("Puts the line on the picture, where it can be moved with the mouse on \"Text\""),
                        &EventPage::addTextWanted}));
}

/// The third label's colour, which the booth's line does not use.
void EventPage::useTextColor(bool black) {
    binder_.editor().info().oFontLabelObject[2].sFontColor = black ? "Black" : "White";
}

QLabel* EventPage::status(const char* name, const QString& label) {
    auto* grid = static_cast<QGridLayout*>(rows_->layout());
    QLabel* value = wordLabel(name);
    const int row = grid->rowCount();
    auto* words = new QLabel(label);
    words->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(words, row, 0);
    grid->addWidget(value, row, 1);
    return value;
}

void EventPage::addService() {
    GroupBox* group = addGroup(kServiceGroup, binder_);
    rows_ = new QWidget;
    auto* grid = new QGridLayout(rows_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    job_ = status("textEventJob", tr("Now"));
    sign_ = status("textEventSign", tr("Sign of life"));
    printer_ = status("textEventPrinter", tr("Printer"));
    mails_ = status("textEventMails", tr("Mails"));
    today_ = status("textEventToday", tr("Today"));
    group->addStatus(rows_);
    limit_ = new QSpinBox;
    limit_->setObjectName("eventCopyLimit");
    limit_->setProperty("handler", "eventCopyLimit");
    limit_->setRange(0, kMostCopies);
    limit_->setSpecialValueText(tr("no limit"));
    limit_->setToolTip(tr("Most prints that one press gives"));
    limit_->setAccessibleName(tr("Most copies a guest"));
    limit_->setValue(windowSettings().value(kLimitKey, 0).toInt());
    connect(limit_, &QSpinBox::valueChanged, this, [](int limit) { windowSettings().setValue(kLimitKey, limit); });
    group->addItem(line(tr("Most copies a guest"), {limit_}));
    pack_ = new QSpinBox;
    pack_->setObjectName("eventPackSize");
    pack_->setProperty("handler", "refillPack");
    pack_->setRange(0, kMostInPack);
    pack_->setValue(100);
    pack_->setToolTip(tr("Prints that a new pack of paper and ribbon gives"));
    pack_->setAccessibleName(tr("New pack of prints"));
    QToolButton* refill = add({"buttonEventRefill", "refillPack", tr("Put in"),
                               tr("A new pack was put into the printer: its prints are counted down"), nullptr});
    connect(refill, &QToolButton::clicked, this, [this] { emit refillWanted(pack_->value()); });
    group->addItem(line(tr("New pack of prints"), {pack_, refill}));
    failures_ = new QListWidget;
    failures_->setObjectName("listEventFailures");
    failures_->setAccessibleName(tr("What went wrong"));
    failures_->setMaximumHeight(90);
    failures_->setWordWrap(true);
    failures_->hide();
    group->addWidget(failures_);
    group->addItem(gridOf({add({"buttonEventRetry", "retryBroken", tr("Try these again"),
                                tr("Makes the tickets once more that were set aside"), &EventPage::retryWanted}),
                           add({"buttonEventExport", "exportCounts", tr("Counts as CSV..."),
                                tr("Writes what each day gave into a table"), &EventPage::exportWanted})},
                          tr("Try again, counts")));
    button("buttonEventRetry")->setEnabled(false);
}

EventText EventPage::text() const {
    return {name_->text().toStdString(), font_->currentFont().family().toStdString(),
            size_->currentData().toString().toStdString(), shadow_->isChecked(), color_->checkedId() == 1};
}

void EventPage::clearText() {
    name_->clear();
}

int EventPage::copyLimit() const {
    return limit_->value();
}

void EventPage::updateEventUI() {
    const QLXInfo& settings = *binder_.editor().info().oQLXInfo;
    name_->clear();
    const std::string font = settings.sEventFontName;
    font_->setCurrentFont(QFont(font.empty() ? "Arial" : QString::fromStdString(font)));
    const int size = size_->findData(QString::fromStdString(settings.sEventLabelSize));
    size_->setCurrentIndex(size < 0 ? 2 : size);
    shadow_->setChecked(settings.bEventDropShadow);
    color_->button(settings.sEventFontColor.load() == "Black" ? 1 : 2)->setChecked(true);
}

void EventPage::showState(State state) {
    button("eventModeStart")->setEnabled(state == State::setup);
    for (const char* name :
         {"eventModeStop", "eventModeSave", "eventModeSavePrint", "eventModeSaveEmail", "eventModeSendText"})
        button(name)->setEnabled(state == State::running);
}

void EventPage::showLayoutButton(const QString& words) {
    button("buttonEventLayout")->setText(words);
}

void EventPage::showProblem(const QString& words) {
    problem_->setText(words);
    problem_->setToolTip(words);
}

void EventPage::showSigns(const EventSigns& signs, const QString& note) {
    using Clock = EventSigns::Clock;
    const auto secondsSince = [](Clock::time_point then) {
        return std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - then).count();
    };
    const auto words = [](const std::string& text) { return reasonText(text); };
    job_->setText(!signs.job.empty()      ? tr("%1, for %2 s").arg(words(signs.job)).arg(secondsSince(signs.since))
                  : !signs.isRunning      ? tr("stopped")
                  : signs.jobsWaiting > 0 ? tr("waiting: %1").arg(signs.jobsWaiting)
                                          : tr("nothing to do"));
    sign_->setText(signs.isRunning ? tr("%1 s ago").arg(secondsSince(signs.lastSign)) : QString(QChar(0x2013)));
    QStringList printer{words(signs.printer), words(signs.printerState)};
    if (signs.printsWaiting > 0) printer << tr("waiting: %1").arg(signs.printsWaiting);
    if (signs.printsUnsure > 0) printer << tr("perhaps printed, see Print: %1").arg(signs.printsUnsure);
    if (signs.printsLeft >= 0) printer << tr("left in the pack: %1").arg(signs.printsLeft);
    printer.removeAll(QString());
    printer_->setText(printer.isEmpty() ? QString(QChar(0x2013)) : printer.join(", "));
    QStringList mails{tr("waiting: %1").arg(signs.mailsWaiting)};
    if (signs.mailsHeld > 0) mails << tr("to be looked at, see Mail: %1").arg(signs.mailsHeld);
    if (!signs.mailTrouble.empty()) mails << words(signs.mailTrouble);
    mails_->setText(mails.join(", "));
    const bool isKnown = signs.lastSign != Clock::time_point();  // nobody has looked before the first start
    today_->setText(isKnown ? tr("%1 pictures, %2 prints, %3 mails")
                                  .arg(signs.today.pictures)
                                  .arg(signs.today.prints)
                                  .arg(signs.today.mails)
                            : QString(QChar(0x2013)));
    QStringList troubles{words(signs.trouble), words(signs.printerTrouble), note};
    troubles.removeAll(QString());
    if (signs.isRunning) showProblem(troubles.join('\n'));
    if (failures_->count() != static_cast<int>(signs.failures.size())) {
        failures_->clear();
        for (const EventFailure& failure : signs.failures)
            failures_->addItem(QDateTime::fromMSecsSinceEpoch(failure.at).toString("HH:mm ") + words(failure.ticket) +
                               ": " + words(failure.reason));
        failures_->setVisible(failures_->count() > 0);
    }
    button("buttonEventRetry")->setEnabled(signs.brokenTickets > 0);
}

}  // namespace tavrin
