#pragma once

#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Text and pictures on the image. Each is drawn into a context of the background or of the combined picture; `myRes`
/// is 1 for the full picture, any other value for the preview. Text is laid out on the thread that draws it. A null
/// context, and a resolution without a size, draw nothing. A superseded run leaves out what is still to come. Without
/// any font text is left out; an alert says so, once in the life of the program.
///
/// The combined picture of transparent output holds straight alpha: there the text becomes part of the subject.

/// Draws all list items of a level ("Background", "Background Layer", "Foreground", "Foreground Layer", "Frame
/// Layer") in the order of the list, on the last level the labels first. While `bTextPanelOpen` is set the dialog
/// shows the items and they are left out. A picture whose file cannot be read is left out with an alert.
///
/// The lower left corner of an item, a text's box `rectSize` or the picture, stands `xPos` and `yPos` inches from the
/// lower left corner of the image. A text starts at the top of its box.
void DrawTextAtLevel(SystemInfo& info, BitmapContext* context, const std::string& sLevel, int myRes,
                     const RunContext& run = {});

/// Draws one label: one line at its `sLocation`, in `sFontName` at `iFontSize`, in its fill colour, with three steps
/// of shadow where `bDropShadow` is set. "@filename" stands for the name of the foreground's file.
void DrawText(SystemInfo& info, BitmapContext* context, const FontObject& myFontObject, int myRes,
              const RunContext& run = {});

/// Draws a picture file over the whole image, stretched to it. Shows an alert when it cannot be read.
void DrawOverlayImage(SystemInfo& info, BitmapContext* context, const std::string& myImage, int myRes,
                      const RunContext& run = {});

/// Gives a label the size in points that its `sLabelSize` names, or the fill that its `sFontColor` names.
void useLabelSize(FontObject& label);
void useLabelColor(FontObject& label);
/// As `sFontColor` of a label: white with a shadow on dark ground and black on light, chosen when it is first drawn.
inline constexpr const char* kColorByGround = "Auto";
/// Makes that choice for all labels that wait for it.
/// @param pixels the picture that they will be drawn on, RGBA, of the size of `myRes`; null chooses nothing
void chooseLabelColors(SystemInfo& info, const std::uint8_t* pixels, Resolution resolution);
/// Makes a label smaller until its line fits a width with the margins of labels, but not below 6 points.
/// @param inches width of the picture
void shrinkToFit(const SystemInfo& info, FontObject& label, double inches);
/// What a label shows: its text, or the name of the foreground's file for "@filename". "" when that is nothing.
std::string labelString(const SystemInfo& info, const FontObject& label);

/// Makes the box of a text item as large as its lines are, so that it frames them and nothing wraps. Without fonts,
/// and for a picture, it stays.
void fitTextBox(const SystemInfo& info, FontObject& item);

/// "", or why the text of the state cannot be drawn as one plain line: there is some, and no font for it.
std::string textProblem(const SystemInfo& info);

/// Gives each label the size and the colour that `sLabelSize` ("X-Large", "Large", "Medium", "Small") and
/// `sFontColor` ("White", else black) name; an unknown size leaves the old one.
void updateLabelSettings(SystemInfo& info);

}  // namespace tavrin
