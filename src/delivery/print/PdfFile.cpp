#include "delivery/print/PdfFile.h"

#include <cstdio>

#include "core/image/PackedRows.h"

namespace tavrin {

namespace {

/// The colours of a picture, packed without loss.
std::string packed(const QImage& picture) {
    std::string stream;
    packRows(
        {picture.constBits(), picture.width(), picture.height(), static_cast<std::size_t>(picture.bytesPerLine()), 3},
        [&stream](const std::string& bytes) {
            stream += bytes;
            return true;
        });
    return stream;
}

std::string pictureDictionary(QSize size) {
    return "/Type /XObject /Subtype /Image /Width " + std::to_string(size.width()) + " /Height " +
           std::to_string(size.height()) + " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Interpolate true ";
}

}  // namespace

PdfFile::PdfFile(const std::string& path) : file_(path) {
    write("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

void PdfFile::write(const std::string& bytes) {
    file_.write(bytes.data(), bytes.size());
    length_ += bytes.size();
}

int PdfFile::reserve() {
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
}

void PdfFile::put(int number, const std::string& body) {
    offsets_[static_cast<std::size_t>(number) - 1] = length_;
    write(std::to_string(number) + " 0 obj\n" + body + "\nendobj\n");
}

int PdfFile::add(const std::string& body) {
    const int number = reserve();
    put(number, body);
    return number;
}

int PdfFile::addStream(const std::string& dictionary, const std::string& bytes) {
    const int number = reserve();
    offsets_.back() = length_;
    write(std::to_string(number) + " 0 obj\n<< " + dictionary + "/Length " + std::to_string(bytes.size()) +
          " >>\nstream\n");
    write(bytes);
    write("\nendstream\nendobj\n");
    return number;
}

int PdfFile::addPicture(const QImage& picture) {
    return addStream(pictureDictionary(picture.size()) +
                         "/Filter /FlateDecode /DecodeParms << /Predictor 15 /Colors 3 /Columns " +
                         std::to_string(picture.width()) + " >> ",
                     packed(picture));
}

int PdfFile::addJpeg(const std::string& jpeg, QSize size) {
    return addStream(pictureDictionary(size) + "/Filter /DCTDecode ", jpeg);
}

std::string PdfFile::commit(int catalog) {
    const std::uint64_t start = length_;
    std::string table = "xref\n0 " + std::to_string(offsets_.size() + 1) + "\n0000000000 65535 f \n";
    for (const std::uint64_t offset : offsets_) {
        char line[32];
        std::snprintf(line, sizeof line, "%010llu 00000 n \n", static_cast<unsigned long long>(offset));
        table += line;
    }
    write(table + "trailer\n<< /Size " + std::to_string(offsets_.size() + 1) + " /Root " + std::to_string(catalog) +
          " 0 R >>\nstartxref\n" + std::to_string(start) + "\n%%EOF\n");
    return file_.commit() ? std::string() : file_.error();
}

}  // namespace tavrin
