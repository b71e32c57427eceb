#pragma once

#include <string>

#include "ui/bind/PanelPage.h"

class QListWidget;
class QToolButton;

namespace tavrin {

/// Words and pictures on the picture: three labels, the list of items, and the controls of the selected one.
class TextPage : public PanelPage {
    Q_OBJECT

  public:
    explicit TextPage(Binder& binder, QWidget* parent = nullptr);

    void addText();
    /// Adds a picture in the middle, a third as wide as the whole. One that cannot be read is told and not added.
    void addImage(const QString& path);
    /// Gives the selected picture another file, which fills the width of the one before.
    void replaceImage(const QString& path);
    /// Selects an item, shows its controls and asks to be turned to.
    void EditTextImage(int row);
    /// Selects an item; -1: none.
    void select(int row);
    /// Takes back what was done to the selected item since it was selected; one that was added then goes.
    void cancelTextDialog();

  signals:
    void wanted(const QWidget* item);
    /// The selection of the list was changed by a person.
    void selected(int row);

  private:
    /// The selected item as it was when it was selected.
    struct Visit {
        int row = -1;
        bool isNew = false;
        FontObject before = {};
        std::uint64_t begun = 0;  ///< the last step in force then
    };

    QWidget* makeList();
    QWidget* makeButtons();
    void askForImage(const QString& title, void (TextPage::*take)(const QString& path));
    bool readImage(const QString& path, FontObject& item);
    void add(const FontObject& item);
    void changedSelection();
    void saveFontObject(bool isNew);
    bool isVisitOver() const;
    void move(int by);
    void refresh();

    Binder& binder_;
    QListWidget* list_;
    QToolButton *edit_ = nullptr, *delete_ = nullptr, *earlier_ = nullptr, *later_ = nullptr, *cancel_ = nullptr;
    Visit visit_;
    GroupBox *textControls_ = nullptr, *imageControls_ = nullptr;
};

}  // namespace tavrin
