#include "apps/cli/Assignments.h"

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

}  // namespace tavrin::cli
