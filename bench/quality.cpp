// How good the key is: keys every scene of a folder whose true alpha is known, with one set of settings or several,
// and prints the errors side by side. docs/key-quality.md defines the figures.

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "apps/cli/Assignments.h"
#include "core/state/SystemInfo.h"
#include "formats/ImageState.h"
#include "pipeline/CombineThread.h"
#include "quality/AlphaErrors.h"
#include "quality/CompositeErrors.h"
#include "session/OutputSizes.h"

namespace fs = std::filesystem;

namespace {

using namespace tavrin;

struct Scene {
    std::string name, picture;
    bool blue = false;
    QImage truth, subject;
};

/// One column of the tables: a state file, or the built-in defaults without one, and changes to it.
struct Variant {
    std::string title, stateFile;
    std::vector<std::string> changes;
};

struct Errors {
    double megapixels = 1.0;
    quality::AlphaErrors alpha;
    double grad = 0.0;
    quality::CompositeErrors composite;
};

struct Measure {
    const char* title;
    double (*value)(const Errors&);
};

constexpr Measure kMeasures[] = {
    {"SAD of alpha, thousands", [](const Errors& e) { return e.alpha.sad; }},
    {"SAD of alpha, thousands a megapixel", [](const Errors& e) { return e.alpha.sad / e.megapixels; }},
    {"gradient error, thousands a megapixel", [](const Errors& e) { return e.grad / e.megapixels; }},
    {"mean alpha error, percent", [](const Errors& e) { return e.alpha.mean * 100.0; }},
    {"mean alpha error near edges, percent", [](const Errors& e) { return e.alpha.edges * 100.0; }},
    {"mean alpha error in the solid subject (holes), percent", [](const Errors& e) { return e.alpha.holes * 100.0; }},
    {"mean alpha error on the bare screen (residue), percent",
     [](const Errors& e) { return e.alpha.residue * 100.0; }},
    {"composite RMSE, levels of 255", [](const Errors& e) { return e.composite.rmse; }},
    {"composite RMSE near edges, levels of 255", [](const Errors& e) { return e.composite.edges; }},
    {"composite PSNR near edges, dB", [](const Errors& e) { return e.composite.psnrEdges(); }},
    {"composite colour difference near edges, CIEDE2000", [](const Errors& e) { return e.composite.color; }},
};

/// `scenes.json` says which screens are blue; a scene that it does not tell of goes by its name.
bool isBlue(const QJsonObject& facts, const std::string& name) {
    const QJsonValue told = facts[QString::fromStdString(name)].toObject()["blue"];
    return told.toBool(name.find("blue") != std::string::npos);
}

/// The subject's own colours as RGBA, rows packed; null where there is no such file.
QImage readSubject(const std::string& path) {
    const QImage image(QString::fromStdString(path));
    return image.isNull() ? image : image.convertToFormat(QImage::Format_RGBA8888);
}

std::vector<Scene> findScenes(const fs::path& folder) {
    QFile json(QString::fromStdString((folder / "scenes.json").string()));
    QJsonObject facts;
    if (json.open(QIODevice::ReadOnly)) facts = QJsonDocument::fromJson(json.readAll()).object();
    std::vector<Scene> scenes;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string extension = entry.path().extension().string(), name = entry.path().stem().string();
        if (extension != ".jpg" && extension != ".png") continue;
        const fs::path truth = folder / (name + "_alpha.png");
        if (!fs::exists(truth)) continue;
        scenes.push_back({name, entry.path().string(), isBlue(facts, name), quality::readTruth(truth.string()),
                          readSubject((folder / (name + "_foreground.png")).string())});
        const Scene& scene = scenes.back();
        if (scene.truth.isNull()) throw std::runtime_error(truth.string() + ": this is no grey picture.");
        if (!scene.subject.isNull() && scene.subject.size() != scene.truth.size())
            throw std::runtime_error(name + "_foreground.png and the alpha differ in size.");
    }
    std::sort(scenes.begin(), scenes.end(), [](const Scene& a, const Scene& b) { return a.name < b.name; });
    return scenes;
}

/// Squares of mid-grey and of warm orange, large enough that an edge mostly sees one of them.
std::string saveBackground(const QTemporaryDir& folder, QSize size) {
    constexpr int kSquare = 128;
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool grey = (x / kSquare + y / kSquare) % 2 == 0;
            image.setPixel(x, y, grey ? qRgb(128, 128, 128) : qRgb(210, 120, 50));
        }
    }
    const QString path = folder.filePath("background.png");
    if (!image.save(path)) throw std::runtime_error("The temporary folder cannot be written.");
    return path.toStdString();
}

