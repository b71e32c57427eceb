#pragma once

#include <memory>
#include <string>
#include <vips/vips.h>

namespace tavrin {

/// Owns one reference to an object of the image library.
struct GlibUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using VipsRef = std::unique_ptr<VipsImage, GlibUnref>;

/// Starts the image library, once and from any thread, with its operation cache off: every picture is read for one
/// use, and the cache would hold on to it. Its warnings become traces.
/// @return "", or why no picture can be read or written as one plain line
std::string startVips();

/// The last line of what the image library complained about (it names the cause); clears it.
std::string takeVipsError();

/// `image` as one of the library's operations has set it in the same expression, when its `status` is 0; else null.
inline VipsRef takeVips(int status, VipsImage* const& image) {
    return VipsRef(status == 0 ? image : nullptr);
}

}  // namespace tavrin
