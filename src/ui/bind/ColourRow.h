#pragma once

#include <QColor>
#include <QWidget>

#include "ui/bind/Binder.h"

class QToolButton;

namespace tavrin {

/// A colour that three settings hold, from 0 to `most` each. Texts are translated in the context "Panel".
struct ColourSetting {
    const char* control;             ///< name of the button that shows the colour and opens the dialog
    const char* handler;             ///< operations of both
    const char *red, *green, *blue;  ///< the settings
    const char *label, *toolTip, *dialogTitle;
    double most = 255.0;
    Owner owner = Owner::state;
};

/// Shows a colour and lets it be chosen; the picture follows while the dialog is open. What a dialog did is one step.
class ColourRow : public QWidget {
    Q_OBJECT

  public:
    ColourRow(const ColourSetting& setting, Binder& binder, QWidget* parent = nullptr);

    QColor colour() const;
    void choose();

  private:
    void set(const QColor& colour);
    void takeBack();
    std::string name(const char* setting) const;
    void refresh();

    const ColourSetting& setting_;
    Binder& binder_;
    QToolButton* button_;
    std::uint64_t step_ = 0;  ///< what the dialog has made so far; 0: nothing
};

}  // namespace tavrin
