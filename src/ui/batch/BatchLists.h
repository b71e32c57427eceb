#pragma once

#include <QListWidget>
#include <QThreadPool>

#include "batch/BatchEngine.h"

namespace tavrin {

/// What a run will make, before it makes it.
class PlanList : public QListWidget {
    Q_OBJECT

  public:
    explicit PlanList(QWidget* parent = nullptr);

    /// Rows that are shown at most.
    static constexpr int kMost = 200;

    void show(const BatchOutlook& outlook, const QString& extension);
    /// A row for a picture that is told by its names alone.
    void add(const QString& portrait, const QString& picture);
    void begin() { clear(); }
};

/// The last pictures of a run, small, the newest first.
class LastPictures : public QListWidget {
    Q_OBJECT

  public:
    explicit LastPictures(QWidget* parent = nullptr);

    /// Reads it small, beside the main thread.
    void add(const QString& picture);

  private:
    QThreadPool readers_;  // goes first: it waits for what still runs
};

/// What could not be made, and why.
class FailureList : public QListWidget {
    Q_OBJECT

  public:
    explicit FailureList(QWidget* parent = nullptr);

    void add(const QString& what, const QString& reason);
};

}  // namespace tavrin
