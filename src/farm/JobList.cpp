#include "farm/JobList.h"

#include <algorithm>
#include <climits>
#include <filesystem>
#include <set>
#include <tuple>
#include <unordered_map>

#include <QString>

#include "core/files/NameText.h"
#include "core/image/FileKind.h"
#include "folders/BatchList.h"
#include "folders/BatchNames.h"
#include "folders/FileFacts.h"
#include "folders/FolderListing.h"
#include "folders/ListText.h"
#include "folders/NextFileInFolder.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Accept = std::function<bool(const std::string&)>;

/// Paths with the names they are listed under.
struct Entry {
    std::string name, path;
};
using Entries = std::vector<Entry>;

/// Not by the user's language: shards on other machines must find the same order.
void sortByFixedRules(std::vector<std::string>& names) {
    std::vector<std::pair<QString, std::string>> keyed;
    for (std::string& name : names) {
        QString folded = textOfName(name).toCaseFolded();
        keyed.emplace_back(std::move(folded), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](auto& entry) { return std::move(entry.second); });
}

/// What a folder of pictures may hold; photos alone are what the desktop program takes.
const std::vector<std::string>& pictureExtensions() {
    static const std::vector<std::string> known = [] {
        std::vector<std::string> all = photoExtensions();
        for (const char* more : {"GIF", "WEBP", "HEIC", "HEIF", "AVIF", "BMP", "PSD"})
            all.emplace_back(more);
        for (const std::string& raw : rawExtensions())
            all.push_back(raw);
        return all;
    }();
    return known;
}

/// @param problem set when a folder cannot be read
Entries entriesOf(const std::string& place, const std::vector<std::string>& extensions, const Accept& accept,
                  std::string& problem) {
    std::error_code ignored;
    if (place.empty()) return {};
    if (!fs::is_directory(place, ignored)) {
        if (accept && !accept(place)) return {};
        return {{fs::path(place).filename().string(), place}};
    }
    std::vector<std::string> names = namesInFolder(place, extensions, &problem);
    sortByFixedRules(names);
    Entries entries;
    for (std::string& name : names) {
        std::string path = place + "/" + name;
        if (name[0] != '.' && (!accept || accept(path))) entries.push_back({std::move(name), std::move(path)});
    }
    return entries;
}

std::vector<std::string> foldersIn(const std::string& place, std::string& problem) {
    FolderListing listing = listFolder(place);
    if (problem.empty()) problem = std::move(listing.problem);
    std::erase_if(listing.names, [&place](const std::string& name) {
        std::error_code ignored;
        return name[0] == '.' || !fs::is_directory(fs::path(place) / name, ignored);
    });
    sortByFixedRules(listing.names);
    return std::move(listing.names);
}

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

std::string orCurrent(const std::string& name) {
    return name.empty() ? std::string(kUseCurrent) : name;
}

BatchJob jobOf(const Entry& foreground, const Entry& background, const Entry& state) {
    BatchJob job;
    job.foreground = foreground.path;
    job.background = background.path;
    job.state = state.path;
    job.name = keyOf({foreground.name, background.name, state.name});
    return job;
}

/// A slot that was not given counts once and is empty.
Entries orOneEmpty(Entries entries, const std::string& place) {
    if (entries.empty() && place.empty()) entries.emplace_back();
    return entries;
}

class Planner {
  public:
    Planner(const JobSources& sources, const GivenNames* given, const Accept& accept)
        : sources_(sources), given_(given), accept_(accept) {}

    JobList plan() {
        if (!sources_.listFile.empty()) {
            planFromList();
        } else if (sources_.subfolders) {
            planSubfolders();
        } else {
            planCombinations();
        }
        if (!list_.problem.empty()) list_.jobs.clear();
        if (sources_.listFile.empty()) findPassedOver();
        for (std::size_t i = 0; i < list_.jobs.size(); ++i)
            list_.jobs[i].number = static_cast<int>(i) + 1;
        if (sources_.listFile.empty()) nameOutputs();
        findClashes();
        return std::move(list_);
    }

