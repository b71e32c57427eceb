#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QRectF>

namespace tavrin {

/// The paper in a printer, in points (72 an inch), upright or on its side as it is printed on.
struct Paper {
    double width = 0, height = 0;
    std::string name;  ///< for people: "A4"

    Paper turned() const { return {height, width, name}; }
};

/// How far a sheet stays from the edges of its paper, in points.
struct SheetMargins {
    float left = 0, right = 0, top = 0, bottom = 0;
};

/// The margins that put a sheet of `pixelWidth` x `pixelHeight` at 600 dpi in the middle of a paper; 0 where the
/// paper is the smaller one.
SheetMargins marginsOn(const Paper& paper, int pixelWidth, int pixelHeight);

/// The part of a paper that a sheet is printed on, in points from the lower left corner, y upward. The sheet's own
/// lower left corner lies in that of this area, and what stands over is cut off.
QRectF printedArea(const Paper& paper, const SheetMargins& margins);

/// Whether a sheet of that many pixels at 600 dpi is cut off on a paper.
bool isCutOff(const Paper& paper, int pixelWidth, int pixelHeight);

/// A paper by its name ("A4", "Letter") or by its size in inches, centimetres or millimetres ("4x6", "10x15cm").
std::optional<Paper> paperOf(const std::string& text);

/// What a paper of a size is called; its size in inches where it has no name.
std::string paperName(double width, double height);

/// The paper that is usual where the user lives.
Paper usualPaper();

/// Names of papers to choose from where no printer tells its own.
std::vector<Paper> usualPapers();

}  // namespace tavrin
