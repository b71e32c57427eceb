#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/Interruption.h"

class QFile;
class QLockFile;

namespace tavrin {

enum class Readers { everyone, ownerOnly };

/// Writes a file anew so that the old one is never lost: at every moment the old or the new file can be read whole,
/// whatever stops the program.
///
/// `begin` writes to the file's name with "tmp" behind it and moves the old file to its name with ".set-aside" behind
/// it. `commit` brings the new bytes to the disk, gives them the name, makes sure that the name is on the disk too,
/// and only then removes the old file. A save that fails puts the old file back itself; one that was killed leaves it
/// set aside, where `readSafeFile` and the next save find it. Programs that save one file at once take turns.
class SafeSave {
  public:
    SafeSave();
    ~SafeSave();  ///< gives the save up when it was not committed

    /// @param path of a file that exists or not, in a folder that exists. An existing file hands on its permissions.
    /// @param readers ownerOnly: nobody else can open the file, the temporary or the old one at any moment
    bool begin(const std::string& path, Readers readers);
    void write(std::string_view bytes);
    bool commit();
    void giveUp();

    /// Why a call failed, in plain words; stays empty while all goes well.
    const std::string& problem() const { return problem_; }

  private:
    bool fail(const std::string& why);
    bool takeTurn();
    bool openTemporary(Readers readers);
    bool setOldFileAside(Readers readers);

    std::string path_, problem_;
    std::optional<Interruption::Hold> hold_;  ///< a signal waits until the save has ended
    std::unique_ptr<QLockFile> turn_;
    std::unique_ptr<QFile> file_;
};

struct FileBytes {
    std::string bytes;
    std::string problem;   ///< why it could not be read; empty when it could
    bool missing = false;  ///< there is no such file, not even one set aside
};

/// Reads a file that SafeSave wrote. When only the old file that an unfinished save set aside is there, that one is
/// read, put back under its name, and the standard error stream is told.
/// @param limit a longer file is refused
FileBytes readSafeFile(const std::string& path, std::size_t limit);

/// There is such a file, be it one set aside.
bool safeFileExists(const std::string& path);

/// Gives a file the name `path` if no other has it; otherwise removes the file. The step from "nobody has it" to "I
/// have it" cannot be split, so of several programs one wins and none loses anything.
/// @return false when neither worked
bool claimName(const std::string& file, const std::string& path);

/// Moves a damaged file to a name of its own beside it (".damaged" behind it, with a number where that is taken), so
/// that it is kept for whoever wants to mend it and another file can take its place.
/// @return that name; "" when the file cannot be moved or a save of it is under way
std::string setDamagedFileAside(const std::string& path);

/// A name beside `path` that no other program uses.
std::string ownNameBeside(const std::string& path);

}  // namespace tavrin
