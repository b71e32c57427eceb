#pragma once

#include <QString>

namespace tavrin {

/// The filters of a file dialog: every type that is read, each type that is written, state files.
QString pictureFilter();
QString saveFilter();
QString stateFilter();

}  // namespace tavrin
