#pragma once

#include <memory>

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include "booth/EventCounts.h"
#include "booth/EventDesk.h"
#include "booth/EventWorker.h"
#include "booth/Ticket.h"
#include "ui/HeldLoop.h"
#include "ui/bind/Binder.h"
#include "ui/booth/TapeDeckView.h"

namespace tavrin {

class EventPage;
class GuestScreen;

/// Event mode in the window: the film strips, what the operator presses, and the worker that makes the pictures
/// beside it. A press leaves a ticket and is over.
class EventBooth : public QObject {
    Q_OBJECT

  public:
    EventBooth(Binder& binder, HeldLoop& held, QObject* parent = nullptr);
    ~EventBooth() override;

    EventPage* page() const { return page_; }
    TapeDeckView* foregroundSelector() const { return foregroundSelector_; }
    TapeDeckView* backgroundSelector() const { return backgroundSelector_; }
    EventDesk& desk() { return desk_; }
    /// Jobs are being made.
    bool isRunning() const { return worker_.isRunning(); }
    /// The screen for guests; null while it is not shown.
    GuestScreen* guestScreen() const { return guests_; }
    /// A preview that the loop has published.
    void showPreview(const QImage& picture);
    /// Other printers, or another printing system, than the machine's.
    void setPrinters(std::function<std::unique_ptr<PrintService>()> printers) { printers_ = std::move(printers); }

    /// The event tab came to the front, or another one did.
    void setShowing(bool showing);

    void eventModeStart();
    void eventModeStop();
    void eventModeSave();
    void eventModeSaveAndPrint();
    void eventModeSaveAndEmail();
    /// With the address of a carrier's gateway in `sEventEmail`.
    void eventModeSaveText();
    void eventModePrintCountUp() { changePrintCount(1); }
    void eventModePrintCountDown() { changePrintCount(-1); }
    void eventSearchForImage();
    void ChangeEventLayout();
    void eventImageSelected(const QString& path);
    void eventBackgroundSelected(const QString& path);
    void buttonAddTextClicked();
    /// Folders and letter were changed.
    void settingsChanged(bool newForegrounds, bool newBackgrounds);
    void showGuestScreen(bool shows);

  signals:
    /// The guest on the screen is about to change, or the whole recipe.
    void guestLeaves();
    /// All controls are to show the state anew; the steps of undo rest on what is gone.
    void stateReplaced();
    /// The output has another size.
    void layoutChanged();
    void settingsToKeep();
    void titleChanged(const QString& title);
    /// The booth was stopped: what belongs to it on the screen goes.
    void leavesEventMode();
    /// A number was typed: the carrier has to be asked for.
    void carrierWanted();
    /// A press is over: its ticket lies on the disk, or the window has told why not.
    void pressEnded();
    void told(const QString& line);
    void failed(const QString& line, const QString& details);
    /// What was typed will not do.
    void alerted(const QString& message, const QString& reason);
    /// A job has something to say, which is to hold up nobody.
    void jobAlerted(const QString& message, const QString& reason);
    void ended();

  private:
    class Listener;
    void connectPage();
    void press(int mode, const std::string& address);
    void endPress(const Press& press);
    void batchButtonClicked();
    void changePrintCount(int by);
    void showPrintCount();
    void followFolders();
    void lookForTickets();
    void showLayout();
    void showSigns();
    void refillGuests();
    EventCounts counts() const;
    void refillPack(int prints);
    void exportCounts();
    EventSetup setup() const;

    Binder& binder_;
    SystemInfo& info_;
    HeldLoop& held_;
    EventDesk desk_;
    TicketNames tickets_;
    TapeDeckView *foregroundSelector_, *backgroundSelector_;
    EventPage* page_;
    GuestScreen* guests_ = nullptr;
    QImage preview_;
    std::function<std::unique_ptr<PrintService>()> printers_ = systemPrintService;
    QTimer tick_;
    bool showing_ = false;
    QThreadPool lister_;
    std::unique_ptr<Listener> listener_;
    EventWorker worker_;  // the last, so that it ends first
};

}  // namespace tavrin
