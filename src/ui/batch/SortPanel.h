#pragma once

#include <atomic>

#include <QThreadPool>
#include <QWidget>

#include "booth/ImageSorter.h"

class QLabel;
class QLineEdit;
class QToolButton;

namespace tavrin {

/// Splits a folder of photos into those that are upright and those that lie, beside the main thread.
class SortPanel : public QWidget {
    Q_OBJECT

  public:
    explicit SortPanel(QWidget* parent = nullptr);
    /// Ends a run after the photo in hand.
    ~SortPanel() override;

    void selectImagerSortFolder();
    /// The folder was chosen by other means.
    void setFolder(const QString& folder);
    void sortImagesInFolder();
    bool isRunning() const { return running_; }

  signals:
    void told(const QString& line);
    void failed(const QString& line, const QString& details);

  private:
    QToolButton* addButton(const char* name, const QString& text, const QString& toolTip);
    void showButtons();
    void showCounts(int landscape, int portrait);
    void end(const SortedImages& sorted);

    ImageSorter sorter_;  ///< of the thread while it runs
    QLineEdit* folder_;
    QLabel *all_, *landscape_, *portrait_;
    QToolButton *choose_, *sort_, *stop_;
    std::atomic<bool> stopWanted_ = false;
    bool running_ = false;
    QThreadPool pool_;  // goes first: it waits for what still runs
};

}  // namespace tavrin
