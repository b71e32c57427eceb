#pragma once

#include <QButtonGroup>
#include <QWidget>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// What a drag on the picture does: moves or scales the portrait, the background, or a selected text or picture. The
/// choice is the state's `iEventMouseMode`.
class MouseMode : public QWidget {
    Q_OBJECT

  public:
    static constexpr int kPortrait = 1, kBackground = 2, kText = 3;

    explicit MouseMode(SystemInfo& info, QWidget* parent = nullptr);
    int iEventMouseAction() const { return action_.checkedId(); }  ///< 1 move, 2 scale
    int iEventMouseTarget() const { return target_.checkedId(); }
    /// 1 and 2 move and scale the portrait, 3 and 4 the background, 5 and 6 a text.
    int iEventMouseMode() const { return 2 * (iEventMouseTarget() - 1) + iEventMouseAction(); }

  private:
    struct Button {
        const char *name, *key;
        QString text, toolTip;
    };
    void addButton(QButtonGroup& group, const Button& entry);

    QButtonGroup action_, target_;
};

}  // namespace tavrin
