#pragma once

#include <vector>

#include "booth/EventDesk.h"
#include "booth/EventSigns.h"
#include "ui/bind/PanelPage.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QToolButton;

namespace tavrin {

/// The event panel: start and stop, what the operator does for the guest at hand, a line of text, and how the booth
/// is doing. It says what was pressed, and does nothing itself.
class EventPage : public PanelPage {
    Q_OBJECT

  public:
    explicit EventPage(Binder& binder, QWidget* parent = nullptr);

    QToolButton* button(const char* name) const;
    QLineEdit* textFieledSearch() const { return search_; }
    QLineEdit* textFieledEventEmail() const { return address_; }
    /// The counts of tickets and pictures.
    QLabel* textQLXCount() const { return tickets_; }
    QLabel* textImageCount() const { return pictures_; }
    /// The number that is typed or shown for the copies.
    QLineEdit* textEventPrintCount() const { return copies_; }

    EventText text() const;
    void clearText();
    /// Most copies a guest gets; 0 for no limit.
    int copyLimit() const;

    /// Which buttons can be pressed.
    enum class State { setup, running, draining };
    void showState(State state);
    void showLayoutButton(const QString& words);
    /// Why nothing comes of a press, or of the start; "" for nothing.
    void showProblem(const QString& words);
    /// @param note what else the operator should know while the booth runs
    void showSigns(const EventSigns& signs, const QString& note);
    /// Shows font, size, colour and shadow of the settings.
    void updateEventUI();

  signals:
    void startWanted();
    void stopWanted();
    void setupWanted();
    void layoutWanted();
    void guestScreenWanted(bool shows);
    void searchWanted();
    void countUpWanted();
    void countDownWanted();
    void saveWanted();
    void printWanted();
    void mailWanted();
    void textMessageWanted();
    void addTextWanted();
    void retryWanted();
    void refillWanted(int prints);
    void exportWanted();

  private:
    struct ButtonWords {
        const char *name, *handler;
        QString text, toolTip;
        void (EventPage::*wanted)();
    };
    QToolButton* add(const ButtonWords& words);
    QWidget* line(const QString& label, const std::vector<QWidget*>& parts);
    QLineEdit* field(const char* name, const char* handler, const QString& label, const QString& toolTip);
    void addBooth();
    void addGuest();
    void addText();
    void addService();
    void useTextColor(bool black);
    QLabel* status(const char* name, const QString& label);

    Binder& binder_;
    QLabel *tickets_ = nullptr, *pictures_ = nullptr, *problem_ = nullptr;
    QLineEdit *search_ = nullptr, *address_ = nullptr, *copies_ = nullptr, *name_ = nullptr;
    QFontComboBox* font_ = nullptr;
    QComboBox* size_ = nullptr;
    QCheckBox* shadow_ = nullptr;
    QButtonGroup* color_ = nullptr;
    QSpinBox *limit_ = nullptr, *pack_ = nullptr;
    QLabel *job_ = nullptr, *sign_ = nullptr, *printer_ = nullptr, *mails_ = nullptr, *today_ = nullptr;
    QListWidget* failures_ = nullptr;
    QWidget* rows_ = nullptr;  ///< of the state of the booth
};

}  // namespace tavrin
