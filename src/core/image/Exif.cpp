#include "core/image/Exif.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <libexif/exif-data.h>
#include <libexif/exif-utils.h>
#include <memory>

namespace tavrin {

namespace {

struct ExifUnref {
    void operator()(ExifData* data) const { exif_data_unref(data); }
};
using ExifRef = std::unique_ptr<ExifData, ExifUnref>;

constexpr std::array<std::uint8_t, 6> kHead = {'E', 'x', 'i', 'f', 0, 0};

ExifRef parse(const ExifBlock& exif) {
    if (exif.empty()) return nullptr;
    ExifBlock block = exif;
    if (block.size() < kHead.size() || !std::equal(kHead.begin(), kHead.end(), block.begin()))
        block.insert(block.begin(), kHead.begin(), kHead.end());
    ExifRef data(exif_data_new());
    if (!data) return nullptr;
    // The maker's private notes stay bytes; they are not kept.
    exif_data_unset_option(data.get(), EXIF_DATA_OPTION_FOLLOW_SPECIFICATION);
    exif_data_load_data(data.get(), block.data(), static_cast<unsigned>(block.size()));
    return data;
}

ExifBlock serialise(ExifData* data) {
    unsigned char* bytes = nullptr;
    unsigned size = 0;
    exif_data_save_data(data, &bytes, &size);
    ExifBlock block(bytes, bytes + size);
    std::free(bytes);
    return block;
}

ExifEntry* find(ExifData* data, ExifIfd ifd, ExifTag tag) {
    return exif_content_get_entry(data->ifd[ifd], tag);
}

std::string text(ExifData* data, ExifIfd ifd, ExifTag tag) {
    const ExifEntry* entry = find(data, ifd, tag);
    if (!entry || entry->format != EXIF_FORMAT_ASCII || !entry->data) return {};
    std::string value(reinterpret_cast<const char*>(entry->data), entry->size);
    value.erase(std::find(value.begin(), value.end(), '\0'), value.end());
    while (!value.empty() && value.back() == ' ')
        value.pop_back();
    return value;
}

double ratio(ExifData* data, ExifTag tag) {
    const ExifEntry* entry = find(data, EXIF_IFD_EXIF, tag);
    if (!entry || entry->format != EXIF_FORMAT_RATIONAL || entry->size < 8) return 0;
    const ExifRational value = exif_get_rational(entry->data, exif_data_get_byte_order(data));
    return value.denominator ? static_cast<double>(value.numerator) / value.denominator : 0;
}

double number(ExifData* data, ExifTag tag) {
    const ExifEntry* entry = find(data, EXIF_IFD_EXIF, tag);
    if (!entry || entry->format != EXIF_FORMAT_SHORT || entry->size < 2) return 0;
    return exif_get_short(entry->data, exif_data_get_byte_order(data));
}

void remove(ExifData* data, ExifIfd ifd, ExifTag tag) {
    if (ExifEntry* entry = find(data, ifd, tag)) exif_content_remove_entry(data->ifd[ifd], entry);
}

double numberAt(const unsigned char* from, ExifFormat format, ExifByteOrder order) {
    switch (format) {
        case EXIF_FORMAT_BYTE:
            return *from;
        case EXIF_FORMAT_SHORT:
            return exif_get_short(from, order);
        case EXIF_FORMAT_LONG:
            return exif_get_long(from, order);
        case EXIF_FORMAT_SLONG:
            return exif_get_slong(from, order);
        case EXIF_FORMAT_RATIONAL: {
            const ExifRational ratio = exif_get_rational(from, order);
            return ratio.denominator ? static_cast<double>(ratio.numerator) / ratio.denominator : 0;
        }
        case EXIF_FORMAT_SRATIONAL: {
            const ExifSRational ratio = exif_get_srational(from, order);
            return ratio.denominator ? static_cast<double>(ratio.numerator) / ratio.denominator : 0;
        }
        default:
            return 0;
    }
}

ExifValue valueOf(ExifData* data, ExifIfd ifd, const ExifEntry& entry) {
    ExifValue value{entry.tag, ifd == EXIF_IFD_EXIF, {}, {}, {}};
    const std::size_t step = exif_format_get_size(entry.format);
    if (!entry.data || !step) return value;
    if (entry.format == EXIF_FORMAT_ASCII) {
        value.text = text(data, ifd, entry.tag);
    } else if (entry.format == EXIF_FORMAT_UNDEFINED) {
        value.bytes.assign(entry.data, entry.data + entry.size);
    } else {
        for (std::size_t at = 0; at + step <= entry.size; at += step)
            value.numbers.push_back(numberAt(entry.data + at, entry.format, exif_data_get_byte_order(data)));
    }
    return value;
}

// A new entry with room for `count` values; the bytes belong to the entry.
ExifEntry* add(ExifData* data, ExifIfd ifd, ExifTag tag, ExifFormat format, unsigned count) {
    remove(data, ifd, tag);
    ExifMem* memory = exif_mem_new_default();
    ExifEntry* entry = exif_entry_new_mem(memory);
    entry->tag = tag;
    entry->format = format;
    entry->components = count;
    entry->size = count * exif_format_get_size(format);
    entry->data = static_cast<unsigned char*>(exif_mem_alloc(memory, entry->size));
    exif_content_add_entry(data->ifd[ifd], entry);
    exif_entry_unref(entry);
    exif_mem_unref(memory);
    return entry;
}

void addText(ExifData* data, ExifIfd ifd, ExifTag tag, const std::string& value) {
    if (value.empty()) return;
    ExifEntry* entry = add(data, ifd, tag, EXIF_FORMAT_ASCII, static_cast<unsigned>(value.size() + 1));
    std::memcpy(entry->data, value.c_str(), value.size() + 1);
}

void addShort(ExifData* data, ExifIfd ifd, ExifTag tag, double value) {
    if (value < 1 || value > 65535) return;
    exif_set_short(add(data, ifd, tag, EXIF_FORMAT_SHORT, 1)->data, exif_data_get_byte_order(data),
                   static_cast<ExifShort>(std::lround(value)));
}

void addLong(ExifData* data, ExifIfd ifd, ExifTag tag, int value) {
    exif_set_long(add(data, ifd, tag, EXIF_FORMAT_LONG, 1)->data, exif_data_get_byte_order(data),
                  static_cast<ExifLong>(value));
}

// Times below a second are written as 1/n, as cameras do.
void addRatio(ExifData* data, ExifIfd ifd, ExifTag tag, double value) {
    if (!(value > 0) || value > 1e5 || value < 1e-5) return;
    ExifRational ratio{static_cast<ExifLong>(std::lround(value * 1000)), 1000};
    if (value < 0.3) ratio = {1, static_cast<ExifLong>(std::lround(1 / value))};
    exif_set_rational(add(data, ifd, tag, EXIF_FORMAT_RATIONAL, 1)->data, exif_data_get_byte_order(data), ratio);
}

void dropAll(ExifContent* content) {
    while (content->count)
        exif_content_remove_entry(content, content->entries[0]);
}

// The tags that describe the old picture and not the shot.
void dropStale(ExifData* data) {
    dropAll(data->ifd[EXIF_IFD_1]);
    std::free(data->data);
    data->data = nullptr;
    data->size = 0;
    // Layout of stored pixels, as in a TIFF file.
    for (const int tag : {0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0111, 0x0112, 0x0115, 0x0116, 0x0117,
                          0x011A, 0x011B, 0x011C, 0x0128, 0x013D, 0x0142, 0x0143, 0x0144, 0x0145, 0x0152,
                          0x0153, 0x0201, 0x0202, 0x0211, 0x0212, 0x0213, 0x8773, 0xC4A5})
        remove(data, EXIF_IFD_0, static_cast<ExifTag>(tag));
    for (const ExifTag tag :
         {EXIF_TAG_MAKER_NOTE, EXIF_TAG_PIXEL_X_DIMENSION, EXIF_TAG_PIXEL_Y_DIMENSION, EXIF_TAG_COLOR_SPACE,
          EXIF_TAG_COMPRESSED_BITS_PER_PIXEL, EXIF_TAG_COMPONENTS_CONFIGURATION, EXIF_TAG_FOCAL_PLANE_X_RESOLUTION,
          EXIF_TAG_FOCAL_PLANE_Y_RESOLUTION, EXIF_TAG_FOCAL_PLANE_RESOLUTION_UNIT, EXIF_TAG_SUBJECT_AREA,
          EXIF_TAG_SUBJECT_LOCATION})
        remove(data, EXIF_IFD_EXIF, tag);
    dropAll(data->ifd[EXIF_IFD_INTEROPERABILITY]);
}

bool isEmpty(const ExifData* data) {
    return std::all_of(std::begin(data->ifd), std::end(data->ifd), [](const auto* ifd) { return ifd->count == 0; });
}

}  // namespace

CameraFacts cameraFacts(const ExifBlock& exif) {
    CameraFacts facts;
    const ExifRef data = parse(exif);
    if (!data) return facts;
    facts.maker = text(data.get(), EXIF_IFD_0, EXIF_TAG_MAKE);
    facts.model = text(data.get(), EXIF_IFD_0, EXIF_TAG_MODEL);
    facts.lens = text(data.get(), EXIF_IFD_EXIF, static_cast<ExifTag>(0xA434));
    facts.taken = text(data.get(), EXIF_IFD_EXIF, EXIF_TAG_DATE_TIME_ORIGINAL);
    if (facts.taken.empty()) facts.taken = text(data.get(), EXIF_IFD_0, EXIF_TAG_DATE_TIME);
    facts.exposureSeconds = ratio(data.get(), EXIF_TAG_EXPOSURE_TIME);
    facts.aperture = ratio(data.get(), EXIF_TAG_FNUMBER);
    facts.iso = number(data.get(), EXIF_TAG_ISO_SPEED_RATINGS);
    facts.focalLength = ratio(data.get(), EXIF_TAG_FOCAL_LENGTH);
    return facts;
}

ExifBlock makeExif(const CameraFacts& facts) {
    const ExifRef data(exif_data_new());
    if (!data) return {};
    exif_data_set_byte_order(data.get(), EXIF_BYTE_ORDER_INTEL);
    addText(data.get(), EXIF_IFD_0, EXIF_TAG_MAKE, facts.maker);
    addText(data.get(), EXIF_IFD_0, EXIF_TAG_MODEL, facts.model);
    addText(data.get(), EXIF_IFD_EXIF, static_cast<ExifTag>(0xA434), facts.lens);
    addText(data.get(), EXIF_IFD_EXIF, EXIF_TAG_DATE_TIME_ORIGINAL, facts.taken);
    addRatio(data.get(), EXIF_IFD_EXIF, EXIF_TAG_EXPOSURE_TIME, facts.exposureSeconds);
    addRatio(data.get(), EXIF_IFD_EXIF, EXIF_TAG_FNUMBER, facts.aperture);
    addRatio(data.get(), EXIF_IFD_EXIF, EXIF_TAG_FOCAL_LENGTH, facts.focalLength);
    addShort(data.get(), EXIF_IFD_EXIF, EXIF_TAG_ISO_SPEED_RATINGS, facts.iso);
    return isEmpty(data.get()) ? ExifBlock() : serialise(data.get());
}

ExifBlock carryOverExif(const ExifBlock& exif, int width, int height, int dpi, bool keepLocation) {
    const ExifRef data = parse(exif);
    if (!data || isEmpty(data.get())) return {};
    dropStale(data.get());
    if (!keepLocation) dropAll(data->ifd[EXIF_IFD_GPS]);
    if (isEmpty(data.get())) return {};
    constexpr double kUpright = 1, kInches = 2, kSrgb = 1;
    addShort(data.get(), EXIF_IFD_0, EXIF_TAG_ORIENTATION, kUpright);
    addRatio(data.get(), EXIF_IFD_0, EXIF_TAG_X_RESOLUTION, dpi);
    addRatio(data.get(), EXIF_IFD_0, EXIF_TAG_Y_RESOLUTION, dpi);
    addShort(data.get(), EXIF_IFD_0, EXIF_TAG_RESOLUTION_UNIT, kInches);
    addShort(data.get(), EXIF_IFD_EXIF, EXIF_TAG_COLOR_SPACE, kSrgb);
    addLong(data.get(), EXIF_IFD_EXIF, EXIF_TAG_PIXEL_X_DIMENSION, width);
    addLong(data.get(), EXIF_IFD_EXIF, EXIF_TAG_PIXEL_Y_DIMENSION, height);
    return serialise(data.get());
}

std::vector<ExifValue> exifValues(const ExifBlock& exif) {
    std::vector<ExifValue> values;
    const ExifRef data = parse(exif);
    if (!data) return values;
    for (const ExifIfd ifd : {EXIF_IFD_0, EXIF_IFD_EXIF}) {
        const ExifContent& content = *data->ifd[ifd];
        for (unsigned i = 0; i < content.count; ++i)
            values.push_back(valueOf(data.get(), ifd, *content.entries[i]));
    }
    return values;
}

}  // namespace tavrin
