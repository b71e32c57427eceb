#pragma once

#include "core/image/ImageReader.h"
#include "core/state/SystemInfo.h"

namespace tavrin {

/// The files of the two layers, read but not yet taken over.
struct ReadSources {
    ReadPicture foreground, background;
};

/// Reads the files of the layers that are wanted, both at once where there are cores for it. Until `ChangeOrgBitmap`
/// has taken them over, the records say that their sources are not those of their paths.
ReadSources readSources(SystemInfo& info, bool foreground, bool background);

/// Loads the source of a layer and turns it: flip, rotation, tilt. A foreground also gets its screen colour
/// estimated from the source. Corners that a turn leaves empty get a fixed screen-like green, to be keyed away.
/// A file that cannot be read shows an alert and leaves the old picture in place, with the reason as the record's
/// `sSourceProblem`.
/// @return false when the old picture stayed
bool ChangeOrgBitmap(SystemInfo& info, BitmapInfo& record);
/// The same with the file already read.
bool ChangeOrgBitmap(SystemInfo& info, BitmapInfo& record, ReadPicture picture);

/// Draws the source of a layer into both its buffers: fitted to the output, scaled and shifted by the user's
/// settings, over the colour of the screen. While the mouse is held in the view only the preview is drawn.
void ChangeBitmapScale(SystemInfo& info, BitmapInfo& record);

/// What a layer leaves empty, as bytes of the buffer.
struct LayerFill {
    double red = 0.0, green = 0.0, blue = 0.0;
};

/// The parts of the above, for the loop, which shows the preview in between. The full buffer takes the fill that the
/// preview has, since the screen may have been measured anew.
LayerFill drawPreviewLayer(SystemInfo& info, BitmapInfo& record);
/// @return false when the run was superseded, so that a part is missing
bool drawFullLayer(const SystemInfo& info, BitmapInfo& record, const LayerFill& fill, const RunContext& run = {});
/// The preview alone, at another place than the record's own, and with no word to the interface: for a look at it.
LayerFill drawPreviewAt(SystemInfo& info, BitmapInfo& record, const LayerPlace& place);
/// In place of the full layer while the mouse is held: the fill alone.
void emptyFullLayer(BitmapInfo& record, const LayerFill& fill);

}  // namespace tavrin
