#pragma once

#include <memory>
#include <vector>

#include <QTimer>

#include "ui/bind/Binder.h"
#include "ui/tiles/Tile.h"

namespace tavrin {

/// The looks of a set as tiles, a few beside each other. A click takes a look as one step; those that the present
/// settings have are marked. The arrow keys go from tile to tile.
class TileRow : public QWidget {
    Q_OBJECT

  public:
    TileRow(TileSet set, Binder& binder, QWidget* parent = nullptr);

    /// The row of each set that stands in a group.
    static std::vector<QWidget*> rowsOf(std::string_view group, Binder& binder);

    const std::vector<Tile*>& tiles() const { return tiles_; }
    /// Works out what each look would change of the present settings.
    void refresh();

  signals:
    /// A tile is seen and has no picture, or an old one; or the row is no longer seen.
    void wanted();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void take(const TileLook& look);
    QWidget* neighbour(std::size_t tile, int key) const;

    const TileSet set_;
    Binder& binder_;
    std::size_t columns_;
    std::vector<Tile*> tiles_;
    std::unique_ptr<SystemInfo> scratch_;
    QTimer soon_;  // many changes of a drag are one
};

}  // namespace tavrin
