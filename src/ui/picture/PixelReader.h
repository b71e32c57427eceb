#pragma once

#include <memory>
#include <optional>

#include <QObject>
#include <QPoint>

#include "pipeline/CombineThread.h"
#include "pipeline/PixelStory.h"

namespace tavrin {

/// Has the loop tell about pixels of the finished picture. Nothing waits: the answer comes between two passes, and of
/// pixels asked about meanwhile only the last one is told. Costs nothing while nobody asks.
class PixelReader : public QObject {
    Q_OBJECT

  public:
    PixelReader(SystemInfo& info, CombineThread& loop, QObject* parent);

    void ask(const QPoint& pixel);

  signals:
    void told(const PixelStory& story);
    /// No finished picture stands, or the pixel is none of it.
    void nothingToTell();

  private:
    void start();
    std::optional<PixelStory> read(const QPoint& pixel);
    void take(const std::optional<PixelStory>& story);

    SystemInfo& info_;
    CombineThread& loop_;
    std::unique_ptr<PixelProbe> probe_;  // the loop's
    QPoint wanted_;
    bool busy_ = false, again_ = false;
};

}  // namespace tavrin
