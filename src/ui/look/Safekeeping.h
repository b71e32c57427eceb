#pragma once

#include <atomic>
#include <optional>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "pipeline/CombineThread.h"
#include "session/RecipeKeeper.h"

namespace tavrin {

/// Sees to it that no work of a person is lost: the present recipe is on the disk within half a second of a change,
/// every portrait gets its own recipe and history back when it is opened again, and what a killed program left can
/// be taken up.
class Safekeeping : public QObject {
    Q_OBJECT

  public:
    Safekeeping(SettingEditor& editor, CombineThread& loop, QObject* parent = nullptr);

    /// A person opened something.
    void touch();
    /// A person changed something, which the portrait at hand gets back when it is opened again.
    void noteWork();
    /// The loop may have changed something by itself, which counts once a person did.
    void look();

    /// The strokes of the airbrush on the portrait at hand, as the text of a file of edits.
    void noteEdits(std::string edits);
    /// Another portrait was opened, of which no strokes are known.
    void forgetEdits() { edits_.clear(); }

    /// Keeps the recipe of the portrait that is about to be left. Another state follows: nothing is kept meanwhile.
    void leavePortrait();
    /// @return what is known of a portrait that is about to be opened
    std::optional<Recipe> knownOf(const QString& portrait) const;
    /// Gives the state a recipe, on the loop's thread, and then the editor its history. `tookUp` follows, unless
    /// something else was opened meanwhile.
    void takeUp(Recipe recipe, std::optional<LeftRecipe> from = {});
    /// Pastes a look on other portraits, off the main thread; `pasted` follows, and the editor has a step for it.
    void pasteOn(std::vector<std::string> portraits, const QString& label, const SettingValues& look);
    /// Ends that with the next portrait; those that have the look are the step.
    void stopPasting() { stopsPasting_ = true; }
    /// A background was opened, perhaps before the loop has given the state a recipe: it holds all the same.
    void chooseBackground(const std::string& path);
    /// After a state was given to the loop for opening: from then on its settings are those to keep.
    void waitForState();

    /// What is in force from now on is no work of a person, such as the alternatives of a gallery: the recipe that is
    /// kept stays that of before, until `goOn`.
    void pause();
    void goOn() { --underWay_; }

    /// The program is ended from outside: on return the present recipe is on the disk, for the next start to offer.
    void keepNow();
    /// The program ends as its user wants it.
    void endWell();

  signals:
    void tookUp(const QString& problems);
    /// What was taken up had strokes of the airbrush, as the text of a file of edits.
    void tookUpEdits(const std::string& edits);
    void pasteBegun(std::size_t portraits);
    /// While it lasts, from another thread: so many portraits have been looked at.
    void pasting(std::size_t portraits);
    void pasted(std::size_t portraits, const QString& problems);
    void failed(const QString& line, const QString& reason);

  private:
    void keep();
    Recipe present() const;
    void finishTaking(Recipe recipe, std::optional<LeftRecipe> from, const QString& problems);

    SettingEditor& editor_;
    CombineThread& loop_;
    RecipeKeeper keeper_;
    QTimer timer_;
    QElapsedTimer sinceKept_;
    std::atomic<bool> stopsPasting_ = false;
    std::atomic<int> opened_ = 0;  ///< counts what was opened, so that an older job steps back
    int underWay_ = 0;             ///< jobs that may replace settings and lists
    bool touched_ = false;
    bool worked_ = false;  ///< on the portrait at hand, since its recipe was written
    std::string edits_;
    std::string background_;  ///< chosen while a recipe is under way
    std::optional<LeftRecipe> instead_;
};

}  // namespace tavrin
