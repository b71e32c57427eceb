#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Brings a new state up for the desktop program, in the order on which its steps rest: settings file, size and page
/// lists, working folder, default state file, label 2, start-up pictures, output size. A fresh account gets what is
/// missing first. What cannot be read is told on the standard error stream, and the defaults stay in its place.
void startSystem(SystemInfo& info);

/// Brings a new state up for the command line, which leaves the account as it is: temporary files in a folder of the
/// process, the user's size and page lists where there are any, else the shipped ones. All settings at their
/// defaults. Shipped pictures that an effect needs later are taken from the account, or put there where it has lists.
void startCommandLine(SystemInfo& info);

/// Loads the pencils and the paper of the sketch that are not loaded yet. The desktop program has them from its
/// start, the command line gets them before its first sketch. On the processing thread, or before it starts.
void loadSketchPictures(StartUpPictures& pictures);

/// Brings a new state up like `other`, which `startCommandLine` brought up, without a look at the disk: for a process
/// that makes many pictures, each from a state of its own.
void startLike(SystemInfo& info, const SystemInfo& other);

/// Loads a state file as the user's choice: the state is read whole or not at all, and what a pass must redo is
/// flagged. The size of the buffers stays until the next pass takes the file's size from the list. Call it where no
/// stage runs: before the loop starts, or as a job of the loop's (`CombineThread::post`).
/// @return "" when done; otherwise one line, and the state is as it was
std::string openStateFile(SystemInfo& info, const std::string& path);

}  // namespace tavrin
