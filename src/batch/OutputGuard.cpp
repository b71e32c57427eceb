#include "batch/OutputGuard.h"

#include <filesystem>
#include <set>
#include <unordered_set>
#include <utility>

#include "core/FileIdentity.h"
#include "core/state/NamedFiles.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

/// Looks at each file once, however many jobs read it.
class Inputs {
  public:
    void add(const std::string& path) {
        if (seen_.insert(path).second) files_.add(path);
    }
    void add(const BatchJob& job, PictureMaker& maker) {
        for (const std::string& path : {job.foreground, job.background, job.state})
            add(path);
        if (!states_.insert({job.state, job.switches.has_value()}).second) return;
        for (const std::string& path : maker.filesOf(job))
            add(path);
    }
    const std::string* find(const FileIdentity& file) const { return files_.find(file); }

  private:
    std::unordered_set<std::string> seen_;
    std::set<std::pair<std::string, bool>> states_;
    KnownFiles files_;
};

struct Output {
    FileIdentity file;
    std::string path;
};

std::string realPath(const fs::path& path) {
    std::error_code failed;
    const fs::path real = fs::weakly_canonical(fs::absolute(path.empty() ? "." : path), failed);
    return failed ? std::string() : real.string();
}

bool isWithin(const std::string& path, const std::string& folder) {
    return path == folder || folder == "/" || path.starts_with(folder + "/");
}

}  // namespace

std::string findOverwrittenInput(const JobSources& sources, const std::string& report,
                                 const std::vector<BatchJob>& jobs, PictureMaker& maker) {
    std::vector<Output> outputs;
    const auto addOutput = [&outputs](const std::string& path) {
        if (const auto file = identityOf(path)) outputs.push_back({*file, path});
    };
    for (const BatchJob& job : jobs) {
        if (!report.empty() && isSameFile(report, job.out))
            return "The report " + report + " would be written over the picture " + job.out + ".";
        addOutput(job.out);
    }
    addOutput(report);
    if (outputs.empty()) return "";
    Inputs inputs;
    inputs.add(sources.listFile);
    for (const BatchJob& job : jobs)
        inputs.add(job, maker);
    for (const Output& output : outputs) {
        if (const std::string* input = inputs.find(output.file)) return overwritesInput(output.path, *input) + ".";
    }
    return "";
}

std::string whyOutside(const std::string& folder, const std::string& picture) {
    const std::string own = fs::path(picture).parent_path().string();
    const std::string base = realPath(!folder.empty() && picture.starts_with(folder + "/") ? folder : own);
    if (!isWithin(realPath(own), base)) return "its folder leads out of " + folder;
    std::error_code ignored;
    if (!fs::is_symlink(picture, ignored) || isWithin(realPath(picture), base)) return "";
    return "there is a link of this name that leads out of " + (own.empty() ? "the folder" : own);
}

}  // namespace tavrin
