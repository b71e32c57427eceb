#include "apps/cli/Assignments.h"

#include <algorithm>

#include "session/SettingChanges.h"

namespace tavrin::cli {

std::string applyAssignments(SystemInfo& info, const std::vector<std::string>& assignments) {
    for (const std::string& assignment : assignments) {
        const std::size_t equals = assignment.find('=');
        if (equals == std::string::npos) return "A setting is written field=value, not \"" + assignment + "\".";
        std::string problem = changeSetting(info, assignment.substr(0, equals), assignment.substr(equals + 1));
        if (!problem.empty()) return problem;
    }
    return "";
}

bool setsAny(const std::vector<std::string>& assignments, const std::string& start) {
    return std::any_of(assignments.begin(), assignments.end(),
                       [&start](const std::string& assignment) { return assignment.starts_with(start); });
}

}  // namespace tavrin::cli
