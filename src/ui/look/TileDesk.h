#pragma once

#include <map>

#include <QTimer>

#include "ui/strip/Results.h"
#include "ui/tiles/TileRow.h"

namespace tavrin {

/// Has the pictures of tiles made: of those that can be seen, in idle moments, and anew when the picture has changed.
class TileDesk : public QObject {
    Q_OBJECT

  public:
    TileDesk(Results& results, const QList<TileRow*>& rows, QObject* parent = nullptr);

  private:
    void distrust();
    void fetch();
    void take(const SideWish& wish, const QImage& picture, const QString& missing);

    Results& results_;
    const QList<TileRow*> rows_;
    std::map<const TileRow*, int> since_;  // of rows in view, by the turn in which they came there
    int turn_ = 0;
    QTimer soon_;  // many changes are one
};

}  // namespace tavrin
