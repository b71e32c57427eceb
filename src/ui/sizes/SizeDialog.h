#pragma once

#include "session/OwnSizes.h"
#include "ui/sizes/EntryDialog.h"

class QCheckBox;
class QComboBox;

namespace tavrin {

/// Asks for an output size of the user's own, a new one or another form of one that is there.
class SizeDialog : public EntryDialog {
    Q_OBJECT

  public:
    /// @param index of the entry that is edited; -1 for a new one
    SizeDialog(const SystemInfo& info, std::int32_t index, QWidget* parent = nullptr);

    SizeEntry entry() const;

  signals:
    /// The entry makes a size.
    void entered(std::int32_t index, const SizeEntry& entry);

  private:
    void addUnit(bool centimetres);
    void addChoices(const SystemInfo& info, const SizeEntry& entry);
    void updateImageSizeName();

    const std::int32_t iImageSizeSelected_;
    LengthField *width_, *height_;
    QCheckBox* centimetres_;
    QComboBox *dpi_, *page_;
    QLabel* name_;
};

}  // namespace tavrin