  private:
    void planCombinations() {
        const Entries states =
            orOneEmpty(entriesOf(sources_.states, {"QLX"}, accept_, list_.problem), sources_.states);
        const Entries backgrounds = orOneEmpty(
            entriesOf(sources_.backgrounds, pictureExtensions(), accept_, list_.problem), sources_.backgrounds);
        const Entries foregrounds = entriesOf(sources_.foregrounds, pictureExtensions(), accept_, list_.problem);
        for (const Entry& state : states) {
            for (const Entry& background : backgrounds) {
                for (const Entry& foreground : foregrounds)
                    list_.jobs.push_back(jobOf(foreground, background, state));
            }
        }
    }

    void planSubfolders() {
        const Entries states =
            orOneEmpty(entriesOf(sources_.states, {"QLX"}, accept_, list_.problem), sources_.states);
        const Entries backgrounds = entriesOf(sources_.backgrounds, pictureExtensions(), accept_, list_.problem);
        for (const Entry& state : states) {
            for (const std::string& folder : foldersIn(sources_.foregrounds, list_.problem)) {
                const auto match =
                    std::find_if(backgrounds.rbegin(), backgrounds.rend(), [&folder](const Entry& background) {
                        return background.name.substr(0, background.name.find('.')) == folder;
                    });
                if (match == backgrounds.rend()) continue;
                for (Entry& foreground :
                     entriesOf(sources_.foregrounds + "/" + folder, pictureExtensions(), accept_, list_.problem)) {
                    foreground.name = folder + "/" + foreground.name;
                    list_.jobs.push_back(jobOf(foreground, *match, state));
                }
            }
        }
    }

    void planFromList() {
        const ListText file = readListText(sources_.listFile);
        list_.problem = file.problem;
        if (!file.problem.empty()) return;
        BatchListDefaults defaults;
        defaults.outputFolder = sources_.out;
        defaults.outputFileType = sources_.fileType;
        defaults.outputStyle = sources_.style;
        defaults.betweenNames = sources_.betweenNames;
        int number = 1;
        const BatchList list = parseBatchList(file.text, defaults, number, INT_MAX, [](const std::string&) {});
        if (list.unclosedLine > 0) {
            list_.problem = sources_.listFile + ", line " + std::to_string(list.unclosedLine) +
                            ": the job that begins here is never closed.";
        } else if (list.jobs.empty()) {
            list_.problem = sources_.listFile + " holds no job of a batch list.";
        }
        for (const BatchElement& element : list.jobs)
            list_.jobs.push_back(listedJob(element));
    }

    BatchJob listedJob(const BatchElement& element) const {
        BatchJob job;
        job.foreground = element.sForegroundFile;
        job.background = element.sBackgroundFile;
        // A job without a state has the (here empty) background's path in its place.
        if (!element.sQLXFile.empty()) job.state = (fs::path(sources_.states) / element.sQLXFile).string();
        job.name = keyOf({element.sForegroundFile, element.sBackgroundFile, element.sQLXFile, element.sOutputFile});
        job.fileType = element.iOutputFileType;
        job.out = element.sOutputFile + extensionFor(element.iOutputFileType);
        job.switches = {element.OutputTransparency, element.NoGreenScreenProcessing, element.BlueScreenProcessing};
        if (job.foreground.empty()) job.problem = "the list names no foreground for it";
        return job;
    }

    /// Files beside the portraits and the backgrounds that nothing is made of, hidden ones aside.
    void findPassedOver() {
        for (const std::string& place : {sources_.foregrounds, sources_.backgrounds}) {
            std::error_code ignored;
            if (!fs::is_directory(place, ignored)) continue;
            std::vector<std::string> names = listFolder(place).names;
            sortByFixedRules(names);
            const std::vector<std::string> taken = namesInFolder(place, pictureExtensions());
            const std::set<std::string> pictures(taken.begin(), taken.end());
            for (const std::string& name : names) {
                const std::string path = place + "/" + name;
                if (name[0] != '.' && !pictures.contains(name) && !fs::is_directory(path, ignored))
                    list_.passedOver.push_back(path);
            }
        }
    }