/// What the loop makes of a scene, one output pixel for each of the source's.
Errors measure(const Scene& scene, const Variant& variant, const std::string& background, int dpi) {
    const auto info = std::make_unique<SystemInfo>();
    if (!variant.stateFile.empty()) {
        const std::string problem = LoadImageStateFromXML(*info, variant.stateFile, kLoadAll);
        if (!problem.empty()) throw std::runtime_error(problem);
    }
    info->bUseBlueLogic = scene.blue;
    const std::string problem = cli::applyAssignments(*info, variant.changes);
    if (!problem.empty()) throw std::runtime_error(problem);
    info->pForegroundBitmapInfo->sSourceImageFullPath = scene.picture;
    info->pBackgroundBitmapInfo->sSourceImageFullPath = background;
    const double width = scene.truth.width(), height = scene.truth.height();
    chooseOwnSize(*info, "scene", width / dpi, height / dpi, dpi);
    if (const std::string size = useChosenSize(*info); !size.empty())
        throw std::runtime_error(scene.name + ": " + size);
    CombineThread(*info).runUntilIdle();

    const BitmapInfo &foreground = *info->pForegroundBitmapInfo, &under = *info->pBackgroundBitmapInfo;
    if (foreground.orgImage.size() != scene.truth.size()) {
        throw std::runtime_error(scene.name + ": picture and alpha differ in size, or the picture was not read.");
    }
    return {
        width * height / 1e6, quality::measureAlpha(under.pBitmapData, scene.truth),
        quality::gradientError(under.pBitmapData, scene.truth),
        quality::measureComposite({foreground.pBitmapData, under.pBitmapData, info->pCombinedBitmapInfo->pBitmapData,
                                   scene.subject.isNull() ? nullptr : scene.subject.constBits()},
                                  scene.truth)};
}

/// Rows are scenes, columns are variants.
using Results = std::vector<std::vector<Errors>>;

void printTables(const std::vector<Scene>& scenes, const std::vector<Variant>& variants, const Results& results) {
    for (const Measure& measure : kMeasures) {
        std::printf("\n%s\n%-26s", measure.title, "");
        for (const Variant& variant : variants)
            std::printf(" %12s", variant.title.c_str());
        std::vector<double> sums(variants.size());
        for (std::size_t row = 0; row < scenes.size(); ++row) {
            std::printf("\n%-26s", scenes[row].name.c_str());
            for (std::size_t column = 0; column < variants.size(); ++column) {
                const double value = measure.value(results[row][column]);
                sums[column] += value;
                std::printf(" %12.3f", value);
            }
        }
        std::printf("\n%-26s", "mean");
        for (const double sum : sums)
            std::printf(" %12.3f", sum / static_cast<double>(scenes.size()));
        std::printf("\n");
    }
}

/// A line of a list: a title, then the settings that it changes.
std::vector<Variant> readVariants(const std::string& path) {
    std::ifstream file(path);
    if (!file) throw std::runtime_error(path + ": this file cannot be read.");
    std::vector<Variant> variants;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        Variant variant;
        if (!(words >> variant.title) || variant.title.starts_with('#')) continue;
        for (std::string change; words >> change;)
            variant.changes.push_back(change);
        variants.push_back(std::move(variant));
    }
    return variants;
}

void run(const std::string& folder, const std::vector<Variant>& variants, int dpi) {
    const std::vector<Scene> scenes = findScenes(folder);
    if (scenes.empty()) throw std::runtime_error(folder + ": there is no picture NAME with a NAME_alpha.png.");
    const QTemporaryDir temporary;
    Results results;
    for (const Scene& scene : scenes) {
        std::fprintf(stderr, "%s\n", scene.name.c_str());
        const std::string background = saveBackground(temporary, scene.truth.size());
        std::vector<Errors>& row = results.emplace_back();
        for (const Variant& variant : variants)
            row.push_back(measure(scene, variant, background, dpi));
    }
    printTables(scenes, variants, results);
}

}  // namespace

int main(int count, char** arguments) {
    CLI::App app("Keys every NAME.jpg or NAME.png of a folder that has a NAME_alpha.png, and prints the errors");
    std::string folder, list;
    std::vector<std::string> states, changes;
    int dpi = 300;
    app.add_option("folder", folder, "Folder of scenes")->required()->check(CLI::ExistingDirectory);
    app.add_option("states", states, "State files, one column each; without any the built-in defaults");
    app.add_option("--set", changes, "A setting as field=value, for every column; may be given several times")
        ->take_all()
        ->allow_extra_args(false);
    app.add_option("--list", list, "A file of columns to try: each line a title and field=value ...");
    app.add_option("--dpi", dpi, "Dots an inch of the output; edge smoothing goes by it")->capture_default_str();
    CLI11_PARSE(app, count, arguments);
    try {
        std::vector<Variant> bases, variants;
        for (const std::string& path : states)
            bases.push_back({fs::path(path).stem().string(), path, {}});
        if (bases.empty()) bases.push_back({"built-in", "", {}});
        const std::vector<Variant> tried = list.empty() ? std::vector<Variant>(1) : readVariants(list);
        for (const Variant& base : bases) {
            for (const Variant& attempt : tried) {
                Variant& variant = variants.emplace_back(base);
                if (!attempt.title.empty()) variant.title = attempt.title;
                variant.changes = changes;
                variant.changes.insert(variant.changes.end(), attempt.changes.begin(), attempt.changes.end());
            }
        }
        run(folder, variants, dpi);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
    return 0;
}
