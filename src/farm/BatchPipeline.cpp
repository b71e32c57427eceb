#include "farm/BatchPipeline.h"

#include <chrono>
#include <filesystem>
#include <list>
#include <new>
#include <oneapi/tbb/parallel_pipeline.h>

#include "core/HandOver.h"
#include "core/files/AtomicFile.h"
#include "core/image/ImageWriter.h"
#include "folders/BatchNames.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Clock = std::chrono::steady_clock;

/// Backgrounds go with many portraits in a row; the last few stay decoded.
class Backgrounds {
  public:
    std::shared_ptr<const ReadFile> read(const std::string& path) {
        std::lock_guard lock(mutex_);
        const std::optional<FileFacts> facts = factsOf(path);
        for (auto kept = kept_.begin(); kept != kept_.end(); ++kept) {
            if (kept->first != path || !facts || !((*kept->second).facts == *facts)) continue;
            kept_.splice(kept_.begin(), kept_, kept);
            return kept_.front().second;
        }
        auto file = std::make_shared<const ReadFile>(readSettledFile(path));
        if (!file->picture.error.empty()) return file;
        kept_.emplace_front(path, file);
        if (kept_.size() > kMost) kept_.pop_back();
        return file;
    }

  private:
    static constexpr std::size_t kMost = 2;
    std::mutex mutex_;
    std::list<std::pair<std::string, std::shared_ptr<const ReadFile>>> kept_;
};

/// A picture on its way through the stages, one of which has it at a time.
struct PictureInWork {
    JobResult result;
    Clock::time_point start = Clock::now();
    ReadFile foreground;
    std::shared_ptr<const ReadFile> background;
    MadePicture made;

    bool failed() const { return !result.reason.empty(); }
    void fail(const std::string& reason, bool lasting) {
        if (failed()) return;
        result.reason = reason;
        result.lasting = lasting;
    }
};

class Stages {
  public:
    Stages(PictureMaker& maker, const PipelineTasks& tasks) : maker_(maker), tasks_(tasks) {}

    /// The next job; null at the end. `finish` takes it back.
    PictureInWork* take() {
        handOver.pass();
        std::optional<BatchJob> job = tasks_.next();
        handOver.pass();
        if (!job) return nullptr;
        std::lock_guard lock(mutex_);
        PictureInWork& hand = hands_.emplace_back();
        hand.result.job = std::move(*job);
        return &hand;
    }

    void decode(PictureInWork& hand) {
        const BatchJob& job = hand.result.job;
        std::string problem;
        hand.result.recipe = maker_.recipeOf(job, problem);
        const std::string background = maker_.backgroundOf(job, problem);
        if (!problem.empty()) return hand.fail(problem, false);
        hand.foreground = readSettledFile(job.foreground);
        use(hand, hand.foreground, job.foreground);
        if (hand.failed()) return;
        hand.background = backgrounds_.read(background);
        use(hand, *hand.background, background);
    }

    void key(PictureInWork& hand) {
        hand.made = maker_.make(hand.result.job, hand.foreground.picture, hand.background->picture);
        if (!hand.made.problem.empty()) hand.fail(hand.made.problem, false);
        hand.foreground = ReadFile();
        hand.background.reset();
    }

    void encode(PictureInWork& hand) {
        const BatchJob& job = hand.result.job;
        MadePicture& made = hand.made;
        hand.result.warnings = std::move(made.warnings);
        hand.result.judgement = std::move(made.judgement);
        std::string problem = tasks_.beforeWrite ? tasks_.beforeWrite(job) : std::string();
        hand.result.diskFull = problem == kDiskFull;
        if (!problem.empty()) return hand.fail(problem, false);
        makeFolders(fs::path(job.out).parent_path().string());
        do {
            problem = writePicture(job.out,
                                   {made.pixels.data(), made.width, made.height, job.fileType, made.dpi, made.exif});
        } while (problem == kDiskFull && tasks_.waitForRoom && tasks_.waitForRoom());
        hand.result.diskFull = problem == kDiskFull;
        if (!problem.empty()) return hand.fail(problem, false);
        hand.result.width = made.width;
        hand.result.height = made.height;
        hand.result.incomplete = !made.leftOut.empty();
        hand.fail(made.leftOut, false);
    }

    void finish(PictureInWork& hand) {
        JobResult& result = hand.result;
        if (!hand.failed()) result.status = JobResult::Status::done;
        result.seconds = std::chrono::duration<double>(Clock::now() - hand.start).count();
        hand.made = MadePicture();
        std::lock_guard lock(mutex_);
        tasks_.finished(std::move(result));
        hands_.remove_if([&hand](const PictureInWork& other) { return &other == &hand; });
    }

    HandOver handOver;  ///< between all that work for the pipeline

  private:
    static void use(PictureInWork& hand, const ReadFile& file, const std::string& path) {
        hand.result.inputs.push_back({file.facts, file.digest});
        if (file.picture.error.empty()) return;
        hand.result.badFile = path;
        const bool settled = !file.missing && !file.changing;
        if (!settled) hand.result.status = JobResult::Status::gone;
        // What may not be opened now may be later, with nothing in it changed: it has no digest.
        hand.fail(fs::path(path).filename().string() + ": " + file.picture.error, settled && !file.digest.empty());
    }

    PictureMaker& maker_;
    const PipelineTasks& tasks_;
    Backgrounds backgrounds_;
    std::mutex mutex_;
    std::list<PictureInWork> hands_;
};

/// One stage for one job; a job that failed passes through. Whatever happens to one job, the others go on.
void work(Stages& stages, void (Stages::*stage)(PictureInWork&), PictureInWork& hand) {
    stages.handOver.pass();
    if (!hand.failed()) {
        try {
            (stages.*stage)(hand);
        } catch (const std::bad_alloc&) {
            hand.fail("there is not enough memory for it", false);
        } catch (const std::exception& error) {
            hand.fail(std::string("it cannot be made (") + error.what() + ")", false);
        }
    }
    stages.handOver.pass();
}

}  // namespace

void runPipeline(PictureMaker& maker, const PipelineTasks& tasks) {
    using oneapi::tbb::filter_mode;
    using oneapi::tbb::make_filter;
    Stages stages(maker, tasks);
    const auto take =
        make_filter<void, PictureInWork*>(filter_mode::serial_in_order, [&](oneapi::tbb::flow_control& flow) {
            PictureInWork* hand = stages.take();
            if (!hand) flow.stop();
            return hand;
        });
    const auto decode = make_filter<PictureInWork*, PictureInWork*>(filter_mode::parallel, [&](PictureInWork* hand) {
        work(stages, &Stages::decode, *hand);
        return hand;
    });
    // One at a time: keying alone keeps all cores busy, and the random numbers of a picture follow one another.
    const auto key =
        make_filter<PictureInWork*, PictureInWork*>(filter_mode::serial_in_order, [&](PictureInWork* hand) {
            work(stages, &Stages::key, *hand);
            return hand;
        });
    const auto encode = make_filter<PictureInWork*, void>(filter_mode::parallel, [&](PictureInWork* hand) {
        work(stages, &Stages::encode, *hand);
        stages.finish(*hand);
        stages.handOver.pass();
    });
    stages.handOver.pass();
    oneapi::tbb::parallel_pipeline(static_cast<std::size_t>(std::max(tasks.inHand, 1)), take & decode & key & encode);
    stages.handOver.pass();
}

}  // namespace tavrin
