#pragma once

#include <QComboBox>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// The list of output sizes. A picture with a size of its own has an entry behind them, as long as that size is in
/// force.
class SizeBox : public QComboBox {
    Q_OBJECT

  public:
    explicit SizeBox(SystemInfo& info, QWidget* parent = nullptr);
    /// The list is another one.
    void reload();
    /// Shows the size that is in force.
    void updateComboBoxImageSize();

  signals:
    /// Another size was chosen.
    void sizeChosen();

  private:
    void comboBoxImageSizeChange(int index);

    SystemInfo& info_;
};

}  // namespace tavrin
