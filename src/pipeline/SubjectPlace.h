#pragma once

#include <optional>
#include <vector>

#include "pipeline/LayerFit.h"
#include "pipeline/SubjectBounds.h"

namespace tavrin {

/// Room above the head, of the picture's height.
inline constexpr double kHeadRoom = 0.08;

/// The place that frames a subject: its middle in the middle of the width, that much room above its head or more, its
/// lower end on the picture's lower edge where the source cuts it, and whole. Where the source cuts it at another
/// side, that edge of the source does not show; the subject is as large as that takes, and may lose more of its width
/// to fill the picture's height, but heads and raised hands.
/// @param full fit of the source to the full picture
LayerPlace placeAround(const SubjectBounds& subject, const LayerFit& full, double headRoom = kHeadRoom);

/// The middle of the source in the middle of the picture.
LayerPlace placeInMiddle(const LayerFit& full);

/// Keys the preview with the whole source in it and looks where the subject is. The previews of foreground and
/// combined picture and the background's alpha are used up by that; settings, place and screen colour stay.
/// @return nothing when the key leaves no subject
std::optional<SubjectBounds> measureSubject(SystemInfo& info);

/// Asks the loop for a place. With the rule `corner` nothing is asked for: scale and moves change the present place.
void wantPlace(SystemInfo& info, PlaceRule rule, double scale = 1.0, int xMove = 0, int yMove = 0);

/// Carries out what `wantPlace` asked for, with the source loaded and the size in force, before the layer is drawn. A
/// place that somebody has set by hand or with a state stays.
void placeForeground(SystemInfo& info);

/// After a change of the output size: a place that `placeForeground` found is looked for again.
void placeForNewSize(SystemInfo& info);

/// The place in the middle of all, each value by itself; the default place of none.
LayerPlace medianPlace(const std::vector<LayerPlace>& places);

}  // namespace tavrin
