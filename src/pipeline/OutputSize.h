#pragma once

#include <optional>
#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// The place in the list of a size that is in none: `iSelecteImageSize` of a picture with a size of its own, which
/// stands in the state's inches and dots an inch. So a long run of such pictures fills no list.
inline constexpr std::int32_t kOwnImageSize = -1;

/// The size that is selected, of the list or the picture's own; nothing where the list has no such entry.
std::optional<ImageSize> selectedSize(const SystemInfo& info);

/// Why a size makes no picture, as one plain line that names it; "" when it makes one.
std::string sizeProblem(const ImageSize& size);

/// Takes the size that is selected: works out both geometries, gives all three records new
/// buffers, and asks for both sources to be loaded again. The preview holds about 300,000 pixels whatever the size.
/// @return "" or why there is no such size or no picture of it, as one plain line; nothing is changed then
std::string ChangeImageSize(SystemInfo& info);

/// Gives one record buffers and contexts of the present geometry, with undefined contents, and the hair map its
/// preview size. Says "Memory not allocated!" when memory is refused; the record then has no buffers.
void ChangeOutputSize(SystemInfo& info, BitmapInfo& record);

/// Makes the page buffer of print template `page` at 600 dpi, opaque white, unless it is the current one.
void ChangeTemplateBitmap(SystemInfo& info, int page);

}  // namespace tavrin
