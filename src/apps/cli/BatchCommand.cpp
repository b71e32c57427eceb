#include "apps/cli/BatchCommand.h"

#include <atomic>
#include <cstdio>
#include <memory>

#include "apps/cli/BatchConsole.h"
#include "apps/cli/CommonPlace.h"
#include "apps/cli/Console.h"
#include "apps/cli/EditOptions.h"
#include "apps/cli/PictureOptions.h"
#include "apps/cli/SheetCommand.h"
#include "apps/cli/Usage.h"
#include "core/Interruption.h"
#include "core/files/FileIdentity.h"
#include "core/raster/PixelMemory.h"
#include "folders/BatchNames.h"
#include "session/StartUp.h"

namespace tavrin::cli {

namespace {

struct CommandOptions {
    BatchOptions batch;
    PictureOptions picture;
    std::string shard, edits;
    bool scaleRadius = false, json = false;
};

void withoutLastSlash(std::string& path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
}

Refusal complete(CommandOptions& options) {
    BatchOptions& batch = options.batch;
    JobSources& sources = batch.sources;
    for (std::string* path : {&sources.foregrounds, &sources.backgrounds, &sources.states, &sources.out})
        withoutLastSlash(*path);
    sources.editsBeside = !options.edits.empty();
    if (sources.foregrounds.empty() && sources.listFile.empty())
        return {kUsage, "--foregrounds or --list is missing."};
    if (!sources.listFile.empty() && !sources.foregrounds.empty())
        return {kUsage, "--list names its foregrounds itself; --foregrounds does not go with it."};
    if (sources.listFile.empty() && sources.backgrounds.empty() && sources.states.empty() &&
        options.picture.start.recipe.empty())
        return {kUsage, "--backgrounds is missing, or --states that name their backgrounds."};
    if (options.picture.place.isSame() && batch.watch)
        return {kUsage, "--place same looks at the portraits beforehand; it does not go with --watch."};
    if (sources.subfolders && sources.backgrounds.empty())
        return {kUsage, "--subfolders needs --backgrounds: a subfolder is named like one of them."};
    if (options.shard.empty()) return {};
    ShardChoice choice = chooseShard(options.shard);
    batch.shard = choice.shard;
    return {choice.problem.empty() ? kDone : kUsage, choice.problem};
}

/// One frame for all, where that is wanted, before the settings of any picture are asked for.
void placeAlike(CommandOptions& options, const PictureMaker& maker) {
    if (options.picture.place.isSame()) options.picture.place.common = commonPlace(maker, options.batch.sources);
}

/// What is wrong with the settings shows before any picture is looked at. With states each of them has its own say.
Refusal trySettings(const CommandOptions& options, const SystemInfo& base) {
    SystemInfo info;
    startLike(info, base);
    LoadedState loaded;
    if (options.batch.sources.states.empty()) loaded = startSettings(info, options.picture.start);
    if (!loaded.problem.empty()) return {kFailed, loaded.problem};
    return applyPictureOptions(info, options.picture, loaded);
}

int runBatch(CommandOptions options) {
    if (const Refusal refusal = complete(options); refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    // Each picture takes the memory that the last one gave back.
    keepPixelMemory(std::size_t{1} << 29);
    const auto base = std::make_unique<SystemInfo>();
    startCommandLine(*base);
    if (const Refusal refusal = trySettings(options, *base); refusal.code != kDone) {
        complain(refusal.line);
        return refusal.code;
    }
    const StartSettings start = [&options](SystemInfo& info) { return startSettings(info, options.picture.start); };
    const ApplySettings apply = [&options](SystemInfo& info, const LoadedState& loaded) {
        return applyPictureOptions(info, options.picture, loaded).line;
    };
    placeAlike(options, PictureMaker(*base, start, apply));
    PictureMaker maker(*base, start, apply);
    if (options.picture.choosesScreen()) maker.chooseScreens();
    if (!options.edits.empty()) maker.playEditsBeside(editsUndoFolder(), options.scaleRadius);
    for (const PictureWarning& warning : rangeWarnings(options.picture))
        warn(warning.text);
    const BatchOptions& batch = options.batch;
    const bool json = options.json || (!batch.dryRun && !Console::isTerminal(stdout));
    BatchConsole console({json, options.json, batch.dryRun}, batch.sources.out);
    static std::atomic<bool> stopAsked = false;
    std::atomic<bool> told = false;
    BatchRun run(batch, maker, console, [&told, &console] {
        if (stopAsked && !told.exchange(true)) console.stopping();
        return stopAsked.load();
    });
    if (const std::string problem = run.check(); !problem.empty()) {
        complain(problem);
        return kUsage;
    }
    Interruption::stopFirst([] { stopAsked = true; });
    const std::string problem = run.run();
    const BatchCounts& counts = run.counts();
    if (problem.empty() || counts.jobs > 0) console.summarize(counts, batch.watch);
    if (!problem.empty()) {
        complain(problem);
        return kFailed;
    }
    const bool all = counts.failed == 0 && (batch.watch || batch.dryRun || counts.left() == 0);
    return all ? kDone : kFailed;
}

constexpr const char* kExamples = R"(
Examples:
  tavrin-cli batch --foregrounds portraits --backgrounds beach.jpg --out done --inches 8x10 --dpi 300
  tavrin-cli batch --foregrounds portraits --backgrounds scenes --states looks --out done --style split --type png
  tavrin-cli batch --foregrounds incoming --backgrounds beach.jpg --out done --watch
  tavrin-cli batch --foregrounds portraits --backgrounds scenes --out done --shard auto --report done/part-1.jsonl

Every portrait is laid over every background with every state. The same command run again makes what is missing and
what has changed. Ctrl-C finishes the pictures in hand, a second one stops at once.

A batch list of --list is a text with one job between <image> and </image>, one <key>value</key> a line:
  <image>
  <foreground>/shots/anna.jpg</foreground>
  <background>/scenes/beach.jpg</background>
  </image>
More keys, and the events of --json, are in docs/command-line.md.
Exit codes: 0 all done, 1 some failed or are left, 2 wrong usage.)";

void addSources(CLI::App& command, JobSources& sources) {
    command.add_option("--foregrounds", sources.foregrounds, "Folder of portraits, or one portrait");
    command.add_option("--backgrounds", sources.backgrounds, "Folder of backgrounds, or one background");
    command.add_option("--states", sources.states, "Folder of .qlx files, or one");
    command.add_option("--out", sources.out, "Folder for the pictures")->required();
    command.add_option("--style", sources.style, "Names: combine, number, or split into folders (default combine)")
        ->transform(numberedWords({"combine", "number", "split"}, kCombineNames))
        ->type_name("NAME");
    command.add_option("--type", sources.fileType, "jpeg, png or tiff (default jpeg)")
        ->transform(numberedWords({"jpeg", "png", "tiff"}, 1))
        ->type_name("NAME");
    sources.betweenNames = "_";
    command
        .add_option("--names", sources.betweenNames,
                    "What stands between the names with --style combine (default _, as in anna_beach.jpg)")
        ->check(CLI::Validator(
            [](std::string& text) {
                return text.find('/') == std::string::npos ? "" : "no / may stand between names.";
            },
            ""));
    CLI::Option* list = command.add_option("--list", sources.listFile, "A batch list: its jobs instead of folders");
    command.add_flag("--subfolders", sources.subfolders, "Portraits lie in subfolders named like their background")
        ->excludes(list);
}

}  // namespace

void addBatchCommand(CLI::App& app, int& result) {
    const auto options = std::make_shared<CommandOptions>();
    BatchOptions& batch = options->batch;
    CLI::App* command = app.add_subcommand("batch", "Key folders of portraits over folders of backgrounds");
    addSources(*command, batch.sources);
    addPictureOptions(*command, options->picture);
    command->add_option("--edits", options->edits, "beside: play PORTRAIT.edits, a file beside each portrait")
        ->check(oneOf({"beside"}))
        ->type_name("NAME");
    addScaleRadius(*command, options->scaleRadius);
    CLI::Option* watch = command->add_flag("--watch", batch.watch, "Do not end; take pictures as they arrive");
    command->add_flag("--poll", batch.pollOnly, "Look for them every two seconds, without the system's help")
        ->needs(watch);
    command->add_option("--stop-file", batch.stopFile, "Stop as soon as this file is there");
    command->add_option("--jobs", batch.inHand, "Pictures in the works at the same time (default 3)")
        ->check(within(1, 64));
    command->add_option("--shard", options->shard, "Make part K of N: K/N, auto or auto/N (from the scheduler)")
        ->take_last()  // so that a line behind a script's own can say it better
        ->excludes(watch);
    command->add_flag("--retry-failed", batch.retryFailed, "Take pictures again that could not be read");
    command->add_flag("--again", batch.again, "Make every picture again");
    command->add_flag("--overwrite", batch.overwrite, "Replace files of these names that no batch made");
    command->add_flag("--dry-run", batch.dryRun, "Tell what would be made, and write nothing")->excludes(watch);
    command->add_flag("--json", options->json, "One JSON line an event, also on a terminal");
    command->add_option("--report", batch.report, "Write a report, as lines of JSON");
    command->get_option("--list")->excludes(watch);
    command->footer(kExamples);
    command->callback([options, &result] { result = runBatch(*options); });
}

namespace {

/// Why the joined report cannot go to this place; "" when it can.
std::string checkMerge(const std::string& out, const std::vector<std::string>& reports) {
    for (const std::string& report : reports) {
        if (isSameFile(out, report)) return "--out " + out + " would be written over the report " + report + ".";
    }
    return whyNoReport(out, "");
}

int mergeCommand(const std::string& out, const std::vector<std::string>& reports) {
    if (const std::string problem = checkMerge(out, reports); !problem.empty()) {
        complain(problem);
        return kUsage;
    }
    const MergedReport merged = mergeReports(reports, out);
    if (!merged.problem.empty()) {
        complain(merged.problem);
        return kFailed;
    }
    for (const std::string& failure : merged.failures)
        complain(failure);
    if (!merged.warning.empty()) complain(merged.warning);
    const BatchCounts& counts = merged.counts;
    std::printf("%d of %d pictures are there, %d failed, %d are left\n", counts.done + counts.skipped, counts.jobs,
                counts.failed, counts.left());
    return counts.failed == 0 && counts.left() == 0 && merged.warning.empty() ? kDone : kFailed;
}

}  // namespace

void addReportCommand(CLI::App& app, int& result) {
    CLI::App* report = app.add_subcommand("report", "Work with the reports of batches");
    report->require_subcommand(1);
    const auto out = std::make_shared<std::string>();
    const auto reports = std::make_shared<std::vector<std::string>>();
    CLI::App* merge = report->add_subcommand("merge", "Join the reports of shards into one");
    merge->add_option("--out", *out, "Report to write")->required();
    merge->add_option("reports", *reports, "Reports of the shards")->required();
    merge->footer(
        "\nExample:\n  tavrin-cli report merge --out all.jsonl part-*.jsonl\n\n"
        "Exit codes: 0 every picture is there, 1 some failed or are left, 2 wrong usage.");
    merge->callback([=, &result] { result = mergeCommand(*out, *reports); });
    addSheetCommand(*report, result);
}

}  // namespace tavrin::cli
