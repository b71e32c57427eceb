#pragma once

#include <vector>

#include "ui/bind/GroupBox.h"

namespace tavrin {

/// The three labels, a group each: title, note, and the one of an event.
std::vector<GroupBox*> makeLabelGroups(Binder& binder, QWidget* parent);

}  // namespace tavrin
