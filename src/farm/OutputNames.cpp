#include "farm/OutputNames.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <unordered_map>

#include "folders/BatchElement.h"
#include "folders/BatchNames.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

std::string orCurrent(const std::string& name) {
    return name.empty() ? std::string(kUseCurrent) : name;
}

/// The name that an earlier run gave to the job's picture; null when there is none.
const std::string* givenName(const BatchJob& job, const GivenNames* given) {
    if (!given) return nullptr;
    const auto known = given->find(job.name);
    return known == given->end() ? nullptr : &known->second;
}

/// Whether a name from a journal is one that a number gives, so that no other leads to some place.
bool isNumbered(const std::string& name, const std::string& extension) {
    constexpr std::string_view kStem = "BatchFile";
    if (!name.starts_with(kStem) || !name.ends_with(extension)) return false;
    if (name.size() <= kStem.size() + extension.size()) return false;
    return std::all_of(name.begin() + kStem.size(), name.end() - static_cast<std::ptrdiff_t>(extension.size()),
                       [](char c) { return c >= '0' && c <= '9'; });
}

/// Names below the out folder that no new picture may have: pictures that no journal tells of have their numbers too.
std::set<std::string> takenNames(const std::string& folder, const GivenNames& given) {
    std::set<std::string> taken;
    for (const auto& [name, out] : given)
        taken.insert(out);
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        taken.insert(entry->path().filename().string());
    return taken;
}

void numberByPlace(std::vector<BatchJob>& jobs, const JobSources& sources) {
    for (BatchJob& job : jobs)
        job.out = numberedName(sources.out, job.number) + extensionFor(sources.fileType);
}

void numberBesideGiven(std::vector<BatchJob>& jobs, const JobSources& sources, const GivenNames& given) {
    const std::string extension = extensionFor(sources.fileType);
    const std::set<std::string> taken = takenNames(sources.out, given);
    int next = 1;
    for (BatchJob& job : jobs) {
        const std::string* known = givenName(job, &given);
        if (known && isNumbered(*known, extension)) {
            job.out = sources.out + "/" + *known;
            continue;
        }
        do {
            job.out = numberedName(sources.out, next++) + extension;
        } while (taken.contains(relativeTo(sources.out, job.out)));
    }
}

}  // namespace

void nameOutputs(std::vector<BatchJob>& jobs, const JobSources& sources, const GivenNames* given) {
    for (BatchJob& job : jobs) {
        job.fileType = sources.fileType;
        const BatchSources named = {job.foreground, orCurrent(job.background), orCurrent(job.state)};
        const auto makesNothing = [](const std::string&) {};
        if (sources.style == kCombineNames) job.out = combinedName(sources.out, named, sources.betweenNames);
        if (sources.style == kSplitIntoFolders) job.out = splitName(sources.out, named, makesNothing);
        job.out += job.out.empty() ? "" : extensionFor(job.fileType);
    }
    if (sources.style != kNumberFiles) return;
    if (given) {
        numberBesideGiven(jobs, sources, *given);
    } else {
        numberByPlace(jobs, sources);
    }
}

void findClashes(std::vector<BatchJob>& jobs, const JobSources& sources, const GivenNames* given) {
    const auto hasName = [&](const BatchJob& job) {
        const std::string* known = givenName(job, given);
        return known && *known == relativeTo(sources.out, job.out);
    };
    std::unordered_map<std::string, BatchJob*> owners;
    for (BatchJob& job : jobs) {
        auto& owner = owners[job.out];
        if (!owner || (hasName(job) && !hasName(*owner))) owner = &job;
    }
    for (BatchJob& job : jobs) {
        const BatchJob* owner = owners[job.out];
        if (owner == &job || !job.problem.empty()) continue;
        job.problem = "its picture would have the name of that of " + owner->foreground +
                      "; rename one of them or number the pictures";
    }
}

std::string relativeTo(const std::string& folder, const std::string& path) {
    return path.starts_with(folder + "/") ? path.substr(folder.size() + 1) : path;
}

}  // namespace tavrin
