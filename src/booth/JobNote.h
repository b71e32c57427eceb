#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// What is to follow a picture, written beside it before it gets its name and removed when all of that is on its way.
/// So after a kill a picture without a note is done with, a note without a picture means nothing yet, and what a note
/// names was prepared but maybe not let go: letting it go is a step that works once.
struct JobNote {
    std::string owner;  ///< installation whose queue and outbox have what was prepared
    int mode = 1, copies = 0;
    std::string email;
    std::vector<std::string> sheets;  ///< names in the printer's queue
    std::string mail;                 ///< name in the outbox
    /// Sheets that could not be made when the picture was, and why; they are made as soon as they can be.
    bool owesSheets = false, owesMail = false;
    std::string reason;
};

/// @return "" or why it cannot be written, as one plain line
std::string writeNote(const JobNote& note, const std::string& path);
/// @return false when it cannot be read
bool readNote(const std::string& path, JobNote& note);

}  // namespace tavrin