    void nameOutputs() {
        for (BatchJob& job : list_.jobs) {
            job.fileType = sources_.fileType;
            const BatchSources named = {job.foreground, orCurrent(job.background), orCurrent(job.state)};
            const auto makesNothing = [](const std::string&) {};
            if (sources_.style == kCombineNames) job.out = combinedName(sources_.out, named, sources_.betweenNames);
            if (sources_.style == kSplitIntoFolders) job.out = splitName(sources_.out, named, makesNothing);
            job.out += job.out.empty() ? "" : extensionFor(job.fileType);
        }
        if (sources_.style == kNumberFiles) numberOutputs();
    }

    void numberOutputs() {
        const std::string extension = extensionFor(sources_.fileType);
        std::set<std::string> taken;
        if (given_) {
            for (const auto& [name, out] : *given_)
                taken.insert(out);
            addNamesInFolder(taken);
        }
        int next = 1;
        for (BatchJob& job : list_.jobs) {
            const auto known = given_ ? given_->find(job.name) : GivenNames::const_iterator();
            if (given_ && known != given_->end() && isNumbered(known->second, extension)) {
                job.out = sources_.out + "/" + known->second;
                continue;
            }
            do {
                job.out = numberedName(sources_.out, given_ ? next++ : job.number) + extension;
            } while (given_ && taken.contains(relativeTo(sources_.out, job.out)));
        }
    }

    // One that has had the name longer keeps it; else the first of the list.
    void findClashes() {
        std::unordered_map<std::string, BatchJob*> owners;
        for (BatchJob& job : list_.jobs) {
            auto& owner = owners[job.out];
            if (!owner || (hasName(job) && !hasName(*owner))) owner = &job;
        }
        for (BatchJob& job : list_.jobs) {
            const BatchJob* owner = owners[job.out];
            if (owner == &job || !job.problem.empty()) continue;
            job.problem = "its picture would have the name of that of " + owner->foreground +
                          "; rename one of them or number the pictures";
        }
    }

    bool hasName(const BatchJob& job) const {
        const auto known = given_ ? given_->find(job.name) : GivenNames::const_iterator();
        return given_ && known != given_->end() && known->second == relativeTo(sources_.out, job.out);
    }

    /// Pictures that no journal tells of have their numbers too.
    void addNamesInFolder(std::set<std::string>& names) const {
        std::error_code failed;
        for (fs::directory_iterator entry(sources_.out, failed), end; !failed && entry != end;
             entry.increment(failed))
            names.insert(entry->path().filename().string());
    }

    /// Whether a name from a journal is one that a number gives, so that no other leads to some place.
    static bool isNumbered(const std::string& name, const std::string& extension) {
        constexpr std::string_view kStem = "BatchFile";
        if (!name.starts_with(kStem) || !name.ends_with(extension)) return false;
        if (name.size() <= kStem.size() + extension.size()) return false;
        return std::all_of(name.begin() + kStem.size(), name.end() - static_cast<std::ptrdiff_t>(extension.size()),
                           [](char c) { return c >= '0' && c <= '9'; });
    }

    const JobSources& sources_;
    const GivenNames* given_;
    const Accept& accept_;
    JobList list_;
};

}  // namespace

JobList planJobs(const JobSources& sources, const GivenNames* given, const Accept& accept) {
    return Planner(sources, given, accept).plan();
}

std::string relativeTo(const std::string& folder, const std::string& path) {
    return path.starts_with(folder + "/") ? path.substr(folder.size() + 1) : path;
}

std::string digestOfList(const std::vector<BatchJob>& jobs) {
    std::string text;
    for (const BatchJob& job : jobs)
        text += job.name + "\n" + fs::path(job.out).filename().string() + "\n";
    return digestOfText(text);
}

}  // namespace tavrin
