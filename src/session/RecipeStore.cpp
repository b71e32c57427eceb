#include "session/RecipeStore.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include <QCryptographicHash>

#include "core/Log.h"
#include "core/files/AtomicFile.h"
#include "core/files/Places.h"
#include "formats/SafeFile.h"

namespace fs = std::filesystem;

namespace tavrin {

std::string recipeFile(const std::string& portrait) {
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(portrait, failed);
    if (failed) return "";
    const auto time = fs::last_write_time(portrait, failed).time_since_epoch().count();
    if (failed) return "";
    const std::string known = portrait + '\n' + std::to_string(size) + '\n' + std::to_string(time);
    const QByteArray digest =
        QCryptographicHash::hash(QByteArray::fromStdString(known), QCryptographicHash::Sha1).toHex();
    return Places::current().recipesFolder() + digest.toStdString() + ".json";
}

std::string writeWhole(const std::string& path, const std::string& bytes) {
    std::error_code failed;
    fs::create_directories(fs::path(path).parent_path(), failed);
    AtomicFile file(path);
    file.write(bytes.data(), bytes.size());
    file.commit();
    return file.error();
}

std::optional<Recipe> readRecipeFile(const std::string& path) {
    if (path.empty()) return {};
    const FileBytes file = readSafeFile(path, kMostBytes);
    if (file.missing) return {};
    if (!file.problem.empty()) {
        logError(file.problem);
        return {};
    }
    std::optional<Recipe> recipe = recipeOf(file.bytes);
    if (!recipe) logError(path + " is no recipe; it is kept as " + setDamagedFileAside(path) + ".");
    return recipe;
}

std::optional<Recipe> loadRecipe(const std::string& portrait) {
    return readRecipeFile(recipeFile(portrait));
}

std::string saveRecipe(const std::string& portrait, const Recipe& recipe) {
    const std::string path = recipeFile(portrait);
    if (path.empty()) return "There is no file " + portrait + ".";
    return writeWhole(path, bytesOf(recipe));
}

void pruneRecipes(std::size_t most) {
    std::vector<std::pair<fs::file_time_type, fs::path>> files;
    std::error_code failed;
    for (fs::directory_iterator entry(Places::current().recipesFolder(), failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code ignored;
        files.emplace_back(entry->last_write_time(ignored), entry->path());
    }
    if (files.size() <= most) return;
    std::sort(files.begin(), files.end());
    files.resize(files.size() - most);
    for (const auto& [time, path] : files)
        fs::remove(path, failed);
}

}  // namespace tavrin
