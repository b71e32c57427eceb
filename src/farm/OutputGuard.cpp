#include "farm/OutputGuard.h"

#include <set>
#include <unordered_set>
#include <utility>

#include "core/files/FileIdentity.h"
#include "core/state/NamedFiles.h"

namespace tavrin {

namespace {

/// Looks at each file once, however many jobs read it.
class Inputs {
  public:
    void add(const std::string& path) {
        if (seen_.insert(path).second) files_.add(path);
    }
    void add(const BatchJob& job, PictureMaker& maker) {
        for (const std::string& path : {job.foreground, job.background, job.state, maker.editsOf(job)})
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

}  // namespace tavrin
