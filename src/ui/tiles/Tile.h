#pragma once

#include <QPixmap>
#include <QToolButton>

#include "ui/tiles/TileSets.h"

namespace tavrin {

/// A look as a small picture of the present portrait with its name below, which is pressed to take it. Checked: it is
/// in force.
class Tile : public QToolButton {
    Q_OBJECT

  public:
    /// Most that a picture takes each way, in points; a narrow tile makes it smaller.
    static constexpr int kPictureSide = 74;

    explicit Tile(const TileLook& look, QWidget* parent);

    const TileLook& look() const { return look_; }
    /// What a look is called in the window.
    static QString labelOf(const TileLook& look);
    /// What it would change of the present settings.
    const SettingValues& changes() const { return changes_; }
    void setChanges(SettingValues changes);

    /// Its picture is that of other settings or another portrait. It stays, faded, until the new one is there.
    void distrust();
    bool isStale() const { return stale_; }
    /// @param picture null where it cannot be made: the name alone is shown
    /// @param missing why a part of the picture is not there, "" for nothing
    void show(const QImage& picture, const QString& missing);
    const QImage& picture() const { return picture_; }
    const QString& missing() const { return missing_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    /// It is seen and has no picture, or an old one.
    void wanted();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QRectF paintPicture(QPainter& painter, const QRectF& box) const;
    void paintState(QPainter& painter, const QRectF& shown) const;

    const TileLook& look_;
    SettingValues changes_;
    QImage picture_;
    QString missing_;
    bool stale_ = true;
};

}  // namespace tavrin
