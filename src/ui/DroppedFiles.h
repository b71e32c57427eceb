#pragma once

#include <QStringList>

class QMimeData;

namespace tavrin {

/// The files of this machine that are dropped, as texts of their names (NameText.h).
QStringList droppedFiles(const QMimeData* data);

}  // namespace tavrin
