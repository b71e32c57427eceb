#pragma once

#include <memory>
#include <string>
#include <vector>

#include "delivery/print/Paper.h"

namespace tavrin {

/// A printer as people choose it.
struct Printer {
    std::string name;         ///< by which it is printed on
    std::string description;  ///< for people; may be empty
    bool isDefault = false;
    std::string state;    ///< in plain words: "ready", "printing", "stopped", "out of paper"
    std::string trouble;  ///< why a sheet sent now would not be printed, as one plain line; empty when it would
};

struct PrinterList {
    std::vector<Printer> printers;
    std::string problem;  ///< why the printers cannot be asked for, as one plain line
};

/// The papers of a printer.
struct PrinterPapers {
    std::vector<Paper> papers;
    Paper usual;          ///< what it prints on unless told otherwise
    std::string problem;  ///< as above
};

/// One sheet for a printer: a document with a page of the paper's size, to be printed once at its true size.
struct PrintJob {
    std::string printer, title;
    Paper paper;
};

/// A job that a printer knows, or why there is none.
struct MadeJob {
    int id = 0;           ///< 0: it was not made
    std::string problem;  ///< one plain line
};

/// What became of a job.
struct JobNews {
    enum class State {
        unreachable,  ///< nobody could be asked
        unknown,      ///< there is no such job (any more)
        empty,        ///< made, but without its document
        waiting,      ///< for the printer
        printing,
        printed,
        givenUp,  ///< ended without a print
    };
    State state = State::unreachable;
    std::string reason;  ///< in plain words, why it does not go on or was given up; may be empty
};

/// What prints. A job is made first and gets its document then, so that whoever notes the number in between knows,
/// whatever ends the program, whether anything can have been printed. Every call may take seconds, and comes to an
/// end when nobody answers. For one thread at a time.
class PrintService {
  public:
    virtual ~PrintService() = default;

    virtual PrinterList printers() = 0;
    virtual PrinterPapers papers(const std::string& printer) = 0;
    /// One printer as it is now.
    /// @return a printer without a name where there is none of it; `trouble` says so
    virtual Printer printer(const std::string& name) = 0;

    /// Makes a job without a document. Nothing is printed.
    virtual MadeJob make(const PrintJob& job) = 0;
    /// Gives it its document, upon which it is printed.
    /// @param document a PDF file
    /// @return "" or one plain line; only `news` tells then whether it arrived all the same
    virtual std::string send(const PrintJob& job, int id, const std::string& document) = 0;
    virtual JobNews news(const PrintJob& job, int id) = 0;
    /// Ends a job that is not printed yet.
    /// @return whether it was ended, so that it will not be printed
    virtual bool cancel(const PrintJob& job, int id) = 0;
};

/// The system's printers.
std::unique_ptr<PrintService> systemPrintService();

}  // namespace tavrin
