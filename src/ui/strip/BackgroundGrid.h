#pragma once

#include <QDialog>
#include <QTimer>

#include "ui/strip/PictureList.h"

class QLabel;
class QListView;

namespace tavrin {

class Strip;

/// The present portrait over every background of the strip's folder. What can be seen is made first, and closing it
/// stops what is not. It opens nothing itself: it says what is wanted.
class BackgroundGrid : public QDialog {
    Q_OBJECT

  public:
    BackgroundGrid(Strip& strip, QWidget* parent);

    PictureList& list() { return list_; }

  signals:
    void chosen(const QString& background);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void done(int result) override;

  private:
    void layOut();
    void follow();
    void fetch();
    void take(const std::string& background, const QImage& picture, const QString& problem);

    Strip& strip_;
    PictureList list_;
    QListView* view_;
    QLabel* count_;
    QTimer soon_;  // many changes are one
};

}  // namespace tavrin
