#include "delivery/words/Says.h"

#include <QtGlobal>

namespace tavrin {

namespace {

// In the order of the codes.
constexpr const char* kWords[] = {
    QT_TRANSLATE_NOOP(
        "Delivery", "%1 took the whole mail and did not say whether it keeps it. It may have gone."),  // tookSilently
    QT_TRANSLATE_NOOP("Delivery", "The sending was stopped."),                               // sendingStopped
    QT_TRANSLATE_NOOP("Delivery", "The outbox cannot be written to, so nothing was sent."),  // heldBack
    QT_TRANSLATE_NOOP(
        "Delivery",
        "The mail has %1 and %2 takes %3 at most. Nothing was sent; a smaller picture may do."),  // mailTooLarge
    QT_TRANSLATE_NOOP("Delivery", "%1 does not take the account name or the password."),          // loginRefused
    QT_TRANSLATE_NOOP("Delivery", "%1 does not take the account name or the password (%2)."),     // loginRefusedWith
    QT_TRANSLATE_NOOP("Delivery", "%1 refuses the mail: %2"),                                     // refusesMail
    QT_TRANSLATE_NOOP("Delivery",
                      "No mail server %1 is found: its name is wrong, or there is no network."),  // serverNotFound
    QT_TRANSLATE_NOOP("Delivery", "%1 does not answer on port %2."),                              // noAnswerOnPort
    QT_TRANSLATE_NOOP("Delivery", "%1 keeps silent for %2 seconds."),                             // keepsSilent
    QT_TRANSLATE_NOOP("Delivery",
                      "%1 offers no encryption (STARTTLS) on port %2, so nothing was sent."),  // noEncryption
    QT_TRANSLATE_NOOP("Delivery",
                      "The certificate of %1 is not to be trusted, so nothing was sent: %2"),  // notTrusted
    QT_TRANSLATE_NOOP(
        "Delivery",
        "The file of certificates %1 cannot be read or holds none, so nothing was sent."),  // noCertificates
    QT_TRANSLATE_NOOP("Delivery",
                      "No encrypted connection to %1 comes about; is the port right? %2"),  // noSecureConnection
    QT_TRANSLATE_NOOP("Delivery", "The connection to %1 broke off: %2."),                   // brokeOff
    QT_TRANSLATE_NOOP("Delivery", "There is not enough memory for the mail."),              // noMemoryForMail
    QT_TRANSLATE_NOOP("Delivery", "There is no mail server in the settings."),              // noServer
    QT_TRANSLATE_NOOP("Delivery", "\"%1\" is no name of a mail server."),                   // noServerName
    QT_TRANSLATE_NOOP(
        "Delivery", "The account name or the password of the mail server holds a control character."),  // oddAccount
    QT_TRANSLATE_NOOP("Delivery", "The port of the mail server is no number from 1 to 65535."),         // oddPort
    QT_TRANSLATE_NOOP("Delivery", "\"%1\" is no address to send from."),                                // noSender
    QT_TRANSLATE_NOOP("Delivery", "\"%1\" is no mail address."),                                        // noAddress
    QT_TRANSLATE_NOOP("Delivery", "The library that sends mails cannot be started."),  // noMailLibrary
    QT_TRANSLATE_NOOP("Delivery", "Tavrin was closed while the mail was sent."),       // closedMeanwhile
    QT_TRANSLATE_NOOP("Delivery",
                      "Tavrin ended while the mail was handed over. It may have gone."),  // endedMeanwhile
    QT_TRANSLATE_NOOP("Delivery", "The default mail server is not set up: %1."),          // relayMissing
    QT_TRANSLATE_NOOP("Delivery", "%1 is missing in %2"),                                 // missingIn
    QT_TRANSLATE_NOOP("Delivery",
                      "There is no address to send from: the account name of the mail server is none, and "
                      "relay-account is missing in %1."),  // noSenderAnywhere
    QT_TRANSLATE_NOOP(
        "Delivery", "The gateway for text messages is not set up: text-gateway is missing in %1."),  // gatewayMissing
    QT_TRANSLATE_NOOP("Delivery",
                      "The outbox is full (mails: %1, MB: %2); it takes %3 mails and %4 MB. Send or discard some of "
                      "them."),                                                                    // outboxFull
    QT_TRANSLATE_NOOP("Delivery", "The outbox %1 cannot be written to: %2."),                      // outboxFails
    QT_TRANSLATE_NOOP("Delivery", "its file system knows no locks"),                               // noLocks
    QT_TRANSLATE_NOOP("Delivery", "%1 cannot be written: %2."),                                    // cannotBeWritten
    QT_TRANSLATE_NOOP("Delivery", "%1 cannot be attached: %2."),                                   // cannotBeAttached
    QT_TRANSLATE_NOOP("Delivery", "%1 cannot be read; what is attached lies beside it."),          // unreadableMail
    QT_TRANSLATE_NOOP("Delivery", "The sender: %1."),                                              // theSender
    QT_TRANSLATE_NOOP("Delivery", "The address for answers: %1."),                                 // answersTo
    QT_TRANSLATE_NOOP("Delivery", "The recipient: %1."),                                           // theRecipient
    QT_TRANSLATE_NOOP("Delivery", "there is no address"),                                          // emptyAddress
    QT_TRANSLATE_NOOP("Delivery", "the address is too long"),                                      // longAddress
    QT_TRANSLATE_NOOP("Delivery", "the address begins with a hyphen"),                             // hyphenAddress
    QT_TRANSLATE_NOOP("Delivery", "the address holds a line break or another control character"),  // controlInAddress
    QT_TRANSLATE_NOOP(
        "Delivery",
        "the address holds a character that no address has, such as a blank, a comma or a bracket"),  // oddInAddress
    QT_TRANSLATE_NOOP("Delivery", "the address is no text"),                                          // addressNoText
    QT_TRANSLATE_NOOP("Delivery", "The printing system (CUPS) does not answer; see that it runs."),   // noCups
    QT_TRANSLATE_NOOP("Delivery",
                      "This program was built without a printing system, so there are no printers; a sheet can be "
                      "saved as a PDF and printed from there."),                              // builtWithoutPrinting
    QT_TRANSLATE_NOOP("Delivery", "There are no printers on this machine."),                  // noPrinters
    QT_TRANSLATE_NOOP("Delivery", "There is no printer \"%1\"."),                             // noSuchPrinter
    QT_TRANSLATE_NOOP("Delivery", "There is no printer \"%1\"; did you mean \"%2\"?"),        // noSuchPrinterNear
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" takes no jobs at present."),            // takesNoJobs
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" is stopped."),                          // printerStopped
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" is stopped: %2."),                      // printerStoppedBy
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" cannot print now: %2."),                // cannotPrintNow
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" cannot be asked: %2."),                 // printerUnasked
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" does not take the sheet: %2."),         // doesNotTake
    QT_TRANSLATE_NOOP("Delivery", "The sheet could not be sent to the printer \"%1\": %2."),  // sheetNotSent
    QT_TRANSLATE_NOOP("Delivery", "its file %1 cannot be read"),                              // itsFileUnreadable
    QT_TRANSLATE_NOOP("Delivery", "no reason was given"),                                     // noReason
    QT_TRANSLATE_NOOP("Delivery", "it was cancelled"),                                        // wasCancelled
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" does not go on: %2."),                  // doesNotGoOn
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" did not print it."),                    // didNotPrint
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" did not print it: %2."),                // didNotPrintFor
    QT_TRANSLATE_NOOP("Delivery",
                      "The printer \"%1\" does not give it back. It may have been printed already; look at the "
                      "printer before it is sent again."),  // keepsItUnsure
    QT_TRANSLATE_NOOP("Delivery",
                      "The printer \"%1\" does not know it any more. It may have been printed already; look at the "
                      "printer before it is sent again."),  // forgotItUnsure
    QT_TRANSLATE_NOOP("Delivery",
                      "The printer \"%1\" cannot be asked. It may have been printed already; look at the printer "
                      "before it is sent again."),                                                 // unaskedUnsure
    QT_TRANSLATE_NOOP("Delivery", "The printer \"%1\" has the sheet and does not give it back."),  // keepsSheet
    QT_TRANSLATE_NOOP("Delivery", "The program was ended before the sheet was sent."),             // endedBeforeSheet
    QT_TRANSLATE_NOOP("Delivery", "Another program is at work with this sheet."),                  // sheetBusy
    QT_TRANSLATE_NOOP("Delivery", "The folder %1 for sheets that wait cannot be made: %2."),       // noRoomForSheets
    QT_TRANSLATE_NOOP("Delivery", "The sheet cannot be kept in %1: %2."),                          // sheetNotKept
    QT_TRANSLATE_NOOP("Delivery", "The colour profile %1 cannot be used: %2."),                    // profileUnusable
    QT_TRANSLATE_NOOP("Delivery", "it is no ICC profile"),                                         // noProfile
    QT_TRANSLATE_NOOP("Delivery",
                      "it is for a printer that takes four inks, and sheets are sent in red, green and blue; take "
                      "the printer's RGB profile"),                                   // fourInks
    QT_TRANSLATE_NOOP("Delivery", "it is not for red, green and blue"),               // notRgb
    QT_TRANSLATE_NOOP("Delivery", "it does not tell how to print"),                   // noWayToPrint
    QT_TRANSLATE_NOOP("Delivery", "it is damaged"),                                   // profileDamaged
    QT_TRANSLATE_NOOP("Delivery", "out of paper"),                                    // outOfPaper
    QT_TRANSLATE_NOOP("Delivery", "a paper jam"),                                     // paperJam
    QT_TRANSLATE_NOOP("Delivery", "the paper tray is missing"),                       // noTray
    QT_TRANSLATE_NOOP("Delivery", "a cover is open"),                                 // coverOpen
    QT_TRANSLATE_NOOP("Delivery", "a door is open"),                                  // doorOpen
    QT_TRANSLATE_NOOP("Delivery", "out of toner"),                                    // outOfToner
    QT_TRANSLATE_NOOP("Delivery", "out of ink or ribbon"),                            // outOfInk
    QT_TRANSLATE_NOOP("Delivery", "the waste box is full"),                           // wasteFull
    QT_TRANSLATE_NOOP("Delivery", "the output tray is full"),                         // outputFull
    QT_TRANSLATE_NOOP("Delivery", "the output tray is missing"),                      // noOutputTray
    QT_TRANSLATE_NOOP("Delivery", "switched off or not connected"),                   // switchedOffOrAway
    QT_TRANSLATE_NOOP("Delivery", "cannot be reached yet"),                           // notReachedYet
    QT_TRANSLATE_NOOP("Delivery", "does not answer"),                                 // doesNotAnswer
    QT_TRANSLATE_NOOP("Delivery", "switched off"),                                    // switchedOff
    QT_TRANSLATE_NOOP("Delivery", "printing"),                                        // printing
    QT_TRANSLATE_NOOP("Delivery", "ready"),                                           // ready
    QT_TRANSLATE_NOOP("Delivery", "takes no jobs"),                                   // noJobsNow
    QT_TRANSLATE_NOOP("Delivery", "stopped"),                                         // stopped
    QT_TRANSLATE_NOOP("Delivery", "partly stopped"),                                  // partlyStopped
    QT_TRANSLATE_NOOP("Delivery", "held back"),                                       // heldForLater
    QT_TRANSLATE_NOOP("Delivery", "its driver is incomplete"),                        // driverIncomplete
    QT_TRANSLATE_NOOP("Delivery", "the disk is full"),                                // diskFull
    QT_TRANSLATE_NOOP("Delivery", "the folder %1 does not exist"),                    // noFolder
    QT_TRANSLATE_NOOP("Delivery", "%1 is not a folder"),                              // notAFolder
    QT_TRANSLATE_NOOP("Delivery", "no permission to write into the folder %1"),       // mayNotWrite
    QT_TRANSLATE_NOOP("Delivery", "the file would be larger than this disk allows"),  // fileTooLarge
    QT_TRANSLATE_NOOP("Delivery", "there is a folder of that name"),                  // folderOfThatName
    QT_TRANSLATE_NOOP("Delivery", "the name is too long"),                            // nameTooLong
    QT_TRANSLATE_NOOP("Delivery", "%1 is write-protected and stays as it is"),        // writeProtected
    QT_TRANSLATE_NOOP("Delivery", "%1 is not a plain file"),                          // notAPlainFile
    QT_TRANSLATE_NOOP("Delivery", "Line %1 of delivery.conf (%2) means nothing."),    // confLine
    QT_TRANSLATE_NOOP("Delivery", "%1 cannot be read."),                              // confUnreadable
    QT_TRANSLATE_NOOP("Delivery", "the folder %1 can only be read"),                  // onlyReadable
};
static_assert(std::size(kWords) == static_cast<std::size_t>(Says::last) + 1);

}  // namespace

std::string said(Says what, std::initializer_list<std::string> parts) {
    std::string line;
    for (const char* c = kWords[static_cast<std::size_t>(what)]; *c != '\0'; ++c) {
        const bool isPlace = *c == '%' && c[1] >= '1' && c[1] <= '9';
        const auto part = static_cast<std::size_t>(isPlace ? c[1] - '1' : 0);
        if (isPlace && part < parts.size()) {
            line += *(parts.begin() + part);
            ++c;
        } else {
            line += *c;
        }
    }
    return line;
}

std::span<const char* const> wordsOfReasons() {
    return kWords;
}

}  // namespace tavrin
