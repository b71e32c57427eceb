#pragma once

#include <cstdint>
#include <vector>

#include "key/refine/grid/Parts.h"
#include "key/refine/screen/Hues.h"
#include "key/refine/screen/OuterScreen.h"

namespace tavrin::refine {

/// Finds cloth near the screen's hue, cell by cell of an outer screen: what no light makes of the screen, and what
/// has the colours of one thing in more and less light.
class ClothCells {
  public:
    /// @param difference the screen's usual one
    ClothCells(const RunContext& context, const Shot& shot, float difference, const OuterScreen& outer);

    /// The inner cells of such cloth, if it is a large part of the picture.
    Mask find() const;

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    /// By its mean a cell is no shade of the screen; all of its pixels are none, and it is near the screen's hue; and
    /// all cells around are such ones.
    bool isStrange(std::size_t cell) const { return strange_[cell] != 0; }
    bool isWhole(std::size_t cell) const { return whole_[cell] != 0; }
    bool isInner(int c, int row) const;
    Color own(std::size_t cell) const;
    Color behind(std::size_t cell) const;
    std::size_t at(int c, int row) const { return static_cast<std::size_t>(row * columns_ + c); }

    /// @param work takes column and row
    template <class Work>
    void forCells(const Work& work) const {
        for (int row = 0; row < rows_; ++row) {
            for (int c = 0; c < columns_; ++c)
                work(c, row);
        }
    }

  private:
    // A part of the inner cells, and sums over those of its cells that shading explains.
    struct Part {
        double cells = 0.0;
        double shade = 0.0, mix = 0.0, screen = 0.0, key = 0.0;
        Dye dye;
        bool atSide = false;  // beside or above
    };

    void findWhole();
    void compare(std::size_t from, std::size_t to, Cells& left) const;
    Cells leftOvers() const;
    std::vector<std::uint8_t> shadedCells(const Cells& left, const std::vector<std::uint8_t>& inner) const;
    float keyOf(int c, int row) const;
    void add(int c, int row, const Cells& left, Part& part) const;
    bool isCloth(const Part& part) const;

    const RunContext& context_;
    const Shot& shot_;
    const OuterScreen& outer_;
    const float difference_;
    const int columns_, rows_;
    std::vector<std::uint8_t> strange_, whole_;
};

}  // namespace tavrin::refine
