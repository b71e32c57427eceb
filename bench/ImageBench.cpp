// Pictures in and out: decode, scale, encode. The picture is made here: soft shapes with sensor-like noise. Beside
// JPEG files stands what the library takes alone, from memory to memory and with nothing checked.
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <jpeglib.h>
#include <map>
#include <string>
#include <vector>

#include "core/image/ImageReader.h"
#include "core/image/ImageWriter.h"
#include "core/raster/BitmapContext.h"
#include "core/raster/Pixels.h"

namespace tavrin {
namespace {

struct Size {
    int width, height;
};

Size sizeOf(std::int64_t megapixels) {
    return megapixels == 12 ? Size{4000, 3000} : Size{6000, 4000};
}

QImage makePicture(Size size) {
    QImage image(size.width, size.height, QImage::Format_RGBA8888_Premultiplied);
    std::uint32_t random = 1;
    for (int y = 0; y < size.height; ++y) {
        std::uint8_t* p = image.scanLine(y);
        for (int x = 0; x < size.width; ++x, p += 4) {
            random = random * 1664525u + 1013904223u;
            const int grain = static_cast<int>(random >> 29);
            p[0] = static_cast<std::uint8_t>(100 + 60 * std::sin(x * 0.004) + grain);
            p[1] = static_cast<std::uint8_t>(120 + 60 * std::sin(y * 0.003) + grain);
            p[2] = static_cast<std::uint8_t>(90 + 60 * std::sin((x + y) * 0.002) + grain);
            p[3] = 255;
        }
    }
    return image;
}

const QImage& picture(std::int64_t megapixels) {
    static std::map<std::int64_t, QImage> made;
    if (!made.count(megapixels)) made[megapixels] = makePicture(sizeOf(megapixels));
    return made[megapixels];
}

std::string pathOf(std::int64_t megapixels, const char* extension) {
    return (std::filesystem::temp_directory_path() / ("tavrin-bench-" + std::to_string(megapixels) + extension))
        .string();
}

std::string write(std::int64_t megapixels, int fileType, const std::string& path) {
    const QImage& image = picture(megapixels);
    return writePicture(path, {image.constBits(), image.width(), image.height(), fileType, 300, {}});
}

void decodeJpeg(benchmark::State& state) {
    const std::string path = pathOf(state.range(0), ".jpg");
    if (!write(state.range(0), kJpegFile, path).empty()) state.SkipWithError("no picture to read");
    for (auto _ : state)
        benchmark::DoNotOptimize(readPicture(path).pixels.constBits());
    std::filesystem::remove(path);
}

void encode(benchmark::State& state) {
    const int fileType = static_cast<int>(state.range(1));
    const std::string path = pathOf(state.range(0), ".out");
    for (auto _ : state)
        if (!write(state.range(0), fileType, path).empty()) state.SkipWithError("not written");
    state.counters["MB"] = static_cast<double>(std::filesystem::file_size(path)) / 1e6;
    std::filesystem::remove(path);
}

// As the source of a layer is drawn: opaque.
void drawScaled(benchmark::State& state) {
    QImage image = picture(state.range(0));
    image.reinterpretAsFormat(QImage::Format_RGBX8888);
    const double scale = static_cast<double>(state.range(1)) / 1000;
    const int w = static_cast<int>(image.width() * std::min(scale, 1.0));
    const int h = static_cast<int>(image.height() * std::min(scale, 1.0));
    PixelBuffer pixels(w, h);
    BitmapContext context(pixels.data(), w, h);
    context.fillRect(QRectF(0, 0, w, h), 0, 1, 0, 1);
    for (auto _ : state)
        context.drawImage(
            image, QRectF(0, 0, static_cast<int>(image.width() * scale), static_cast<int>(image.height() * scale)));
}

void decodeJpegAlone(benchmark::State& state) {
    const std::string path = pathOf(state.range(0), ".jpg");
    if (!write(state.range(0), kJpegFile, path).empty()) state.SkipWithError("no picture to read");
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), {});
    std::filesystem::remove(path);
    const PixelBuffer pixels(sizeOf(state.range(0)).width, sizeOf(state.range(0)).height);
    for (auto _ : state) {
        jpeg_error_mgr errors;
        jpeg_decompress_struct codec = {};
        codec.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&codec);
        jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        jpeg_read_header(&codec, TRUE);
        codec.out_color_space = JCS_EXT_RGBA;
        jpeg_start_decompress(&codec);
        while (codec.output_scanline < codec.output_height) {
            JSAMPROW row = pixels.data() + pixelOffset(static_cast<int>(codec.output_width), 0,
                                                       static_cast<int>(codec.output_scanline));
            jpeg_read_scanlines(&codec, &row, 1);
        }
        jpeg_finish_decompress(&codec);
        jpeg_destroy_decompress(&codec);
    }
}

void encodeJpegAlone(benchmark::State& state) {
    const QImage& image = picture(state.range(0));
    for (auto _ : state) {
        jpeg_error_mgr errors;
        jpeg_compress_struct codec = {};
        unsigned char* bytes = nullptr;
        unsigned long size = 0;
        codec.err = jpeg_std_error(&errors);
        jpeg_create_compress(&codec);
        jpeg_mem_dest(&codec, &bytes, &size);
        codec.image_width = static_cast<JDIMENSION>(image.width());
        codec.image_height = static_cast<JDIMENSION>(image.height());
        codec.input_components = kPixelBytes;
        codec.in_color_space = JCS_EXT_RGBX;
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, 100, TRUE);
        codec.comp_info[0].h_samp_factor = codec.comp_info[0].v_samp_factor = 1;
        jpeg_start_compress(&codec, TRUE);
        while (codec.next_scanline < codec.image_height) {
            auto row = const_cast<JSAMPROW>(image.constScanLine(static_cast<int>(codec.next_scanline)));
            jpeg_write_scanlines(&codec, &row, 1);
        }
        jpeg_finish_compress(&codec);
        jpeg_destroy_compress(&codec);
        std::free(bytes);
    }
}

BENCHMARK(decodeJpegAlone)->Arg(12)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(encodeJpegAlone)->Arg(12)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(decodeJpeg)->Arg(12)->Arg(24)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();
BENCHMARK(encode)
    ->ArgNames({"megapixels", "type"})
    ->ArgsProduct({{12, 24}, {kJpegFile, kPngFile, kTiffFile}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();
// Thousandths: untouched, half, an eighth, one and a half times.
BENCHMARK(drawScaled)
    ->ArgNames({"megapixels", "scale"})
    ->ArgsProduct({{24}, {1000, 500, 125, 1500}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace tavrin
