#pragma once

#include <string>

#include "core/state/SystemInfo.h"
#include "formats/ProcessXML.h"

namespace tavrin {

/// What a load of a state file takes over.
enum ImageStateLoadMode : int {
    kLoadAll = 1,             ///< a state file, the default file, a recipe
    kLoadForForeground = 2,   ///< all but the background record and the output geometry
    kLoadBackgroundOnly = 3,  ///< nothing but the background record
};

/// The output size as a state file tells it. The list of another machine may know its name or its place as another
/// one, or not at all.
struct StoredSize {
    std::string name;
    std::int32_t index = -1;
    double width = 0.0, height = 0.0;  ///< inches; 0 where the file lacks them
    std::int32_t dpi = 0;

    bool tellsInches() const { return width != 0.0 && height != 0.0 && dpi != 0; }
};

/// Writes every stored setting, the three records, labels, items, textures and frames of a state to a `.qlx` file.
/// @return "" when done; otherwise one line that names the file, and the element if there is one to blame. The old
///         file is still there then.
[[nodiscard]] std::string saveImageStateToXML(const SystemInfo& info, const std::string& path);

/// Reads a `.qlx` file: whole or not at all. Any `iLoadMode` but 1 and 3 is taken as 2. Buffers and flags stay as
/// they are, and the geometry that is read allocates nothing: `loadState` of the session goes on from here.
///
/// The file's habits, which stay: `iForegroundOutputMode` and `iBackgroundOutputMode` change places on every load,
/// `dOutputImageHeightInInches` is not read, and a leaf that is missing reads as 0, "" or false, not as its default.
///
/// The list of text and picture items is replaced in one step, but the list itself has no lock: call it where nothing
/// walks `oFontObject`.
/// @param stored filled with the size of the file in mode 1, when it is not null
/// @return "" when done; otherwise one line that names the file and the element to blame, and `info` is as it was
[[nodiscard]] std::string LoadImageStateFromXML(SystemInfo& info, const std::string& path, int iLoadMode,
                                                StoredSize* stored = nullptr);

/// The same in mode 1 for the bytes of a file that lies elsewhere, known by `name`.
[[nodiscard]] std::string LoadImageStateFromBytes(SystemInfo& info, const std::string& name, const std::string& bytes,
                                                  StoredSize* stored);

// The objects of a state. Those without a name work on the current element: the caller opens it, or sets it active.
void saveBitmapInfoToXML(const LayerSettings& record, ProcessXML& xml);
void loadBitmapInfoFromXML(LayerSettings& record, ProcessXML& xml);
void saveFontObjectToXML(const FontObject& item, ProcessXML& xml);
void loadFontObjectFromXML(FontObject& item, ProcessXML& xml);
void saveTextureObjectToXML(const ImageTexture& texture, ProcessXML& xml);
void loadTextureObjectFromXML(ImageTexture& texture, ProcessXML& xml);
/// A frame in the element `frameName`, and its texture in another with "TextureObject" behind the name. A frame or
/// texture that the file lacks stays as it is; `iFrameThickness` is never stored.
void saveFrameObjectToXML(const ImageFrame& frame, ProcessXML& xml, const std::string& frameName);
void loadFrameObjectFromXML(ImageFrame& frame, ProcessXML& xml, const std::string& frameName);

}  // namespace tavrin
