#pragma once

#include "ui/bind/GroupBox.h"

namespace tavrin {

/// The controls of the item that is selected (`iSelectedFontObject`): those of a text and those of a picture. They
/// are only shown where such an item is selected.
GroupBox* makeTextControls(Binder& binder, QWidget* parent);
GroupBox* makeImageControls(Binder& binder, QWidget* parent);

/// The item that is selected; null without one, also where a state has fewer.
const FontObject* selectedItem(const SystemInfo& info);

}  // namespace tavrin
