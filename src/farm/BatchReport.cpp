#include "farm/BatchReport.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <set>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/files/AtomicFile.h"
#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "core/image/FileKind.h"
#include "farm/JudgementText.h"
#include "farm/ReportFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

const char* statusName(JobResult::Status status) {
    switch (status) {
        case JobResult::Status::done:
            return "done";
        case JobResult::Status::skipped:
            return "skipped";
        case JobResult::Status::planned:
            return "planned";
        default:
            return "failed";
    }
}

std::string lineOf(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
}

double rounded(double seconds) {
    return std::round(seconds * 1000.0) / 1000.0;
}

QJsonObject sums(const BatchCounts& counts) {
    return {{"jobs", counts.jobs},
            {"done", counts.done},
            {"skipped", counts.skipped},
            {"failed", counts.failed},
            {"left", counts.left()}};
}

std::string writeLines(const std::string& path, const std::vector<std::string>& lines) {
    AtomicFile file(path);
    for (const std::string& line : lines) {
        file.write(line.data(), line.size());
        file.write("\n", 1);
    }
    return file.commit() ? std::string() : path + ": " + file.error() + ".";
}

// A picture outside the folder of the run's pictures (a list may name one) has its full path.
std::string writtenName(const std::string& outFolder, const std::string& out) {
    if (out.empty()) return out;
    std::error_code failed;
    const std::string folder = fs::absolute(outFolder, failed).lexically_normal().string();
    const std::string path = fs::absolute(out, failed).lexically_normal().string();
    return failed ? out : relativeTo(folder.ends_with('/') ? folder.substr(0, folder.size() - 1) : folder, path);
}

bool isSooner(const QJsonObject& one, const QJsonObject& other) {
    return urgencyOf(one) < urgencyOf(other);
}

/// All reports that are to be joined, read into one.
class Merger {
  public:
    std::string read(const std::string& path) {
        const ReportFile report = readReport(path);
        if (!report.problem.empty()) return report.problem;
        for (const QJsonObject& head : report.heads)
            readHead(head);
        for (const QJsonObject& job : report.jobs)
            readJob(job);
        return "";
    }

    MergedReport write(const std::string& out) {
        MergedReport merged;
        merged.counts.jobs = total_;
        std::vector<std::string> lines;
        QJsonObject head{{"report", kReportKind}, {"jobs", total_}, {"shards", QJsonArray::fromStringList(shards_)}};
        if (lists_.size() == 1) head["list"] = *lists_.begin();
        if (folders_.size() == 1) head["folder"] = *folders_.begin();
        lines.push_back(lineOf(head));
        std::vector<QJsonObject> jobs;
        for (const auto& [number, job] : jobs_)
            jobs.push_back(job);
        std::stable_sort(jobs.begin(), jobs.end(), isSooner);
        for (const QJsonObject& job : jobs) {
            lines.push_back(lineOf(job));
            count(job, merged);
        }
        QJsonObject end = sums(merged.counts);
        end["seconds"] = rounded(seconds_);
        lines.push_back(lineOf({{"summary", end}}));
        if (lists_.size() > 1)
            merged.warning =
                "The shards did not see the same list: run all of them again, done pictures are skipped.";
        merged.problem = writeLines(out, lines);
        return merged;
    }

  private:
    void readHead(const QJsonObject& head) {
        total_ = std::max(total_, head["jobs"].toInt());
        if (head.contains("list")) lists_.insert(head["list"].toString());
        if (head.contains("folder")) folders_.insert(head["folder"].toString());
        if (head.contains("shard")) shards_.append(head["shard"].toString());
        for (const auto& shard : head["shards"].toArray())
            shards_.append(shard.toString());
    }

    void readJob(const QJsonObject& job) {
        QJsonObject& known = jobs_[job["n"].toInt()];
        const bool better = known.isEmpty() || known["status"].toString() == "failed" ||
                            (known["status"].toString() == "skipped" && job["status"].toString() == "done");
        if (better) known = job;
        seconds_ += job["seconds"].toDouble();
    }

