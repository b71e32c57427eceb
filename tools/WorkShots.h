#pragma once

#include <functional>

#include <QString>

class QWidget;

namespace tavrin {

class MainWindow;
class SystemInfo;

/// A folder that is looked through: some portraits marked, one that cannot be read.
void showFolder(MainWindow& window, SystemInfo& info, const QString& folder);

/// A run of the batch page, with a picture that fails.
void shootBatch(MainWindow& window, SystemInfo& info, const std::function<void(const char*)>& save);

/// The photo booth at work, and what its guests see.
void shootBooth(MainWindow& window, SystemInfo& info, const std::function<void(const char*, QWidget&)>& save);

/// The outbox with a mail that waits and one that may have gone.
void shootOutbox(MainWindow& window, const std::function<void(const char*)>& save);

}  // namespace tavrin
