#include "session/RecipeKeeper.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include <QLockFile>
#include <QUuid>

#include "core/files/Places.h"
#include "session/RecipeStore.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr const char* kEnd = ".recipe";

/// Held by the program that writes a recipe, or that asks its user about one. The end of its process frees it.
std::unique_ptr<QLockFile> holdOf(const std::string& file) {
    auto hold = std::make_unique<QLockFile>(QString::fromStdString(file + ".held"));
    hold->setStaleLockTime(0);
    return hold;
}

}  // namespace

void LeftRecipe::remove() {
    std::error_code ignored;
    fs::remove(file, ignored);
    hold.reset();
}

std::vector<LeftRecipe> leftRecipes() {
    std::vector<std::pair<fs::file_time_type, LeftRecipe>> found;
    std::error_code failed;
    for (fs::directory_iterator entry(Places::current().recoveryFolder(), failed), end; !failed && entry != end;
         entry.increment(failed)) {
        if (entry->path().extension() != kEnd) continue;
        const std::string file = entry->path().string();
        std::shared_ptr<QLockFile> hold = holdOf(file);
        if (!hold->tryLock(0)) continue;
        std::error_code ignored;
        const auto time = entry->last_write_time(ignored);
        if (std::optional<Recipe> recipe = readRecipeFile(file))
            found.emplace_back(time, LeftRecipe{file, std::move(*recipe), std::move(hold)});
    }
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<LeftRecipe> left;
    for (auto& [time, recipe] : found)
        left.push_back(std::move(recipe));
    return left;
}

RecipeKeeper::RecipeKeeper() {
    pool_.setMaxThreadCount(1);
    std::error_code ignored;
    fs::create_directories(Places::current().recoveryFolder(), ignored);
    file_ = Places::current().recoveryFolder() + QUuid::createUuid().toString(QUuid::Id128).toStdString() + kEnd;
    hold_ = holdOf(file_);
    hold_->tryLock(0);
}

RecipeKeeper::~RecipeKeeper() {
    wait();
}

void RecipeKeeper::keep(Recipe recipe, std::optional<LeftRecipe> instead) {
    {
        const std::lock_guard lock(mutex_);
        latest_ = std::move(recipe);
        if (instead) instead_.push_back(std::move(*instead));
    }
    pool_.start([this] { writeLatest(); });
}

void RecipeKeeper::writeLatest() {
    std::optional<Recipe> recipe;
    std::vector<LeftRecipe> instead;
    {
        const std::lock_guard lock(mutex_);
        recipe.swap(latest_);
        instead.swap(instead_);
    }
    if (!recipe) return;
    std::string problem = writeWhole(file_, bytesOf(*recipe));
    if (problem.empty()) {
        for (LeftRecipe& left : instead)
            left.remove();
    }
    const std::lock_guard lock(mutex_);
    problem_ = std::move(problem);
}

void RecipeKeeper::keepPortrait(std::string portrait, Recipe recipe) {
    pool_.start([this, portrait = std::move(portrait), recipe = std::move(recipe)] {
        std::string problem = saveRecipe(portrait, recipe);
        const std::lock_guard lock(mutex_);
        problem_ = std::move(problem);
    });
}

void RecipeKeeper::wait() {
    pool_.waitForDone();
    const std::lock_guard lock(mutex_);  // which the last job held: an order that the thread checker sees
}

void RecipeKeeper::forget() {
    wait();
    std::error_code ignored;
    fs::remove(file_, ignored);
}

std::string RecipeKeeper::takeProblem() {
    const std::lock_guard lock(mutex_);
    return std::exchange(problem_, {});
}

}  // namespace tavrin
