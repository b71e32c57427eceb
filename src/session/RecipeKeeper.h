#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <QThreadPool>

#include "session/Recipe.h"

class QLockFile;

namespace tavrin {

/// A recipe that a program left which was killed, or was ended from outside. While one of these exists no other
/// program finds it.
struct LeftRecipe {
    std::string file;
    Recipe recipe;
    std::shared_ptr<QLockFile> hold;

    /// Removes it: the user has answered.
    void remove();
};

/// What was left in this account, the newest first.
std::vector<LeftRecipe> leftRecipes();

/// Keeps recipes on the disk, on a thread of its own: the present one in a file of this process, and those of
/// portraits. Nothing waits for the disk but `wait`, `forget` and the end. For one thread.
class RecipeKeeper {
  public:
    RecipeKeeper();
    /// The present recipe stays on the disk, for the next start, unless it was forgotten.
    ~RecipeKeeper();

    /// Keeps the present recipe; a newer one takes the place of one that still waits for the disk.
    /// @param instead removed when it is kept: what it was taken from
    void keep(Recipe recipe, std::optional<LeftRecipe> instead = {});
    void keepPortrait(std::string portrait, Recipe recipe);
    /// Runs other work with recipes in turn with the keeping.
    void run(std::function<void()> work) { pool_.start(std::move(work)); }
    /// Until all is on the disk.
    void wait();
    /// The program ends as it should: nothing is left for the next start.
    void forget();
    /// Why the last keeping failed, once; "" when it did not.
    std::string takeProblem();

    const std::string& file() const { return file_; }

  private:
    void writeLatest();

    std::string file_;
    std::unique_ptr<QLockFile> hold_;
    std::mutex mutex_;  // of what follows
    std::optional<Recipe> latest_;
    std::vector<LeftRecipe> instead_;
    std::string problem_;
    QThreadPool pool_;
};

}  // namespace tavrin
