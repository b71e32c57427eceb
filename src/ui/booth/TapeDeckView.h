#pragma once

#include <array>
#include <map>
#include <memory>
#include <set>

#include <QThreadPool>
#include <QTimer>
#include <QWidget>

#include "booth/NewPortraits.h"
#include "booth/TapeDeckFileSelector.h"
#include "browse/ThumbnailLoader.h"

class QLabel;
class QToolButton;

namespace tavrin {

/// What the controls of a film strip are called.
struct DeckNames {
    QString title;
    const char* name;           ///< what the names of its controls begin with
    const char *select, *push;  ///< the operations behind pictures and buttons
    QString emptyText;          ///< what stands there while no folder was chosen
};

/// The film strip of the booth as five pictures with captions, and five buttons like a tape deck's. It follows its
/// folder while it is seen, and reads files and folders beside the main thread.
class TapeDeckView : public QWidget {
    Q_OBJECT

  public:
    /// @param isServed tells whether there is a ticket of a file's stem
    TapeDeckView(const DeckNames& names, std::function<bool(const std::string& stem)> isServed,
                 QWidget* parent = nullptr);
    ~TapeDeckView() override;

    /// Another folder, "" for none; the same one stays as it is.
    void updateFolder(const std::string& folder);
    /// Whether the folder is followed.
    void setFollowing(bool follows);
    TapeDeckFileSelector& deck() { return deck_; }

  signals:
    /// A person chose the picture of a place.
    void chosen(const QString& path);
    /// Other pictures lie in the folder.
    void listed();
    void failed(const QString& line, const QString& details);

  private:
    void layOut(const DeckNames& names);
    QToolButton* makePlace(const DeckNames& names, int slot);
    QToolButton* makeTapeButton(const DeckNames& names, int button);
    void watch();
    void look();
    void takeNames(const std::string& folder, const std::vector<std::string>& names, const std::string& problem);
    DeckPicture pictureOf(const std::string& path);
    void takeThumbnail(const std::string& path, const Thumbnail& thumbnail);
    void show();

    std::array<QToolButton*, TapeDeckFileSelector::kSlots> places_{};
    std::array<QLabel*, TapeDeckFileSelector::kSlots> captions_{};
    QLabel* empty_ = nullptr;
    std::map<std::string, DeckPicture> pictures_;
    std::vector<std::string> wanted_;
    QTimer fetch_;
    bool follows_ = false, looksAgain_ = false;
    std::string toldProblem_;
    TapeDeckFileSelector deck_;
    ThumbnailLoader loader_;
    QThreadPool lister_;
    std::shared_ptr<NewPortraits> news_;
};

}  // namespace tavrin
