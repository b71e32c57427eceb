#include "farm/ReportFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <QJsonDocument>

#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"

namespace tavrin {

namespace {

/// Whether a run can have written such a name: no way out of its folder, and nothing that is no name at all.
bool isWrittenName(const std::string& name, bool isMade) {
    if (name.empty()) return !isMade;
    const std::filesystem::path path(name);
    return name.find('\0') == std::string::npos && path == path.lexically_normal() && path.has_filename() &&
           *path.begin() != ".." && *path.begin() != ".";
}

}  // namespace

ReportFile readReport(const std::string& path) {
    ReportFile report;
    std::ifstream file;
    if (isPlainFile(path)) file.open(path, std::ios::binary);
    if (!file.is_open()) report.problem = path + " cannot be read.";
    for (std::string line; report.problem.empty() && std::getline(file, line);) {
        const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        if (object["report"].toString() == kReportKind) {
            report.heads.push_back(object);
        } else if (!report.heads.empty() && object.contains("n")) {
            const std::string out = nameOfText(object["out"].toString());
            if (!isWrittenName(out, object["status"].toString() == "done"))
                report.problem = path + " is damaged: no run calls a picture \"" + out + "\".";
            report.jobs.push_back(object);
        }
    }
    if (report.problem.empty() && report.heads.empty()) report.problem = path + " is no report of a batch.";
    return report;
}

int urgencyOf(const QJsonObject& job) {
    constexpr int kUnknown = 101;
    if (job["status"].toString() == "failed") return -1;
    return job["confidence"].isDouble() ? std::clamp(job["confidence"].toInt(), 0, 100) : kUnknown;
}

}  // namespace tavrin
