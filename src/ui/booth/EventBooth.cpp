#include "ui/booth/EventBooth.h"

#include <algorithm>
#include <fstream>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "booth/BoothFolder.h"
#include "core/files/NameText.h"
#include "core/files/StandardPath.h"
#include "delivery/mail/EventMail.h"
#include "folders/NextFileInFolder.h"
#include "ui/ReasonText.h"
#include "ui/booth/EventPage.h"
#include "ui/booth/GuestScreen.h"
#include "ui/mail/MailDesk.h"

namespace tavrin {

namespace {

constexpr int kTick = 1000;  // milliseconds between looks at the booth
constexpr int kMostCopies = 10;

/// For the translations: the words are the desk's.
[[maybe_unused]] constexpr const char* kLayouts[] = {
    QT_TRANSLATE_NOOP("tavrin::EventBooth", "Go to Portrait Layout"),
    QT_TRANSLATE_NOOP("tavrin::EventBooth", "Go to Landscape Layout")};

/// What the short way from a ticket to its picture leaves out, although the screen shows it.
struct LeftOut {
    bool (*isOn)(const SystemInfo& info);
    const char* name;
};
constexpr LeftOut kLeftOut[] = {
    {[](const SystemInfo& i) { return i.oFrame->iFrameType != 0 || i.oFrameOverlay->iFrameType != 0; },
     QT_TRANSLATE_NOOP("tavrin::EventBooth", "frame")},
    {[](const SystemInfo& i) { return i.oImageTexture->bHaveTexture.load(); },
     QT_TRANSLATE_NOOP("tavrin::EventBooth", "texture")},
    {[](const SystemInfo& i) { return i.bHaveReflection.load(); },
     QT_TRANSLATE_NOOP("tavrin::EventBooth", "reflection")},
    {[](const SystemInfo& i) { return i.bStarFilerTurnOn.load(); }, QT_TRANSLATE_NOOP("tavrin::EventBooth", "stars")},
    {[](const SystemInfo& i) { return i.iCartoonEffectType >= 1; },
     QT_TRANSLATE_NOOP("tavrin::EventBooth", "drawing")},
    {[](const SystemInfo& i) { return i.iSmoothMode != 0 || i.iGlobalSmoothingMode != 0; },
     QT_TRANSLATE_NOOP("tavrin::EventBooth", "smoothing")}};

QString leftOut(const SystemInfo& info) {
    QStringList names;
    for (const LeftOut& one : kLeftOut)
        if (one.isOn(info)) names << EventBooth::tr(one.name);
    return names.join(", ");
}

std::string nameOfTicket(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

}  // namespace

/// Brings what the worker says to the main thread.
class EventBooth::Listener : public EventListener {
  public:
    explicit Listener(EventBooth& booth) : booth_(booth) {}

    void counted(int tickets, int photos) override {
        pass([&booth = booth_, tickets, photos] {
            booth.page_->textQLXCount()->setText(QString::number(tickets));
            booth.page_->textImageCount()->setText(QString::number(photos));
        });
    }
    void finished(const EventResult& result) override {
        using Status = EventResult::Status;
        if (result.status == Status::done || result.status == Status::skipped) return;
        pass([&booth = booth_, result] {
            const QString name = textOfName(result.ticket).section('/', -1);
            const QString line = result.status == Status::failed    ? tr("%1 was set aside.").arg(name)
                                 : result.status == Status::waiting ? tr("%1 waits.").arg(name)
                                                                    : tr("The picture of %1 stands.").arg(name);
            emit booth.failed(line, reasonText(result.reason));
        });
    }
    void alert(const std::string& message, const std::string& reason) override {
        pass([&booth = booth_, message, reason] {
            emit booth.jobAlerted(QString::fromStdString(message), reasonText(reason));
        });
    }
    void ended() override {
        pass([&booth = booth_] {
            booth.showSigns();
            emit booth.ended();
        });
    }

  private:
    void pass(std::function<void()> what) {
        QMetaObject::invokeMethod(&booth_, std::move(what), Qt::QueuedConnection);
    }

