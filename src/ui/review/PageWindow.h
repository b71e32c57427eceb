#pragma once

#include <QTimer>
#include <QWidget>

#include "ui/review/WebPages.h"

namespace tavrin {

/// A window for pages of this computer's files. Where no web engine is, the desktop's browser shows them, and what is
/// clicked there does not reach the program.
class PageWindow : public QWidget {
    Q_OBJECT

  public:
    /// @param id its name, @param calls what the pages ask for
    PageWindow(const char* id, const QString& title, PageCalls calls, QWidget* parent);

    /// Shows a page, in front of all windows.
    void showPage(const QString& path);
    /// Reads a page twice and shows it then, so that one of the same name as before never shows its old pictures.
    void showPageAnew(const QString& path);

  signals:
    /// One plain sentence about what became of it.
    void told(const QString& line);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool makeView(const QString& path);
    void takeLoaded();
    void bringUp();
    void placeOnScreen();

    PageCalls calls_;
    QWidget* view_ = nullptr;
    QString anew_;                ///< the page that is read twice
    bool bReloadWebview = false;  ///< that is still to be read again
    QTimer patience_;
};

}  // namespace tavrin
