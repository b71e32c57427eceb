#include "apps/cli/CommonPlace.h"

#include <optional>
#include <set>

#include "core/image/ImageReader.h"
#include "pipeline/Layers.h"
#include "pipeline/SubjectPlace.h"
#include "session/OutputSizes.h"

namespace tavrin::cli {

namespace {

constexpr std::size_t kEnough = 50;

std::optional<LayerPlace> placeOfJob(const PictureMaker& maker, const BatchJob& job) {
    std::string ignored;
    const auto info = maker.prepare(job, ignored);
    if (!info || !useChosenSize(*info).empty()) return std::nullopt;
    BitmapInfo& foreground = *info->pForegroundBitmapInfo;
    ReadPicture picture = readPicture(job.foreground);
    if (!picture.error.empty() || !ChangeOrgBitmap(*info, foreground, std::move(picture))) return std::nullopt;
    placeForeground(*info);
    return placeOf(foreground);
}

}  // namespace

LayerPlace commonPlace(const PictureMaker& maker, const JobSources& sources) {
    std::vector<LayerPlace> places;
    std::set<std::string> seen;
    for (const BatchJob& job : planJobs(sources).jobs) {
        if (places.size() == kEnough) break;
        if (!job.problem.empty() || !seen.insert(job.foreground).second) continue;
        if (const auto place = placeOfJob(maker, job)) places.push_back(*place);
    }
    return medianPlace(places);
}

}  // namespace tavrin::cli
