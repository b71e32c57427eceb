#include "ui/adjust/Rotation.h"

#include "ui/bind/Binding.h"

namespace tavrin {

namespace {

struct Turn {
    char key;
    const char* owner;  // "": the active layer
    const char* degrees;
};
constexpr Turn kTurns[] = {{'1', "foreground.", "0"},
                           {'2', "foreground.", "90"},
                           {'3', "foreground.", "270"},
                           {'4', "background.", "0"},
                           {'5', "background.", "90"},
                           {'6', "background.", "270"},
                           {'7', "", "0"},
                           {'8', "", "90"},
                           {'9', "", "180"},
                           {'a', "", "270"}};

}  // namespace

void clickedRotationRadiobutton(SettingEditor& editor, char key) {
    SystemInfo& info = editor.info();
    for (const auto& [turnKey, owner, degrees] : kTurns) {
        if (turnKey != key) continue;
        editor.set((*owner ? owner : ownerPrefix(info, Owner::active)) + std::string("fRotate"), degrees);
    }
    (info.iActiveBitmap == 0 ? info.pForegroundBitmapInfo : info.pBackgroundBitmapInfo)->bOrgFileChange = true;
}

}  // namespace tavrin
