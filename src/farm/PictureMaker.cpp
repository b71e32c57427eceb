#include "farm/PictureMaker.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "core/image/Location.h"
#include "core/state/NamedFiles.h"
#include "core/state/SettingNames.h"
#include "core/text/TextLayers.h"
#include "editor/PlayEdits.h"
#include "pipeline/CombineThread.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/StartUp.h"

namespace tavrin {

namespace {

/// Keeps what the engine would have shown.
class Alerts : public Interface {
  public:
    bool wantsPixels() const override { return false; }
    void showAlert(const std::string& message, const std::string& reason) override {
        all += (all.empty() ? "" : "; ") + message + " (" + reason + ")";
    }
    std::string all;
};

/// The sources count by their own contents, and each machine may have them elsewhere.
bool isPlace(const std::string& setting) {
    return setting.ends_with("sSourceImageFullPath");
}

std::string digestOfSettings(const SystemInfo& info) {
    std::string text = QCoreApplication::applicationVersion().toStdString() + "\n";
    if (const std::optional<ImageSize> size = selectedSize(info)) {
        text += std::to_string(size->dWidth) + "x" + std::to_string(size->dHeight) + " at " +
                std::to_string(size->dotsPerInch) + "\n";
    }
    if (info.bPlaceForeground) {
        text += "place " + std::to_string(static_cast<int>(info.placeRule.load())) + " " +
                std::to_string(info.placeScale) + " " + std::to_string(info.iPlaceXMove) + " " +
                std::to_string(info.iPlaceYMove) + "\n";
    }
    if (areLocationsLeftOut()) text += "without the place\n";
    if (info.bReflectAtSubject) text += "reflected at the subject\n";
    for (const auto& [name, value] : listFields(info)) {
        if (!isPlace(name)) text += name + "=" + value + "\n";
    }
    const std::string sources[] = {info.pForegroundBitmapInfo->sSourceImageFullPath,
                                   info.pBackgroundBitmapInfo->sSourceImageFullPath};
    for (const std::string& file : filesNamedBy(info)) {
        if (std::find(std::begin(sources), std::end(sources), file) == std::end(sources))
            text += digestOfFile(file) + "\n";
    }
    return digestOfText(text);
}

}  // namespace

std::unique_ptr<SystemInfo> PictureMaker::prepare(const BatchJob& job, std::string& problem) const {
    auto info = std::make_unique<SystemInfo>();
    startLike(*info, base_);
    const LoadedState loaded = job.state.empty() ? start_(*info) : loadState(*info, job.state);
    problem = loaded.problem;
    if (problem.empty()) {
        if (job.switches) useSwitches(*info, *job.switches);
        setForeground(*info, job.foreground);
        if (!job.background.empty()) setBackground(*info, job.background);
        problem = settings_(*info, loaded);
    }
    if (problem.empty() && info->pBackgroundBitmapInfo->sSourceImageFullPath.empty())
        problem = "there is no background for it";
    if (!problem.empty()) info.reset();
    return info;
}

const PictureMaker::Recipe& PictureMaker::recipe(const BatchJob& job) {
    std::string key = job.state + '\0';  // which no name holds
    if (job.switches) {
        for (const bool on : {job.switches->outputTransparency, job.switches->noGreenScreenProcessing,
                              job.switches->blueScreenProcessing})
            key += on ? "1" : "0";
    }
    if (job.state.empty() || job.background.empty()) key += '\0' + job.background;
    const FileFacts facts = job.state.empty() ? FileFacts() : factsOf(job.state).value_or(FileFacts());
    Recipe& known = recipes_[key];
    if (known.digest.empty() || !(known.state == facts)) {
        known = {facts, "", "", "", {}};
        const auto info = prepare(job, known.problem);
        if (info) {
            known.background = info->pBackgroundBitmapInfo->sSourceImageFullPath;
            known.digest = digestOfSettings(*info);
            if (choosesScreens_ && !job.switches) known.digest = digestOfText("either screen, " + known.digest);
            known.files = filesNamedBy(*info);
        }
    }
    return known;
}

std::string PictureMaker::recipeOf(const BatchJob& job, std::string& problem) {
    std::lock_guard lock(mutex_);
    const Recipe& known = recipe(job);
    problem = known.problem;
    const std::string edits = editsOf(job);
    if (edits.empty() || known.digest.empty()) return known.digest;
    return digestOfText(known.digest + digestOfFile(edits) + (scaleRadius_ ? " radius to scale" : ""));
}

std::string PictureMaker::editsOf(const BatchJob& job) const {
    return editsUndoFolder_.empty() ? "" : editsBeside(job.foreground);
}

std::string PictureMaker::backgroundOf(const BatchJob& job, std::string& problem) {
    if (!job.background.empty()) return job.background;
    std::lock_guard lock(mutex_);
    const Recipe& known = recipe(job);
    problem = known.problem;
    return known.background;
}

std::vector<std::string> PictureMaker::filesOf(const BatchJob& job) {
    std::lock_guard lock(mutex_);
    return recipe(job).files;
}

MadePicture PictureMaker::make(const BatchJob& job, const ReadPicture& foreground,
                               const ReadPicture& background) const {
    MadePicture made;
    Alerts alerts;
    const auto info = prepare(job, made.problem);
    if (!info) return made;
    ReadEdits edits;
    if (const std::string path = editsOf(job); !path.empty()) edits = readEditFile(path);
    made.problem = englishText(edits.problem);
    if (!made.problem.empty()) return made;
    if (edits.file.seed) info->randomSeeds.startAt(*edits.file.seed);
    made.problem = textProblem(*info);
    if (!made.problem.empty()) return made;
    info->pInterface = &alerts;
    PictureCheck check(choosesScreens_ && !job.switches);
    check.lookAtPortrait(*info, foreground.pixels);
    info->readSource = [&](const std::string& path) {
        return path == info->pForegroundBitmapInfo->sSourceImageFullPath.load() ? foreground : background;
    };
    made.problem = useChosenSize(*info);
    if (!made.problem.empty()) return made;
    CombineThread(*info).runUntilIdle();
    made.problem = info->whyNotFinished(Resolution::full);
    if (!made.problem.empty()) return made;
    made.leftOut = alerts.all;
    made.judgement = check.judge(*info, Resolution::full);
    made.warnings = check.warnings(*info, made.judgement);
    if (!edits.file.path.empty()) {
        PlayedEdits played = playEdits(*info, edits.file, scaleRadius_, editsUndoFolder_);
        made.problem = played.problem;
        if (!made.problem.empty()) return made;
        for (std::string& line : played.warnings)
            made.warnings.push_back({"edits", std::move(line)});
    }
    const PassGeometry size = info->geometry(Resolution::full);
    made.width = size.width;
    made.height = size.height;
    made.dpi = size.dpi;
    made.exif = std::move(info->pForegroundBitmapInfo->sourceExif);
    made.pixels = info->pCombinedBitmapInfo->takeFullPixels();
    return made;
}

}  // namespace tavrin
