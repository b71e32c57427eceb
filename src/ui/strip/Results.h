#pragma once

#include <map>
#include <optional>

#include <QObject>

#include "pipeline/CombineThread.h"
#include "session/SidePictures.h"

namespace tavrin {

/// Pictures with the key that are made while nothing else is to do: portraits of the strip as they would be with the
/// present settings, the next ones at the size of a preview, the present one over other backgrounds and with other
/// looks.
class Results : public QObject {
    Q_OBJECT

  public:
    explicit Results(const SystemInfo& info, QObject* parent = nullptr);

    /// The full picture stands: from now on pictures are made like it.
    void follow(CombineThread& loop);
    /// Portraits that are opened are placed around their subject.
    void setFramed(bool framed) { isFramed_ = framed; }

    /// What is wanted, the first one first: small pictures of portraits, previews of portraits, small pictures of the
    /// present portrait over backgrounds. What was wanted before and is not begun is forgotten.
    void wantPortraits(const std::vector<std::string>& portraits, int side);
    void wantNext(const std::vector<std::string>& portraits);
    void wantBackgrounds(const std::vector<std::string>& backgrounds, int side);
    /// The present portrait with each of these looks, as small pictures, before everything else.
    void wantLooks(const std::vector<SettingValues>& looks, int side);

    /// Portraits that are not open were given other settings.
    void forget();

    /// The preview that the loop will make of a portrait when that is opened now; nothing when it is not known.
    std::optional<QImage> previewOf(const std::string& portrait) const;

  signals:
    /// Settings are other ones: what was made of other portraits, and of other backgrounds, no longer holds.
    void portraitsChanged();
    void backgroundsChanged();
    /// The same of looks.
    void looksChanged();
    void portraitMade(const std::string& portrait, const QImage& picture);
    void backgroundMade(const std::string& background, const QImage& picture, const QString& problem);
    void lookMade(const SideWish& wish, const QImage& picture, const QString& missing);

  private:
    void takeScene(Scene scene);
    void take(const SidePictures::Made& made);
    void tellWishes();

    const SystemInfo& info_;
    bool isFramed_ = false, hasScene_ = false;
    std::uint64_t number_ = 0;
    SettingValues all_, look_, place_;  // what looks, other portraits and other backgrounds depend on
    std::vector<SideWish> looks_, portraits_, backgrounds_;
    std::vector<std::string> next_;
    std::map<std::string, QImage> previews_;
    SidePictures maker_;  // the last, so that it ends first
};

}  // namespace tavrin