    EventBooth& booth_;
};

EventBooth::EventBooth(Binder& binder, HeldLoop& held, QObject* parent)
    : QObject(parent),
      binder_(binder),
      info_(binder.editor().info()),
      held_(held),
      desk_(info_),
      foregroundSelector_(
          new TapeDeckView({tr("Guests"), "foregroundSelector", "eventImageSelected:",
                            "eventImageTapeDeckButtonPushed:", tr("No folder of portraits was chosen yet: Setup...")},
                           [this](const std::string& stem) { return tickets_.hasStem(stem); })),
      backgroundSelector_(new TapeDeckView(
          {tr("Backgrounds of the booth"), "backgroundSelector", "eventBackgroundSelected:",
           "eventBackgroundTapeDeckButtonPushed:", tr("No folder of backgrounds was chosen yet: Setup...")},
          [](const std::string&) { return false; })),
      page_(new EventPage(binder)),
      listener_(std::make_unique<Listener>(*this)),
      worker_(info_, *listener_) {
    lister_.setMaxThreadCount(1);
    info_.iEventPrintCount = std::clamp(info_.iEventPrintCount.load(), 1, kMostCopies);
    showPrintCount();
    showLayout();
    connect(foregroundSelector_, &TapeDeckView::chosen, this, &EventBooth::eventImageSelected);
    connect(backgroundSelector_, &TapeDeckView::chosen, this, &EventBooth::eventBackgroundSelected);
    connect(backgroundSelector_, &TapeDeckView::listed, this, &EventBooth::refillGuests);
    for (TapeDeckView* deck : {foregroundSelector_, backgroundSelector_})
        connect(deck, &TapeDeckView::failed, this, &EventBooth::failed);
    connectPage();
    tick_.setInterval(kTick);
    connect(&tick_, &QTimer::timeout, this, [this] {
        showSigns();
        lookForTickets();
    });
}

void EventBooth::connectPage() {
    connect(page_, &EventPage::startWanted, this, &EventBooth::eventModeStart);
    connect(page_, &EventPage::stopWanted, this, &EventBooth::eventModeStop);
    connect(page_, &EventPage::layoutWanted, this, &EventBooth::ChangeEventLayout);
    connect(page_, &EventPage::guestScreenWanted, this, &EventBooth::showGuestScreen);
    connect(page_, &EventPage::searchWanted, this, &EventBooth::eventSearchForImage);
    // What is typed counts, too, as soon as the field is left.
    connect(page_->textEventPrintCount(), &QLineEdit::editingFinished, this, [this] { changePrintCount(0); });
    connect(page_, &EventPage::countUpWanted, this, &EventBooth::eventModePrintCountUp);
    connect(page_, &EventPage::countDownWanted, this, &EventBooth::eventModePrintCountDown);
    connect(page_, &EventPage::saveWanted, this, &EventBooth::eventModeSave);
    connect(page_, &EventPage::printWanted, this, &EventBooth::eventModeSaveAndPrint);
    connect(page_, &EventPage::mailWanted, this, &EventBooth::eventModeSaveAndEmail);
    connect(page_, &EventPage::textMessageWanted, this, [this] {
        if (tavrin::eventModeSaveAndText(info_, page_->textFieledEventEmail()->text().toStdString()))
            emit carrierWanted();
    });
    connect(page_, &EventPage::addTextWanted, this, &EventBooth::buttonAddTextClicked);
    connect(page_, &EventPage::retryWanted, this, [this] { worker_.retryBroken(); });
    connect(page_, &EventPage::refillWanted, this, &EventBooth::refillPack);
    connect(page_, &EventPage::exportWanted, this, &EventBooth::exportCounts);
}

/// The job in hand is finished; tickets that wait are made with the next start.
EventBooth::~EventBooth() {
    worker_.stop();
    worker_.join();
    lister_.clear();
    lister_.waitForDone();
    delete guests_;
}

void EventBooth::setShowing(bool showing) {
    if (std::exchange(showing_, showing) == showing) return;
    for (TapeDeckView* deck : {foregroundSelector_, backgroundSelector_})
        deck->setFollowing(showing);
    if (!showing) {
        if (!isRunning()) tick_.stop();
        return;
    }
    tick_.start();
    lookForTickets();
    showSigns();
    held_.run([this] { batchButtonClicked(); });
}

void EventBooth::batchButtonClicked() {
    if (const std::string problem = desk_.batchButtonClicked(); !problem.empty())
        emit failed(tr("The recipe of the booth cannot be kept."), QString::fromStdString(problem));
    foregroundSelector_->updateFolder(standardizePath(info_.oQLXInfo->sEventModeForegroundFolder));
    followFolders();
    showLayout();
    info_.StartUpdate();
}

/// The background strip shows the folder of the layout.
void EventBooth::followFolders() {
    backgroundSelector_->updateFolder(standardizePath(desk_.backgroundFolder()));
}

void EventBooth::settingsChanged(bool newForegrounds, bool newBackgrounds) {
    if (newForegrounds)
        foregroundSelector_->updateFolder(standardizePath(info_.oQLXInfo->sEventModeForegroundFolder));
    if (newBackgrounds) followFolders();
    lookForTickets();
}

void EventBooth::showLayout() {
    page_->showLayoutButton(EventBooth::tr(desk_.buttonEventLayout()));
}

EventSetup EventBooth::setup() const {
    EventSetup setup;
    setup.settings = *info_.oQLXInfo;
    setup.outputFolder = standardizePath(setup.settings.sEventModeOutputFolder);
    setup.delivery = readDeliveryConf();
    setup.keepsLocation = MailDesk::keepsLocation();
    setup.keepsMails = MailDesk::keepsMails();
    setup.printers = printers_;
    // The page is known by its title; places in the list change.
    const auto page = std::ranges::find(info_.oPrinterPages, setup.settings.sEventModeSelectedTemplate.load(),
                                        [](const PrinterPage& one) { return one.sPageTitle.load(); });
    setup.settings.iEventModeSelectedTemplate =
        page == info_.oPrinterPages.end() ? 0 : static_cast<std::int32_t>(page - info_.oPrinterPages.begin());
    return setup;
}

void EventBooth::eventModeStart() {
    if (const std::string problem = worker_.start(setup()); !problem.empty()) {
        page_->showProblem(QString::fromStdString(problem));
        return;
    }
    page_->showProblem(info_.oQLXInfo->bAutoQLXSave
                           ? QString()
                           : tr("A press makes nothing while \"Save the State with Every Picture\" is off."));
    page_->showState(EventPage::State::running);
    info_.bEventModeAcvtive = true;
    info_.bSkipHiRes = true;
    emit titleChanged(tr("Main Window - Event Mode"));
    tick_.start();
}

void EventBooth::eventModeStop() {
    emit titleChanged(tr("Main Window - Adjust/Load Mode"));
    emit leavesEventMode();
    info_.bSkipHiRes = false;
    info_.StartUpdate();
    info_.bEventModeAcvtive = false;
    page_->showState(EventPage::State::draining);
    worker_.stop();
    showSigns();
}

/// The ticket has what the panel showed at the press, whatever is typed until the loop stands still. All of this is
/// written by the main thread alone, or the picture of one guest could go to the next.
void EventBooth::press(int mode, const std::string& address) {
    info_.iEventSaveMode = mode;
    info_.sEventEmail = address;
    EventSettings pressed = info_;
    pressed.iEventPrintCount = allowedCopies(info_.iEventPrintCount, page_->copyLimit());
    if (mode == kEventSaveAndPrint && pressed.iEventPrintCount < info_.iEventPrintCount)
        emit told(tr("A guest gets %1 copies at most, so that many are printed.").arg(page_->copyLimit()));
    held_.run([this, pressed] {
        const EventSettings typedSince = info_;
        static_cast<EventSettings&>(info_) = pressed;
        const Press press = tavrin::eventModeSaveNow(info_);
        static_cast<EventSettings&>(info_) = typedSince;
        endPress(press);
        emit pressEnded();
    });
}

void EventBooth::endPress(const Press& press) {
    if (!press.isDone()) {
        emit failed(tr("No picture is made of this press."), QString::fromStdString(press.problem));
        return;
    }
    worker_.wake();
    tickets_.add(nameOfTicket(press.ticket));
    page_->textQLXCount()->setText("add");
    foregroundSelector_->deck().updateUI();
}

void EventBooth::eventModeSave() {
    press(kEventSave, "");
}

void EventBooth::eventModeSaveAndPrint() {
    press(kEventSaveAndPrint, "");
    info_.iEventPrintCount = 1;
    showPrintCount();
}

void EventBooth::eventModeSaveAndEmail() {
    const QString address = page_->textFieledEventEmail()->text();
    info_.sEventEmail = address.toStdString();
    if (!address.contains('@')) {
        emit alerted("Bad Email Address", "No @ found in email address.");
        return;
    }
    press(kEventSaveAndMail, address.toStdString());
}

void EventBooth::eventModeSaveText() {
    press(kEventSaveAndMail, info_.sEventEmail);
}

void EventBooth::changePrintCount(int by) {
    const int number = page_->textEventPrintCount()->text().toInt();
    info_.iEventPrintCount = std::clamp(number + by, 1, kMostCopies);
    showPrintCount();
}

void EventBooth::showPrintCount() {
    page_->textEventPrintCount()->setText(QString::number(info_.iEventPrintCount.load()));
}

void EventBooth::eventSearchForImage() {
    QLineEdit* field = page_->textFieledSearch();
    field->setText(textOfName(foregroundSelector_->deck().tapeDeckSearch(nameOfText(field->text()))));
}

void EventBooth::eventImageSelected(const QString& path) {
    page_->textFieledSearch()->setText(path.section('/', -1));
    emit guestLeaves();
    held_.run([this, path] {
        desk_.eventImageSelected(nameOfText(path));
        info_.StartUpdate();
        emit stateReplaced();
    });
}

void EventBooth::eventBackgroundSelected(const QString& path) {
    if (guests_) guests_->showChosen(nameOfText(path));
    held_.run([this, path] {
        const std::string problem = desk_.eventBackgroundSelected(nameOfText(path));
        if (!problem.empty())
            emit failed(tr("The recipe of this background cannot be used."), QString::fromStdString(problem));
        showLayout();
        info_.StartUpdate();
        emit stateReplaced();
    });
}

void EventBooth::ChangeEventLayout() {
    held_.run([this] {
        desk_.ChangeEventLayout();
        followFolders();
        showLayout();
        info_.StartUpdate();
        emit layoutChanged();
    });
}

void EventBooth::buttonAddTextClicked() {
    const EventText text = page_->text();
    page_->clearText();
    held_.run([this, text] {
        std::string problem;
        binder_.run(tr("Add a line of text"),
                    [&](SettingEditor& editor) { problem = tavrin::buttonAddTextClicked(editor, text); });
        if (!problem.empty()) emit failed(tr("The text is not added."), QString::fromStdString(problem));
        info_.StartUpdate();
    });
}

/// Which guests were served stands in the names of the tickets; there may be thousands, on another machine.
void EventBooth::lookForTickets() {
    if (lister_.activeThreadCount() > 0) return;
    lister_.start([this, folder = standardizePath(info_.oQLXInfo->sEventModeOutputFolder)] {
        TicketNames tickets(folder.empty() ? std::vector<std::string>() : namesInFolder(folder, {"QLX"}));
        QMetaObject::invokeMethod(
            this,
            [this, tickets = std::move(tickets)] {
                if (tickets == tickets_) return;
                tickets_ = tickets;
                foregroundSelector_->deck().updateUI();
            },
            Qt::QueuedConnection);
    });
}

void EventBooth::showSigns() {
    const EventSigns signs = worker_.signs();
    const QString names = leftOut(info_);
    page_->showSigns(signs, names.isEmpty() ? QString() : tr("The booth's pictures are made without: %1").arg(names));
    page_->showState(!worker_.isRunning()      ? EventPage::State::setup
                     : info_.bEventModeAcvtive ? EventPage::State::running
                                               : EventPage::State::draining);
}

void EventBooth::showPreview(const QImage& picture) {
    preview_ = picture;
    if (guests_) guests_->showPicture(picture);
}

void EventBooth::refillGuests() {
    if (!guests_) return;
    std::vector<std::string> paths;
    for (const std::string& name : backgroundSelector_->deck().oOrderedFiles())
        paths.push_back(backgroundSelector_->deck().folder() + '/' + name);
    guests_->setBackgrounds(std::move(paths));
}

void EventBooth::showGuestScreen(bool shows) {
    if (shows == (guests_ != nullptr)) return;
    if (!shows) {
        guests_->leave();
        guests_ = nullptr;
        return;
    }
    guests_ = new GuestScreen;
    connect(guests_, &GuestScreen::backgroundChosen, this, &EventBooth::eventBackgroundSelected);
    guests_->showPicture(preview_);
    refillGuests();
    guests_->appear(page_->window()->screen());
}

EventCounts EventBooth::counts() const {
    return {standardizePath(info_.oQLXInfo->sEventModeOutputFolder), installationMark(readDeliveryConf())};
}

/// Also before the first start, when no worker knows the folder.
void EventBooth::refillPack(int prints) {
    const BoothFolder folder(standardizePath(info_.oQLXInfo->sEventModeOutputFolder));
    if (const std::string problem = folder.prepare(); !problem.empty()) {
        emit failed(tr("The prints of the pack are not counted."), QString::fromStdString(problem));
        return;
    }
    isRunning() ? worker_.refillPack(prints) : counts().refill(prints);
    emit told(tr("The pack holds %1 prints now.").arg(prints));
}

void EventBooth::exportCounts() {
    const std::string folder = standardizePath(info_.oQLXInfo->sEventModeOutputFolder);
    const QString path = QFileDialog::getSaveFileName(page_, tr("Save the Counts"),
                                                      textOfName(folder) + "/counts.csv", tr("Tables (*.csv)"));
    if (path.isEmpty()) return;
    std::ofstream file(nameOfText(path), std::ios::binary);
    EventCounts all = counts();
    all.refresh();
    file << all.csv();
    file.close();
    if (file.fail()) emit failed(tr("The counts cannot be written."), path);
}

}  // namespace tavrin
