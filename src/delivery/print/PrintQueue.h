#pragma once

#include <memory>
#include <string>
#include <vector>

#include "delivery/print/PrintService.h"

class QLockFile;

namespace tavrin {

/// A sheet on its way to a printer: one copy, with its document in the queue's folder.
struct QueuedSheet {
    enum class Stage {
        waiting,    ///< nothing was printed; may be sent
        sending,    ///< a program sends it, or was killed doing so
        atPrinter,  ///< the printer has it, and has not told yet that it was printed
        unsure      ///< it may have been printed, and nobody can tell; only a person decides
    };
    std::string id;  ///< its name in the queue; the older, the smaller
    PrintJob job;
    std::string picture, page;  ///< for people: the picture's file and the title of the print page
    Stage stage = Stage::waiting;
    int number = 0;         ///< of the printer's job; 0: it was not made
    std::string reason;     ///< why it waits or is unsure, as one plain line; may be empty
    bool byItself = false;  ///< is sent as soon as its printer is well, without a person's word
};

/// Sheets that are not known to be printed, in a folder of the account that nobody else can read. Each is a small
/// file beside its document; what is on the disk is true at every moment, whatever ends the program.
class PrintQueue {
  public:
    explicit PrintQueue(std::string folder = usualFolder());
    static std::string usualFolder();

    /// Keeps a sheet, which gets its name. The document is a file of this folder (`newDocument`) that becomes the
    /// queue's, or that of another sheet, which has the same.
    /// @return "" or one plain line; nothing is kept then
    std::string add(QueuedSheet& sheet, const std::string& document);
    /// As `add`, but under the name that the sheet has, and nobody sees it until `release`. A sheet of that name that
    /// is in the queue stays as it is.
    std::string prepare(const QueuedSheet& sheet, const std::string& document) const;
    /// Lets a prepared sheet into the queue, in one step that comes to the disk.
    /// @return false when none of that name is prepared, such as one that was let in before
    bool release(const std::string& id) const;
    /// Forgets a prepared sheet.
    void withdraw(const std::string& id) const;
    /// A name in the folder for a document that is still to be written.
    /// @param problem set to one plain line where there is no such folder
    std::string newDocument(std::string& problem) const;

    /// All sheets, the oldest first. What cannot be read is left out and told on the error stream.
    std::vector<QueuedSheet> sheets() const;
    /// @return a sheet without an id where there is none
    QueuedSheet sheet(const std::string& id) const;
    /// Notes how a sheet stands now.
    /// @return "" or one plain line; what was noted last stays then
    std::string note(const QueuedSheet& sheet) const;
    /// It was printed, or nobody wants it any more.
    void remove(const std::string& id) const;
    std::string document(const std::string& id) const { return folder_ + id + ".pdf"; }

    /// Takes a sheet for this process, as long as the result lives.
    /// @return null where another one has it
    std::unique_ptr<QLockFile> hold(const std::string& id) const;
    /// Removes documents that belong to no sheet any more: a program was killed between the two files.
    void removeLeftDocuments() const;

  private:
    std::string write(const QueuedSheet& sheet, const char* ending) const;
    std::string keepDocument(const std::string& id, const std::string& document) const;

    std::string folder_;
};

}  // namespace tavrin
