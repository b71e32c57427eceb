#pragma once

#include <map>

#include <QKeySequence>
#include <QString>

#include "ui/bind/Command.h"

namespace tavrin {

/// Keys that a person chose in place of the usual ones, by names of commands; an empty one: no key.
using ChosenKeys = std::map<QString, QKeySequence>;

/// Those of earlier starts. Names that no command has (any more) stay, so that another version of the program still
/// finds its own.
ChosenKeys keptKeys();
/// Keeps them for later starts, in place of the older ones.
void keepKeys(const ChosenKeys& keys);

/// Why a command cannot have a key, as one plain sentence, or "" if it can: the desktop takes it, or controls need it
/// themselves. A command that lasts as long as its key is held cannot go with Ctrl, Alt or Shift.
QString whyNoKey(const Command& command, QKeyCombination key);

}  // namespace tavrin
