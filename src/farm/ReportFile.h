#pragma once

#include <string>
#include <vector>

#include <QJsonObject>

namespace tavrin {

/// What the first line of a report says it is.
inline constexpr const char* kReportKind = "tavrin-batch";

/// A report as it was read.
struct ReportFile {
    std::vector<QJsonObject> heads;  ///< lines about a run
    std::vector<QJsonObject> jobs;   ///< lines about a picture, in the order of the file
    std::string problem;             ///< why it cannot be used; one plain line
};

/// Reads a report of this version or an older one. Lines that are no JSON are passed over, as a run's kill leaves
/// them.
ReportFile readReport(const std::string& path);

/// How soon a person should look at a picture: those that failed come first, then the matte that is least sure, and
/// last what nothing is known of. The lower the sooner.
int urgencyOf(const QJsonObject& job);

}  // namespace tavrin
