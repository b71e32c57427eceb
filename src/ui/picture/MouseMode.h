#pragma once

#include <QWidget>

namespace tavrin {

/// What a drag on the picture does: move or scale, the portrait or the background.
class MouseMode : public QWidget {
    Q_OBJECT

  public:
    explicit MouseMode(QWidget* parent = nullptr);
    bool scales() const { return scales_; }
    bool background() const { return background_; }

  private:
    struct Button {
        const char* name;
        QString text, toolTip;
        bool* value;
        bool on;
    };
    void addPair(const Button& first, const Button& second);

    bool scales_ = false, background_ = false;
};

}  // namespace tavrin
