#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "editor/EditItem.h"
#include "editor/EditMessage.h"

namespace tavrin {

/// A recording of edits as a text file: "tavrin-edits 1", then "view WIDTH HEIGHT" (the size of the picture that was
/// edited, in pixels), optionally "zoom D" (its pixels per point of the view, 1 by itself) and "seed N", then an item
/// a line, as "KIND V1 V2 V3 V4"; values at the end that a kind has no use for may be missing. What follows a # is a
/// comment.
struct EditFile {
    std::string path;
    int width = 0, height = 0;
    double zoom = 1.0;
    std::optional<std::uint64_t> seed;  ///< where random numbers of the picture started
    std::vector<EditItem> items;        ///< at most `kMostEditItems`
    std::size_t dropped = 0;            ///< items beyond these, which are not played
    std::size_t unknown = 0;            ///< items of other kinds, which are passed over

    /// Some item takes back what was done.
    bool undoes() const;
};

/// An edits file, or why there is none.
struct ReadEdits {
    EditFile file;
    EditMessage problem;  ///< names the file, and the line of it; empty when there is a file
};

/// Reads a file whole and checks every line.
ReadEdits readEditFile(const std::string& path);

/// The same from its text.
ReadEdits parseEdits(const std::string& path, const std::string& text);

/// The text of a file; comments are not kept.
std::string editText(const EditFile& file);

/// Where the edits of a portrait lie: beside it with ".edits" behind its whole name, or in the place of its
/// extension; "" when neither is there.
std::string editsBeside(const std::string& portrait);

}  // namespace tavrin
