#pragma once

#include <ios>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "farm/OutputNames.h"
#include "folders/FileFacts.h"
#include "pipeline/PictureCheck.h"

namespace tavrin {

/// A file that a picture was made from, as it was then.
struct InputFile {
    FileFacts facts;
    std::string digest;
};

/// What is known of one job from earlier runs.
struct JobRecord {
    enum class Status { begun, done, failed };

    std::string name;  ///< `BatchJob::name`
    std::string out;   ///< below the out folder
    Status status = Status::begun;
    std::string recipe;  ///< digest of all settings in force
    std::vector<InputFile> inputs;
    std::string reason;                    ///< why it failed
    std::vector<PictureWarning> warnings;  ///< what was said of the picture
    std::optional<Judgement> judgement;    ///< without its measures
    std::int64_t order = 0;  ///< of two records the later counts; 0 in records of old versions, which come first
    std::int64_t time = 0;   ///< of the record, milliseconds; decides where the order does not
};

/// Which pictures of a folder were made from what. The records lie in a hidden folder beside the pictures, one file
/// for each run that made some, one line a picture: so runs on many machines need nothing but the folder, nobody
/// waits for anybody, and a run that is killed loses at most the line it was writing. Clocks may be wrong: every run
/// counts its records on from the highest number it has seen.
class Journal {
  public:
    /// Who may use the folder at the same time.
    enum class Use {
        alone,   ///< one run by itself: it may give numbers and tidy up
        shared,  ///< a shard beside others
        look     ///< reads only, and keeps nobody out
    };

    Journal();
    ~Journal();

    /// Reads what there is.
    /// @return "" when done; otherwise one line: the folder cannot be used, or another run has it
    std::string open(const std::string& outFolder, Use use);

    /// The latest record of a job; null when there is none. Valid until the next `add`.
    const JobRecord* find(const std::string& name) const;
    /// Whether a run has made a picture of this name, or was about to. Names are as in `JobRecord::out`.
    bool owns(const std::string& out);
    /// Adds a record, with the next number and the time of now, for this run and later ones. One that a picture is
    /// begun is on the disk when this returns, since the picture soon will be.
    /// @return "" when done; otherwise why it is not on the disk (`kDiskFull` or other words). It counts for this run
    ///         in any case.
    std::string add(JobRecord record);

    GivenNames givenNames() const;

  private:
    std::vector<std::string> files() const;
    void readFile(const std::string& path);
    void take(JobRecord record);
    void tidy(const std::vector<std::string>& files);
    bool takeTurn(Use use);
    std::string append(const std::string& line, bool onDisk);
    void openFile();

    Use use_ = Use::look;
    std::string folder_, path_;
    std::map<std::string, JobRecord> records_;
    std::map<std::string, std::string> owners_;  ///< names of pictures, and of the jobs they were first made for
    std::unordered_map<std::string, std::streamoff> read_;  ///< files, and how far they were read
    std::int64_t order_ = 0;                                ///< the highest that was seen
    int file_ = -1, turn_ = -1;
    bool torn_ = false;
};

}  // namespace tavrin
