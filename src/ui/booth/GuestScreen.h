#pragma once

#include <QTimer>
#include <QWidget>

#include "browse/ThumbnailLoader.h"
#include "ui/strip/PictureList.h"

class QListView;
class QScreen;
class QToolButton;

namespace tavrin {

/// What the guests of the booth see and touch: their picture, large, and all backgrounds. It fills the second
/// display, where there is one. It has no menu and nothing closes it but the operator.
class GuestScreen : public QWidget {
    Q_OBJECT

  public:
    explicit GuestScreen(QWidget* parent = nullptr);

    /// Shows it away from the operator's display, or as a window where there is no other.
    void appear(const QScreen* operators);
    /// The operator takes it away.
    void leave();
    void showPicture(const QImage& picture);
    void setBackgrounds(std::vector<std::string> paths);
    /// Frames the background that was chosen, here or by the operator.
    void showChosen(const std::string& background) { list_.setPresent(background); }

  signals:
    void backgroundChosen(const QString& path);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    class Picture;
    QToolButton* makePager(const char* name, const QString& words, QChar arrow, int pages);
    void layOut();
    void fetch();

    Picture* picture_;
    PictureList list_;
    QListView* grid_;
    QTimer soon_;
    bool mayClose_ = false;
    ThumbnailLoader loader_;  // the last, so that it ends first
};

}  // namespace tavrin
