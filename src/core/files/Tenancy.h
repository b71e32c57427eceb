#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavrin {

/// How a process tells whether what it finds belongs to one that lives, on this machine or on another that shares the
/// folder. What is made carries in its name which machine was running, and is locked by the process that uses it; the
/// system takes the lock away with the process, however that ends. On the machine of the name the lock decides, in
/// containers too. Elsewhere it may be that locks do not get through, so time has to pass as well.

/// This machine since it was started, as 16 hexadecimal digits; never twice the same where the system does not tell.
const std::string& machineMark();

/// Locks a file or folder that this process has just made, until the handle is closed.
/// @return false when somebody took it for abandoned in between; then it is gone
bool takePossession(int handle);

/// Removes what nobody uses any more: whatever is not locked and carries the mark of this machine, and what nobody
/// can tell about if `isOld` says so. What may not be opened is another user's, and stays.
void removeIfAbandoned(const std::string& path, std::string_view mark, const std::function<bool()>& isOld);

}  // namespace tavrin