    static void count(const QJsonObject& job, MergedReport& merged) {
        const QString status = job["status"].toString();
        if (status == "done") ++merged.counts.done;
        if (status == "skipped") ++merged.counts.skipped;
        if (status != "failed") return;
        ++merged.counts.failed;
        merged.failures.push_back(nameOfText(job["foreground"].toString() + ": " + job["reason"].toString()));
    }

    int total_ = 0;
    double seconds_ = 0.0;
    QStringList shards_;
    std::set<QString> lists_, folders_;
    std::map<int, QJsonObject> jobs_;
};

QJsonObject objectOf(const JobResult& result, const std::string& outFolder) {
    const BatchJob& job = result.job;
    QJsonObject object{{"n", job.number},
                       {"foreground", textOfName(job.foreground)},
                       {"out", textOfName(writtenName(outFolder, job.out))},
                       {"status", statusName(result.status)}};
    if (!job.background.empty()) object["background"] = textOfName(job.background);
    if (!job.state.empty()) object["state"] = textOfName(job.state);
    if (!result.reason.empty()) object["reason"] = textOfName(result.reason);
    if (!result.warnings.empty()) object["warnings"] = describeWarnings(result.warnings);
    if (result.judgement) addJudgement(object, *result.judgement);
    if (result.status == JobResult::Status::done) {
        object["width"] = result.width;
        object["height"] = result.height;
        object["seconds"] = rounded(result.seconds);
        object["at"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    }
    return object;
}

}  // namespace

QJsonArray describeWarnings(const std::vector<PictureWarning>& warnings) {
    QJsonArray array;
    for (const PictureWarning& warning : warnings)
        array.append(QJsonObject{{"kind", textOfName(warning.kind)}, {"text", textOfName(warning.text)}});
    return array;
}

std::string describeResult(const JobResult& result, const std::string& outFolder) {
    return lineOf(objectOf(result, outFolder));
}

void BatchReport::begin(const std::string& shard, int total, const std::string& list, const std::string& outFolder) {
    std::error_code failed;
    const fs::path folder = fs::absolute(outFolder, failed).lexically_normal();
    head_ = lineOf({{"report", kReportKind},
                    {"shard", textOfName(shard)},
                    {"jobs", total},
                    {"list", textOfName(list)},
                    {"folder", textOfName(failed ? outFolder : folder.string())}});
}

void BatchReport::add(const JobResult& result, const std::string& outFolder) {
    const QJsonObject object = objectOf(result, outFolder);
    lines_[result.job.number] = {urgencyOf(object), lineOf(object)};
}

std::string BatchReport::write(const std::string& path, const BatchCounts& counts, double seconds) const {
    std::vector<Line> sorted;
    for (const auto& [number, line] : lines_)
        sorted.push_back(line);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Line& one, const Line& other) { return one.urgency < other.urgency; });
    std::vector<std::string> lines{head_};
    for (Line& line : sorted)
        lines.push_back(std::move(line.text));
    QJsonObject end = sums(counts);
    end["seconds"] = rounded(seconds);
    lines.push_back(lineOf({{"summary", end}}));
    return writeLines(path, lines);
}

std::string whyNoReport(const std::string& path, const std::string& outFolder) {
    if (isPlainFile(path) && probeFile(path).kind != FileKind::unknown)
        return path + " is a picture; no report is written over it.";
    std::error_code ignored;
    const fs::path folder = fs::absolute(path).lexically_normal().parent_path();
    const bool isMadeByRun =
        !outFolder.empty() && fs::absolute(outFolder).lexically_normal() == folder && !fs::exists(outFolder, ignored);
    if (isMadeByRun) return "";
    const AtomicFile trial(path);
    return trial.error().empty() ? "" : "The report " + path + " cannot be written: " + trial.error() + ".";
}

MergedReport mergeReports(const std::vector<std::string>& paths, const std::string& out) {
    Merger merger;
    for (const std::string& path : paths) {
        if (const std::string problem = merger.read(path); !problem.empty()) {
            MergedReport none;
            none.problem = problem;
            return none;
        }
    }
    return merger.write(out);
}

}  // namespace tavrin
