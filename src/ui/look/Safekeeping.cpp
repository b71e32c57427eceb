#include "ui/look/Safekeeping.h"

#include <algorithm>
#include <utility>

#include "core/files/NameText.h"
#include "session/Looks.h"
#include "session/RecipeStore.h"
#include "session/Sources.h"

namespace tavrin {

namespace {

constexpr int kKeepEvery = 500, kTellEvery = 50;  // milliseconds
constexpr const char* kPortrait = "foreground.sSourceImageFullPath";

}  // namespace

Safekeeping::Safekeeping(SettingEditor& editor, CombineThread& loop, QObject* parent)
    : QObject(parent), editor_(editor), loop_(loop) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &Safekeeping::keep);
}

void Safekeeping::touch() {
    touched_ = true;
    look();
}

void Safekeeping::noteWork() {
    worked_ = true;
    touch();
}

void Safekeeping::look() {
    if (!touched_ || timer_.isActive()) return;
    const qint64 rest = sinceKept_.isValid() ? kKeepEvery - sinceKept_.elapsed() : 0;
    timer_.start(static_cast<int>(std::max<qint64>(rest, 0)));
}

void Safekeeping::keep() {
    if (underWay_ > 0) return timer_.start(kKeepEvery / 5);
    sinceKept_.start();
    if (const std::string problem = keeper_.takeProblem(); !problem.empty())
        emit failed(tr("The present settings cannot be kept for a next start."), QString::fromStdString(problem));
    keeper_.keep(present(), std::exchange(instead_, {}));
}

Recipe Safekeeping::present() const {
    Recipe recipe = presentRecipe(editor_);
    recipe.edits = edits_;
    return recipe;
}

void Safekeeping::noteEdits(std::string edits) {
    edits_ = std::move(edits);
    noteWork();
}

void Safekeeping::leavePortrait() {
    ++opened_;
    if (underWay_ > 0 || !std::exchange(worked_, false)) return;
    keeper_.keepPortrait(editor_.value(kPortrait), present());
}

std::optional<Recipe> Safekeeping::knownOf(const QString& portrait) const {
    const_cast<RecipeKeeper&>(keeper_).wait();  // it may be the one that was left just now
    return loadRecipe(nameOfText(portrait));
}

void Safekeeping::takeUp(Recipe recipe, std::optional<LeftRecipe> from) {
    const int mine = ++opened_;
    ++underWay_;
    background_.clear();
    edits_ = recipe.edits;
    editor_.forgetSteps();
    loop_.post([this, mine, recipe = std::move(recipe), from = std::move(from)] {
        const bool due = mine == opened_;
        const std::string problems = due ? useSettings(editor_.info(), recipe.settings) : "";
        QMetaObject::invokeMethod(
            this,
            [this, due, recipe, from, problems] {
                --underWay_;
                if (due) finishTaking(recipe, from, QString::fromStdString(problems));
            },
            Qt::QueuedConnection);
    });
}

/// Looks that were pasted meanwhile are steps like any other.
void Safekeeping::finishTaking(Recipe recipe, std::optional<LeftRecipe> from, const QString& problems) {
    editor_.setHistory(std::move(recipe.history));
    for (const auto& [label, settings] : recipe.pasted)
        takeLook(editor_, label, settings);
    if (!background_.empty()) openBackground(editor_.info(), background_);
    if (!recipe.pasted.empty() || !background_.empty()) editor_.info().StartUpdate();
    worked_ = !recipe.pasted.empty() || from || !background_.empty();
    instead_ = std::move(from);
    touch();
    emit tookUp(problems);
    if (!recipe.edits.empty()) emit tookUpEdits(recipe.edits);
}

void Safekeeping::pasteOn(std::vector<std::string> portraits, const QString& label, const SettingValues& look) {
    emit pasteBegun(portraits.size());
    const auto paste = std::make_shared<PortraitPaste>(std::move(portraits), label.toStdString(), look);
    stopsPasting_ = false;
    keeper_.run([this, paste, label] {
        QElapsedTimer since;
        since.start();
        const std::string problems = paste->paste([&](std::size_t done) {
            if (since.elapsed() > kTellEvery) {
                since.restart();
                emit pasting(done);
            }
            return !stopsPasting_;
        });
        QMetaObject::invokeMethod(
            this,
            [this, paste, label, problems] {
                editor_.beginStep(tr("%1 on %2 portraits").arg(label).arg(paste->changed()).toStdString());
                editor_.note({[this, paste] { keeper_.run([paste] { paste->takeBack(); }); },
                              [this, paste] { keeper_.run([paste] { paste->paste(); }); }});
                editor_.endStep();
                emit pasted(paste->changed(), QString::fromStdString(problems));
            },
            Qt::QueuedConnection);
    });
}

void Safekeeping::chooseBackground(const std::string& path) {
    worked_ = true;
    if (underWay_ > 0) background_ = path;
}

void Safekeeping::waitForState() {
    ++underWay_;
    loop_.post([this] {  // behind the opening
        QMetaObject::invokeMethod(
            this, [this] { --underWay_; }, Qt::QueuedConnection);
    });
}

void Safekeeping::pause() {
    if (timer_.isActive() && underWay_ == 0) {
        timer_.stop();
        keep();
    }
    ++underWay_;
}

void Safekeeping::keepNow() {
    if (!touched_ || underWay_ > 0) return keeper_.wait();
    leavePortrait();
    keep();
    keeper_.wait();
}

void Safekeeping::endWell() {
    leavePortrait();
    timer_.stop();
    touched_ = false;
    keeper_.forget();
    pruneRecipes();
}

}  // namespace tavrin
