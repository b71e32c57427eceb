#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "core/raster/Pixels.h"
#include "core/state/SystemInfo.h"
#include "farm/BatchJob.h"
#include "folders/FileFacts.h"
#include "pipeline/PictureCheck.h"
#include "session/States.h"

namespace tavrin {

/// Puts the caller's settings into a state that has just been made from the job's state file, output size included.
/// @param loaded what came of the state file, or of the settings that a job without one starts from
/// @return "" or why that cannot be done, as one plain line
using ApplySettings = std::function<std::string(SystemInfo& info, const LoadedState& loaded)>;

/// Gives a state that has all defaults the settings that a job without a state file starts from.
using StartSettings = std::function<LoadedState(SystemInfo& info)>;

/// A finished picture, and why there is none otherwise.
struct MadePicture {
    PixelBuffer pixels;
    int width = 0, height = 0, dpi = 0;
    std::vector<std::uint8_t> exif;
    std::string problem;  ///< empty when there is a picture
    std::string leftOut;  ///< what is missing in it, empty for nothing
    std::vector<PictureWarning> warnings;
    std::optional<Judgement> judgement;
};

/// Makes the picture of one job after another, each from a state of its own, by the whole pass of the processing
/// loop: the bytes are those of a process that makes this one picture and ends. Where the time goes it matters little
/// that every state is new, since the memory of the last one is there to take.
class PictureMaker {
  public:
    /// @param base a state that `startCommandLine` brought up; it has to outlive this
    PictureMaker(const SystemInfo& base, StartSettings start, ApplySettings settings)
        : base_(base), start_(std::move(start)), settings_(std::move(settings)) {}

    /// From here on each picture is keyed as green or blue as its portrait shows it, except where a list says which.
    void chooseScreens() { choosesScreens_ = true; }

    /// From here on the edits beside each portrait are played on its picture.
    /// @param undoFolder a folder for what they undo, which is emptied
    void playEditsBeside(std::string undoFolder, bool scaleRadius) {
        editsUndoFolder_ = std::move(undoFolder);
        scaleRadius_ = scaleRadius;
    }

    /// The state for a job, with its files named and not read.
    /// @return null after `problem` was set
    std::unique_ptr<SystemInfo> prepare(const BatchJob& job, std::string& problem) const;

    /// Digest of all settings that make the picture: those of the state file, the command line and the job, and of
    /// the files that they name, edits among them. Remembered for each state file as long as that does not change.
    std::string recipeOf(const BatchJob& job, std::string& problem);

    /// One at a time.
    MadePicture make(const BatchJob& job, const ReadPicture& foreground, const ReadPicture& background) const;

    /// The background file of a job, which may be the one that its state names.
    std::string backgroundOf(const BatchJob& job, std::string& problem);

    /// The files that the state and the settings of a job name; none when the state cannot be read.
    std::vector<std::string> filesOf(const BatchJob& job);
    /// The file of edits that are played on the picture of a job; "" for none.
    std::string editsOf(const BatchJob& job) const;

  private:
    struct Recipe {
        FileFacts state;
        std::string digest, background, problem;
        std::vector<std::string> files;
    };
    const Recipe& recipe(const BatchJob& job);

    const SystemInfo& base_;
    const StartSettings start_;
    const ApplySettings settings_;
    bool choosesScreens_ = false;
    std::string editsUndoFolder_;  // empty while no edits are played
    bool scaleRadius_ = false;
    std::mutex mutex_;
    std::map<std::string, Recipe> recipes_;
};

}  // namespace tavrin
