#pragma once

#include <functional>

#include <QDialog>

class QFormLayout;
class QLabel;

namespace tavrin {

class LengthField;

/// A small dialog of fields that stays open until its entry makes sense.
class EntryDialog : public QDialog {
    Q_OBJECT

  public:
    /// @param handler of the button that ends it
    EntryDialog(const char* name, const char* handler, const QString& title, QWidget* parent);

    LengthField* addLength(const char* name, const QString& label, const QString& toolTip);
    void addRow(const QString& label, QWidget* field);
    /// @param take takes the entry, or says why not
    void run(std::function<QString()> take);

  private:
    void tell(const QString& line);

    QFormLayout* form_;
    QLabel* told_;
    std::function<QString()> take_;
};

}  // namespace tavrin
