#include "batch/PictureMaker.h"

#include <filesystem>

#include <QCoreApplication>

#include "core/RandomSource.h"
#include "core/state/SettingNames.h"
#include "core/text/TextLayers.h"
#include "formats/ImageState.h"
#include "pipeline/CombineThread.h"
#include "pipeline/OutputSize.h"
#include "pipeline/StartUp.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// Keeps the first thing that the engine would have shown.
class Alerts : public Interface {
  public:
    bool wantsPixels() const override { return false; }
    void showAlert(const std::string& message, const std::string& reason) override {
        if (first.empty()) first = message + " (" + reason + ")";
    }
    std::string first;
};

/// The sources count by their own contents, and each machine may have them elsewhere.
bool isPlace(const std::string& setting) {
    return setting.ends_with("sSourceImageFullPath");
}

std::string digestOfSettings(const SystemInfo& info) {
    std::string text = QCoreApplication::applicationVersion().toStdString() + "\n";
    const auto selected = static_cast<std::size_t>(info.iSelecteImageSize.load());
    if (selected < info.oImageSize.size()) {
        const ImageSize& size = info.oImageSize[selected];
        text += std::to_string(size.dWidth) + "x" + std::to_string(size.dHeight) + " at " +
                std::to_string(size.dotsPerInch) + "\n";
    }
    for (const auto& [name, value] : listFields(info)) {
        if (isPlace(name)) continue;
        text += name + "=" + value + "\n";
        std::error_code ignored;
        if (value.find('/') != std::string::npos && fs::is_regular_file(value, ignored))
            text += digestOfFile(value) + "\n";
    }
    return digestOfText(text);
}

void apply(SystemInfo& info, const JobSwitches& switches) {
    info.bOutputTransparency = switches.outputTransparency;
    info.bShowOrgImage = switches.noGreenScreenProcessing;
    info.bUseBlueLogic = switches.blueScreenProcessing;
}

}  // namespace

std::unique_ptr<SystemInfo> PictureMaker::prepare(const BatchJob& job, std::string& problem) const {
    auto info = std::make_unique<SystemInfo>();
    startLike(*info, base_);
    if (!job.state.empty()) problem = LoadImageStateFromXML(*info, job.state, kLoadAll);
    if (problem.empty()) {
        if (job.switches) apply(*info, *job.switches);
        info->pForegroundBitmapInfo->sSourceImageFullPath = job.foreground;
        if (!job.background.empty()) info->pBackgroundBitmapInfo->sSourceImageFullPath = job.background;
        problem = settings_(*info, !job.state.empty());
    }
    if (problem.empty() && info->pBackgroundBitmapInfo->sSourceImageFullPath.empty())
        problem = "there is no background for it";
    if (!problem.empty()) info.reset();
    return info;
}

const PictureMaker::Recipe& PictureMaker::recipe(const BatchJob& job) {
    std::string key = job.state + "|";
    if (job.switches) {
        for (const bool on : {job.switches->outputTransparency, job.switches->noGreenScreenProcessing,
                              job.switches->blueScreenProcessing})
            key += on ? "1" : "0";
    }
    if (job.state.empty() || job.background.empty()) key += "|" + job.background;
    const FileFacts facts = job.state.empty() ? FileFacts() : factsOf(job.state).value_or(FileFacts());
    Recipe& known = recipes_[key];
    if (known.digest.empty() || !(known.state == facts)) {
        known = {facts, "", "", ""};
        const auto info = prepare(job, known.problem);
        if (info) {
            known.background = info->pBackgroundBitmapInfo->sSourceImageFullPath;
            known.digest = digestOfSettings(*info);
        }
    }
    return known;
}

std::string PictureMaker::recipeOf(const BatchJob& job, std::string& problem) {
    std::lock_guard lock(mutex_);
    const Recipe& known = recipe(job);
    problem = known.problem;
    return known.digest;
}

std::string PictureMaker::backgroundOf(const BatchJob& job, std::string& problem) {
    if (!job.background.empty()) return job.background;
    std::lock_guard lock(mutex_);
    const Recipe& known = recipe(job);
    problem = known.problem;
    return known.background;
}

MadePicture PictureMaker::make(const BatchJob& job, const ReadPicture& foreground,
                               const ReadPicture& background) const {
    MadePicture made;
    Alerts alerts;
    const auto info = prepare(job, made.problem);
    if (!info) return made;
    made.problem = textProblem(*info);
    if (!made.problem.empty()) {
        made.lasting = false;  // the machine's
        return made;
    }
    info->pInterface = &alerts;
    info->readSource = [&](const std::string& path) {
        return path == info->pForegroundBitmapInfo->sSourceImageFullPath.load() ? foreground : background;
    };
    seedRandom(1);  // as in a new process
    if (!ChangeImageSize(*info)) {
        made.problem = "the output size cannot be used";
        return made;
    }
    CombineThread(*info).runUntilIdle();
    made.problem = alerts.first;
    const PassGeometry size = info->geometry(1);
    made.width = size.width;
    made.height = size.height;
    made.dpi = size.dpi;
    made.exif = std::move(info->pForegroundBitmapInfo->sourceExif);
    made.pixels = info->pCombinedBitmapInfo->takeFullPixels();
    if (made.problem.empty() && !made.pixels.data()) made.problem = "there is not enough memory for it";
    return made;
}

}  // namespace tavrin
