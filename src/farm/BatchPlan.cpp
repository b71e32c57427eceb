#include "farm/BatchPlan.h"

#include <algorithm>
#include <climits>
#include <filesystem>

#include "farm/SourceFiles.h"
#include "folders/BatchListFile.h"
#include "folders/FileFacts.h"
#include "folders/ListText.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// One name from several, of which no two rows give the same: what parts them may stand in a name, so there it is
/// the one byte that cannot.
std::string keyOf(const std::vector<std::string>& names) {
    std::string key;
    for (std::string name : names) {
        std::replace(name.begin(), name.end(), '|', '\0');
        key += name + "|";
    }
    key.pop_back();
    return key;
}

/// The jobs of all combinations, or of the portraits in subfolders.
BatchPlan planFolders(const JobSources& sources, SourceLister lister) {
    const SourceFiles states = lister.listOrNone(sources.states, {"QLX"});
    const SourceFiles backgrounds = sources.subfolders ? lister.list(sources.backgrounds, pictureExtensions())
                                                       : lister.listOrNone(sources.backgrounds, pictureExtensions());
    const SourceFiles foregrounds =
        sources.subfolders ? lister.listSubfolders(sources.foregrounds, SubfolderBackgrounds(backgrounds.names))
                           : lister.list(sources.foregrounds, pictureExtensions());
    BatchPlan plan;
    plan.problem = lister.problem;
    const auto take = [&](const Combination& at) {
        BatchJob& job = plan.jobs.emplace_back();
        job.foreground = foregrounds.paths[at.foreground];
        job.background = backgrounds.paths[at.background];
        job.state = states.paths[at.state];
        job.name =
            keyOf({foregrounds.names[at.foreground], backgrounds.names[at.background], states.names[at.state]});
        return true;
    };
    const BatchSlots slots = {foregrounds.names, backgrounds.names, states.names};
    if (sources.subfolders) {
        eachInSubfolders(slots, take, [](const std::string&) {});
    } else {
        eachCombination(slots, take);
    }
    return plan;
}

BatchJob listedJob(const BatchElement& element, const std::string& states) {
    BatchJob job;
    job.foreground = element.sForegroundFile;
    job.background = element.sBackgroundFile;
    // A job without a state has the (here empty) background's path in its place.
    if (!element.sQLXFile.empty()) job.state = (fs::path(states) / element.sQLXFile).string();
    job.name = keyOf({element.sForegroundFile, element.sBackgroundFile, element.sQLXFile, element.sOutputFile});
    job.fileType = element.iOutputFileType;
    job.out = element.sOutputFile + extensionFor(element.iOutputFileType);
    job.switches = {element.OutputTransparency, element.NoGreenScreenProcessing, element.BlueScreenProcessing};
    if (job.foreground.empty()) job.problem = "the list names no foreground for it";
    return job;
}

BatchPlan planList(const JobSources& sources) {
    BatchPlan plan;
    const ListText file = readListText(sources.listFile);
    plan.problem = file.problem;
    if (!file.problem.empty()) return plan;
    BatchListDefaults defaults;
    defaults.outputFolder = sources.out;
    defaults.outputFileType = sources.fileType;
    defaults.outputStyle = sources.style;
    defaults.betweenNames = sources.betweenNames;
    int number = 1;
    const ParsedBatchList list = parseBatchList(file.text, defaults, number, INT_MAX, [](const std::string&) {});
    if (list.unclosedLine > 0) {
        plan.problem = sources.listFile + ", line " + std::to_string(list.unclosedLine) +
                       ": the job that begins here is never closed.";
    } else if (list.jobs.empty()) {
        plan.problem = sources.listFile + " holds no job of a batch list.";
    }
    for (const BatchElement& element : list.jobs)
        plan.jobs.push_back(listedJob(element, sources.states));
    return plan;
}

}  // namespace

BatchPlan planJobs(const JobSources& sources, const GivenNames* given,
                   const std::function<bool(const std::string&)>& accept) {
    const bool fromList = !sources.listFile.empty();
    BatchPlan plan = fromList ? planList(sources) : planFolders(sources, SourceLister(accept));
    if (!plan.problem.empty()) plan.jobs.clear();
    if (!fromList) plan.passedOver = findPassedOver(sources);
    for (std::size_t i = 0; i < plan.jobs.size(); ++i)
        plan.jobs[i].number = static_cast<int>(i) + 1;
    if (!fromList) nameOutputs(plan.jobs, sources, given);
    findClashes(plan.jobs, sources, given);
    return plan;
}

std::string digestOfList(const std::vector<BatchJob>& jobs) {
    std::string text;
    for (const BatchJob& job : jobs)
        text += job.name + "\n" + fs::path(job.out).filename().string() + "\n";
    return digestOfText(text);
}

}  // namespace tavrin
