#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Brings a new state up for the desktop program, in the order on which its steps rest: settings file, size and page
/// lists, working folder, default state file, label 2, start-up pictures, output size. A fresh account gets what is
/// missing first. What is damaged is set aside and the shipped file takes its place; an account that cannot be
/// written to is left for folders of this process.
/// @return "" or one line for each thing that went wrong, for the user; the standard error stream has them too
std::string startSystem(SystemInfo& info);

/// Brings a new state up for the command line, which leaves the account as it is: temporary files in a folder of the
/// process, the user's size and page lists where there are any, else the shipped ones; but a damaged shipped list of
/// the account is set aside. All settings at their defaults. Shipped pictures that an effect needs later are taken
/// from the account, or put there where it has lists.
void startCommandLine(SystemInfo& info);

/// Brings a new state up like `other`, which `startCommandLine` brought up, without a look at the disk: for a process
/// that makes many pictures, each from a state of its own.
void startLike(SystemInfo& info, const SystemInfo& other);

}  // namespace tavrin
