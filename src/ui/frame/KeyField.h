#pragma once

#include <QLineEdit>

namespace tavrin {

/// A field that takes the next key as it is pressed, with what is held beside it. Tab and Esc keep their meaning.
class KeyField : public QLineEdit {
    Q_OBJECT

  public:
    explicit KeyField(QWidget* parent = nullptr) : QLineEdit(parent) { setReadOnly(true); }

  signals:
    void pressed(QKeyCombination key);

  protected:
    bool event(QEvent* event) override;
};

}  // namespace tavrin
