#include "farm/Shard.h"

#include <charconv>
#include <cstdlib>
#include <optional>

namespace tavrin {

namespace {

std::optional<int> numberOf(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

ShardChoice refuse(const std::string& problem) {
    return {{}, problem};
}

ShardChoice checked(int index, int count, const std::string& origin) {
    if (count >= 1 && index >= 1 && index <= count) return {{index, count}, ""};
    return refuse(origin + " gives shard " + std::to_string(index) + " of " + std::to_string(count) +
                  ", which is none.");
}

ShardChoice fromSlurm(const Environment& environment, std::optional<int> count) {
    const auto id = numberOf(environment("SLURM_ARRAY_TASK_ID"));
    if (!id) return refuse("SLURM_ARRAY_TASK_ID is no number.");
    if (count) return checked(*id, *count, "--shard auto/" + std::to_string(*count) + " with SLURM_ARRAY_TASK_ID");
    const auto tasks = numberOf(environment("SLURM_ARRAY_TASK_COUNT"));
    if (!tasks) return refuse("SLURM_ARRAY_TASK_COUNT is missing; give the number with --shard auto/N.");
    const int first = numberOf(environment("SLURM_ARRAY_TASK_MIN")).value_or(1);
    const int step = std::max(numberOf(environment("SLURM_ARRAY_TASK_STEP")).value_or(1), 1);
    ShardChoice choice = checked((*id - first) / step + 1, *tasks, "The Slurm array");
    if (!choice.problem.empty())
        choice.problem += " Its tasks are not in a row: give the number of all shards with --shard auto/N.";
    return choice;
}

ShardChoice fromIndex(const Environment& environment, const char* index, const char* size, std::optional<int> count) {
    const auto number = numberOf(environment(index));
    if (!count) count = numberOf(environment(size));
    if (!number) return refuse(std::string(index) + " is no number.");
    if (!count) return refuse(std::string(index) + " tells no total; give it with --shard auto/N.");
    return checked(*number + 1, *count, index);
}

ShardChoice fromScheduler(const Environment& environment, std::optional<int> count) {
    if (!environment("SLURM_ARRAY_TASK_ID").empty()) return fromSlurm(environment, count);
    if (!environment("JOB_COMPLETION_INDEX").empty())
        return fromIndex(environment, "JOB_COMPLETION_INDEX", "JOB_COMPLETIONS", count);
    if (!environment("AWS_BATCH_JOB_ARRAY_INDEX").empty())
        return fromIndex(environment, "AWS_BATCH_JOB_ARRAY_INDEX", "AWS_BATCH_JOB_ARRAY_SIZE", count);
    return refuse(
        "--shard auto needs a scheduler's variable: SLURM_ARRAY_TASK_ID, JOB_COMPLETION_INDEX or "
        "AWS_BATCH_JOB_ARRAY_INDEX.");
}

}  // namespace

std::string processEnvironment(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return value ? value : "";
}

ShardChoice chooseShard(const std::string& text, const Environment& environment) {
    const std::size_t slash = text.find('/');
    const std::string first = text.substr(0, slash);
    const auto count = slash == std::string::npos ? std::nullopt : numberOf(text.substr(slash + 1));
    if (slash != std::string::npos && !count) return refuse("--shard takes K/N or auto, not \"" + text + "\".");
    if (first == "auto") return fromScheduler(environment, count);
    const auto index = numberOf(first);
    if (!index || !count) return refuse("--shard takes K/N or auto, not \"" + text + "\".");
    return checked(*index, *count, "--shard " + text);
}

}  // namespace tavrin
