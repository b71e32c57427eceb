#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Takes the entry of `oImageSize` at `iSelecteImageSize`: works out both geometries, gives all three records new
/// buffers, and asks for both sources to be loaded again. The preview holds about 300,000 pixels whatever the size.
/// @return false, with a line on the standard error stream and nothing changed, when there is no such entry or it
///         makes no picture of 1 to 400 million pixels
bool ChangeImageSize(SystemInfo& info);

/// Gives one record buffers and contexts of the present geometry, with undefined contents, and the hair map its
/// preview size. Says "Memory not allocated!" when memory is refused; the record then has no buffers.
void ChangeOutputSize(SystemInfo& info, BitmapInfo& record);

/// Makes the page buffer of print template `page` at 600 dpi, opaque white, unless it is the current one.
void ChangeTemplateBitmap(SystemInfo& info, int page);

/// Adds a size of the caller's own to the list, or replaces the one of that name, and selects it. `ChangeImageSize`
/// puts it into force.
/// @return false when the list is full
bool selectOwnSize(SystemInfo& info, const std::string& name, double widthInches, double heightInches, int dpi);

/// Selects the entry of that name, the last one where several have it.
/// @return false when there is none
bool selectSizeByName(SystemInfo& info, const std::string& name);

}  // namespace tavrin
