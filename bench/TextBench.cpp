#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include "core/text/TextLayers.h"

namespace tavrin {
namespace {

constexpr int kLow = 0, kFull = 1;

// Fonts need an application; it is made when the first text is drawn.
void needFonts() {
    static char name[] = "tavrin_bench", option[] = "-platform", platform[] = "offscreen";
    static char* words[] = {name, option, platform, nullptr};
    static int count = 3;
    static QGuiApplication application(count, words);
}

// A state of 8 x 10 inches at 300 dots an inch, with a preview of 480 x 600.
std::unique_ptr<SystemInfo> makeState() {
    auto info = std::make_unique<SystemInfo>();
    info->iOutputPixelWidth = 2400;
    info->iOutputPixelHeight = 3000;
    info->iOutputImageDPI = 300;
    info->iOutputPixelLowResWidth = 480;
    info->iOutputPixelLowResHeight = 600;
    info->iOutputImageLowResDPI = 60;
    BitmapInfo& combined = *info->pCombinedBitmapInfo;
    combined.allocateBuffers(2400, 3000, 480, 600);
    std::fill_n(combined.pBitmapData, pixelBytes(2400, 3000), std::uint8_t{255});
    std::fill_n(combined.pBitmapDataLowRes, pixelBytes(480, 600), std::uint8_t{255});
    return info;
}

BitmapContext* contextOf(const SystemInfo& info, int res) {
    const BitmapInfo& combined = *info.pCombinedBitmapInfo;
    return res == kFull ? combined.oBitmapRep.get() : combined.oBitmapRepLowRes.get();
}

void drawItem(benchmark::State& state, const char* text, int radius, int outline) {
    needFonts();
    const auto info = makeState();
    FontObject& item = info->oFontObject.push_back();
    item.sText = text;
    item.xPos = item.yPos = 0.5;
    item.rectSizeWidth = 504.0;
    item.iFontSize = 48;
    item.iFontDropShadowRadius = radius;
    item.iFontDropShadowVert = radius == 0 ? 0 : -4;
    item.iFontOutlineThickness = outline;
    const int res = static_cast<int>(state.range(0));
    ThreadLimit limit(static_cast<int>(state.range(1)));
    for (auto _ : state)
        DrawTextAtLevel(*info, contextOf(*info, res), "Frame Layer", res);
}

void plainText(benchmark::State& state) {
    drawItem(state, "Anna, class of 2025", 0, 0);
}
void outlinedText(benchmark::State& state) {
    drawItem(state, "Anna, class of 2025", 0, -3);
}
void shadowedText(benchmark::State& state) {
    drawItem(state, "Anna, class of 2025", 8, 0);
}
void emojiText(benchmark::State& state) {
    drawItem(state, "Anna 🎓🎉❤️", 0, 0);
}

void label(benchmark::State& state) {
    needFonts();
    const auto info = makeState();
    info->oFontLabelObject[0].sText = "Anna, class of 2025";
    const int res = static_cast<int>(state.range(0));
    ThreadLimit limit(static_cast<int>(state.range(1)));
    for (auto _ : state)
        DrawText(*info, contextOf(*info, res), info->oFontLabelObject[0], res);
}

// With `transparent`, over the straight pixels of transparent output.
void overlay(benchmark::State& state, bool transparent) {
    const std::string path = TAVRIN_SOURCE_DIR "/data/Pictures/Overlays/FR_Graduation.png";
    const auto info = makeState();
    info->bOutputTransparency = transparent;
    const int res = static_cast<int>(state.range(0));
    ThreadLimit limit(static_cast<int>(state.range(1)));
    for (auto _ : state)
        DrawOverlayImage(*info, contextOf(*info, res), path, res);
}
void overlayOpaque(benchmark::State& state) {
    overlay(state, false);
}
void overlayTransparent(benchmark::State& state) {
    overlay(state, true);
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->ArgNames({"res", "threads"})
        ->ArgsProduct({{kLow, kFull}, {1, 2}})
        ->MeasureProcessCPUTime()
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

BENCHMARK(plainText)->Apply(sizes);
BENCHMARK(outlinedText)->Apply(sizes);
BENCHMARK(shadowedText)->Apply(sizes);
BENCHMARK(emojiText)->Apply(sizes);
BENCHMARK(label)->Apply(sizes);
BENCHMARK(overlayOpaque)->Apply(sizes);
BENCHMARK(overlayTransparent)->Apply(sizes);

}  // namespace
}  // namespace tavrin
