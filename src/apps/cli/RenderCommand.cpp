#include "apps/cli/RenderCommand.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <set>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/EditOptions.h"
#include "apps/cli/Output.h"
#include "apps/cli/PictureOptions.h"
#include "apps/cli/PrinterOptions.h"
#include "apps/cli/Refusal.h"
#include "apps/cli/Streams.h"
#include "apps/cli/Usage.h"
#include "core/files/AtomicFile.h"
#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "core/files/Places.h"
#include "core/state/NamedFiles.h"
#include "core/state/SystemInfo.h"
#include "core/text/TextLayers.h"
#include "editor/PlayEdits.h"
#include "farm/BatchReport.h"
#include "farm/JudgementText.h"
#include "formats/ImageState.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SaveImage.h"
#include "pipeline/WholePicture.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/StartUp.h"
#include "session/States.h"

namespace fs = std::filesystem;

namespace tavrin::cli {

namespace {

struct RenderOptions {
    std::string foreground, background, out, alpha, type;
    std::string state, saveState;
    PictureOptions picture;
    EditOptions edits;
    PrinterOptions print;
    std::optional<std::uint64_t> seed;
    bool preview = false, fast = false, json = false;
};

/// What is wrong with the options of printing, before anything is made.
Refusal checkPrinting(const SystemInfo& info, const RenderOptions& options, bool sends) {
    if (options.print.printer.empty())
        return options.print.page.empty() ? Refusal{} : Refusal{kUsage, "--page goes with --print."};
    if (sends || options.json)
        return {kUsage, "--print tells what it does on the standard output, which --json and --out - have."};
    SheetPlan plan;
    return planSheets(info, options.print, nullptr, plan);
}

/// The pictures named on the command line win over those of the state file.
Refusal applySources(SystemInfo& info, const RenderOptions& options) {
    if (!options.foreground.empty()) setForeground(info, options.foreground);
    if (!options.background.empty()) setBackground(info, options.background);
    if (info.pForegroundBitmapInfo->sSourceImageFullPath.empty()) return {kUsage, "--foreground is missing."};
    if (info.pBackgroundBitmapInfo->sSourceImageFullPath.empty()) return {kUsage, "--background is missing."};
    return {};
}

Refusal checkFiles(const RenderOptions& options) {
    if (fileTypeForPath(options.out) == 0) {
        return {kUsage, options.out + ": the picture's name must end in .jpg, .jpeg, .png, .tif or .tiff."};
    }
    for (const std::string& path : {options.out, options.alpha, options.edits.alpha, options.saveState}) {
        if (path.empty()) continue;
        if (Refusal refusal = checkTarget(path); refusal.code != kDone) return refusal;
    }
    return {};
}

/// Nothing is written over what the picture is made from, and no two outputs have one place.
Refusal checkOutputs(const SystemInfo& info, const RenderOptions& options) {
    const std::pair<const char*, std::string> outputs[] = {{"--out", options.out},
                                                           {"--alpha", options.alpha},
                                                           {"--edits-alpha", options.edits.alpha},
                                                           {"--save-state", options.saveState}};
    for (const auto& [option, path] : outputs) {
        std::string problem = whyNotOver(info, path);
        for (const std::string& read : {options.state, options.edits.file}) {
            if (problem.empty() && isSameFile(path, read)) problem = overwritesInput(path, read);
        }
        if (!problem.empty()) return {kUsage, std::string(option) + " " + problem + "."};
        for (const auto& [other, taken] : outputs) {
            if (other == option) break;
            if (isSameFile(path, taken))
                return {kUsage,
                        std::string(option) + " " + path + " is the same file as " + other + " " + taken + "."};
        }
    }
    const std::string problem = whyNoStateOver(info, options.saveState);
    return problem.empty() ? Refusal{} : Refusal{kUsage, problem + "."};
}

Refusal prepare(SystemInfo& info, const RenderOptions& options) {
    if (Refusal refusal = checkFiles(options); refusal.code != kDone) return refusal;
    const LoadedState loaded =
        options.state.empty() ? startSettings(info, options.picture.start) : loadState(info, options.state);
    if (!loaded.problem.empty()) return {kFailed, loaded.problem};
    if (Refusal refusal = applySources(info, options); refusal.code != kDone) return refusal;
    const std::string left = options.picture.effects.leftOut(options.fast, options.preview);
    if (!left.empty()) return {kUsage, left};
    if (Refusal refusal = applyPictureOptions(info, options.picture, loaded); refusal.code != kDone) return refusal;
    if (const std::string problem = useChosenSize(info); !problem.empty()) return {kUsage, problem};
    if (const std::string problem = textProblem(info); !problem.empty()) return {kFailed, problem};
    info.bSkipHiRes = options.preview;
    return checkOutputs(info, options);
}

/// Looks at the portrait as it is read, which is before its screen is measured.
void readThrough(SystemInfo& info, PictureCheck& check) {
    info.readSource = [&info, &check, once = std::make_shared<std::once_flag>()](const std::string& path) {
        ReadPicture picture = readPicture(path);
        if (path == info.pForegroundBitmapInfo->sSourceImageFullPath.load())
            std::call_once(*once, [&] { check.lookAtPortrait(info, picture.pixels); });
        return picture;
    };
}

void compute(SystemInfo& info, const RenderOptions& options) {
    if (options.fast) {
        loadAndCombineFiles(info);
    } else {
        CombineThread(info).runUntilIdle();
    }
}

/// What there is to say about a picture that stands.
struct Said {
    std::vector<PictureWarning> warnings;
    std::optional<Judgement> judgement;
};

QJsonObject describe(const SystemInfo& info, const RenderOptions& options, const Said& said, double seconds) {
    const bool full = !options.preview;
    QJsonObject object{
        {"out", textOfName(options.out)},
        {"width", full ? info.iOutputPixelWidth.load() : info.iOutputPixelLowResWidth.load()},
        {"height", full ? info.iOutputPixelHeight.load() : info.iOutputPixelLowResHeight.load()},
        {"dpi", full ? info.iOutputImageDPI.load() : info.iOutputImageLowResDPI.load()},
        {"baseRed", info.baseRed.load()},
        {"baseGreen", info.baseGreen.load()},
        {"baseBlue", info.baseBlue.load()},
        {"seconds", seconds},
        {"warnings", describeWarnings(said.warnings)},
    };
    if (said.judgement) addJudgement(object, *said.judgement);
    return object;
}

/// What renders left that were killed while they wrote beside these files.
void removeAbandonedParts(const std::set<std::string>& targets) {
    std::set<std::string> folders;
    for (const std::string& target : targets) {
        if (!target.empty()) folders.insert(fs::absolute(target).parent_path().string());
    }
    for (const std::string& folder : folders)
        AtomicFile::removeAbandonedParts(folder);
}

Said tellWarnings(const SystemInfo& info, const RenderOptions& options, const PictureCheck& check) {
    Said said{rangeWarnings(options.picture), check.judge(info, fullIf(!options.preview))};
    for (PictureWarning& warning : check.warnings(info, said.judgement))
        said.warnings.push_back(std::move(warning));
    for (const PictureWarning& warning : said.warnings)
        warn(withAdvice(warning));
    return said;
}

/// The alpha goes to a file as it stands, if one is wanted.
bool saveAlpha(SystemInfo& info, const RenderOptions& options, const std::string& path) {
    return path.empty() || saveMatteToDisk(info, path, options.preview ? 0 : 1);
}

/// @return whether there was nothing to play or all was played; what could not be was told
bool play(SystemInfo& info, const RenderOptions& options, const EditFile& edits, Said& said) {
    if (options.edits.file.empty()) return true;
    const PlayedEdits played = playEdits(info, edits, options.edits.scaleRadius, editsUndoFolder());
    if (!played.problem.empty()) complain(played.problem);
    for (const std::string& line : played.warnings) {
        said.warnings.push_back({"edits", line});
        warn(line);
    }
    return played.problem.empty();
}

/// @return whether all files of the picture were written; what could not be was told
bool save(SystemInfo& info, const RenderOptions& options) {
    if (!saveImageToDisk(info, options.out, fileTypeForPath(options.out), options.preview ? 0 : 1)) return false;
    if (!saveAlpha(info, options, options.edits.alpha)) return false;
    if (options.saveState.empty()) return true;
    useFullPaths(info);
    const std::string problem = saveImageStateToXML(info, options.saveState);
    if (!problem.empty()) complain(problem);
    return problem.empty();
}

/// Files of this process in the place of the standard input and output.
Refusal useStreams(RenderOptions& options, bool& sends) {
    const bool isRead = options.foreground == kStream || options.background == kStream;
    if (isRead && options.foreground == options.background)
        return {kUsage, "The standard input holds one picture: - stands for the foreground or for the background."};
    if (isRead && !options.saveState.empty())
        return {kUsage, "--save-state names files, and the standard input is none."};
    if (!options.type.empty() && options.out != kStream)
        return {kUsage, "--type goes with --out - only; elsewhere the file's name tells."};
    if (options.json && options.out == kStream) return {kUsage, "--json and --out - would print into each other."};
    for (std::string* path : {&options.foreground, &options.background}) {
        if (const std::string problem = takeInput(*path); !problem.empty()) return {kFailed, problem};
    }
    sends = takeOutput(options.out, "." + (options.type.empty() ? "jpeg" : options.type));
    return {};
}

std::string sizeText(const SystemInfo& info, const RenderOptions& options) {
    const PassGeometry size = info.geometry(fullIf(!options.preview));
    return std::to_string(size.width) + " x " + std::to_string(size.height) + " pixels at " +
           std::to_string(size.dpi) + " dpi";
}

/// What was made, for a program or for people.
void tellMade(const SystemInfo& info, const RenderOptions& options, const Said& said, double seconds) {
    if (options.json) {
        printJson(QJsonDocument(describe(info, options, said, seconds)), true);
    } else if (!isQuiet()) {
        char took[32];
        std::snprintf(took, sizeof took, ", in %.1f s", seconds);
        printLine(options.out + ": " + sizeText(info, options) + took);
    }
}

int render(RenderOptions options) {
    const auto start = std::chrono::steady_clock::now();
    const auto info = std::make_unique<SystemInfo>();
    const std::string pictures = Places::current().picturesFolder();
    startCommandLine(*info);
    // A saved state names the pictures that it uses, so they have to lie where they stay.
    if (!options.saveState.empty()) Places::current().setPicturesFolder(pictures);
    Console console;
    info->pInterface = &console;
    bool sends = false;
    EditFile edits;
    Refusal refusal = readEdits(options.edits, edits);
    if (const auto seed = options.seed ? options.seed : edits.seed) info->randomSeeds.startAt(*seed);
    if (refusal.code == kDone) refusal = useStreams(options, sends);
    if (refusal.code == kDone) refusal = checkPrinting(*info, options, sends);
    if (refusal.code == kDone) refusal = prepare(*info, options);
    if (refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    removeAbandonedParts({options.out, options.alpha, options.edits.alpha});
    PictureCheck check(options.picture.choosesScreen());
    readThrough(*info, check);
    compute(*info, options);
    console.clearProgress();
    const int res = options.preview ? 0 : 1;
    if (const std::string problem = info->whyNotFinished(fullIf(res == 1)); !problem.empty()) {
        if (!console.hadAlert()) complain(problem + ".");
        return kFailed;
    }
    Said said = tellWarnings(*info, options, check);
    // Of the two alphas that of the key goes out before the edits change it.
    if (!saveAlpha(*info, options, options.alpha) || !play(*info, options, edits, said)) return kFailed;
    if (!save(*info, options)) return kFailed;
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    if (sends && !sendFile(options.out)) return kFailed;
    if (!sends) tellMade(*info, options, said, taken.count());
    const bool printed = options.print.printer.empty() || printFiles(*info, options.print, {options.out}) == kDone;
    return console.hadAlert() || !printed ? kFailed : kDone;  // the picture is saved, but something in it is missing
}

constexpr const char* kExamples = R"(
Examples:
  tavrin-cli render --foreground anna.jpg --background beach.jpg --out anna-beach.jpg --inches 8x10 --dpi 300
  tavrin-cli render --foreground anna.jpg --background beach.jpg --out anna.png --alpha anna-matte.png
      --set bOutputTransparency=1 --set combined.sliderWhiteAdjust=0 --set foreground.iContrast=60
  tavrin-cli render --state school.qlx --foreground anna.jpg --out anna-school.jpg
  tavrin-cli render --foreground anna.jpg --background beach.jpg --out anna-beach.jpg --print default
      --page "Letter Two 5x7"
  tavrin-cli render --foreground toy.jpg --background sky.jpg --out toy-sky.jpg --blue --fast
  tavrin-cli render --foreground anna.jpg --background beach.jpg --out anna-mended.jpg --edits anna.edits
  tavrin-cli render --foreground anna.jpg --background beach.jpg --out anna-floor.jpg --shadow floor --frame oval
      --texture canvas --set frame.iFrameThickness=15

The short options of the effects come first, so that --set refines them; "tavrin-cli effects" tells about each.
Settings have the names of their fields; those of a layer have foreground., background. or combined. before them.
Texts and pictures on the image are text0., text1. ...: xPos and yPos are inches from its lower left corner to theirs.
Exit codes: 0 done, 1 the work failed or the picture lacks a file that could not be read, 2 wrong usage.)";

}  // namespace

void addRenderCommand(CLI::App& app, int& result) {
    const auto options = std::make_shared<RenderOptions>();
    CLI::App* command = app.add_subcommand("render", "Key one portrait over a background and save the picture");
    command->add_option("--foreground", options->foreground,
                        "Portrait in front of the screen; - is the standard input");
    command->add_option("--background", options->background, "Background picture; - likewise");
    command->add_option("--out", options->out, "Picture to write: .jpg, .png or .tif; - is the standard output")
        ->required();
    command->add_option("--type", options->type, "With --out -: jpeg, png or tiff (default jpeg)")
        ->check(oneOf({"jpeg", "png", "tiff"}))
        ->type_name("NAME");
    command->add_option("--state", options->state, "Take all settings from a .qlx file first");
    command->add_option("--save-state", options->saveState, "Also write the settings as a .qlx file");
    addPictureOptions(*command, options->picture);
    command->get_option("--my-defaults")->excludes("--state");
    command->get_option("--recipe")->excludes("--state");
    command->add_option("--seed", options->seed, "Where the random numbers of texture and skin noise start");
    command->add_option("--alpha", options->alpha, "Also write the key's alpha as a grey PNG");
    command->add_flag("--preview", options->preview, "Stop at the preview and save that");
    command->add_flag("--fast", options->fast, "The short path: key, text and overlays only")->excludes("--preview");
    addEditOptions(*command, options->edits);
    addPrinterOptions(*command, options->print, "--print");
    command->add_flag("--json", options->json, "Print what was made as one JSON line");
    command->footer(kExamples);
    command->callback([options, &result] { result = render(*options); });
}

}  // namespace tavrin::cli
