#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <QImage>

#include "core/files/AtomicFile.h"

namespace tavrin {

/// A PDF that is written piece by piece, so that no more than one picture of it is in memory. Pictures are in it as
/// they are: the bytes of a JPEG file, or pixels without loss, packed on all cores. The file appears under its name
/// when it is complete.
class PdfFile {
  public:
    explicit PdfFile(const std::string& path);

    /// The number of an object that is put later.
    int reserve();
    void put(int number, const std::string& body);
    int add(const std::string& body);
    int addStream(const std::string& dictionary, const std::string& bytes);

    /// @param picture RGBX8888
    int addPicture(const QImage& picture);
    /// @param jpeg a file of three channels, without what is not its picture (`plainJpeg`)
    int addJpeg(const std::string& jpeg, QSize size);

    /// Ends the file and gives it its name.
    /// @param catalog number of the object that leads to the pages
    /// @return "" or what is wrong as one plain line
    std::string commit(int catalog);

  private:
    void write(const std::string& bytes);

    AtomicFile file_;
    std::uint64_t length_ = 0;
    std::vector<std::uint64_t> offsets_;  ///< of object number + 1
};

}  // namespace tavrin
