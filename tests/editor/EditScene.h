#pragma once

#include <gtest/gtest.h>

#include "editor/Editor.h"
#include "key/KeyScene.h"
#include "support/TestData.h"

namespace tavrin::test {

/// An editor on a scene whose screen is level: screen (40, 200, 60). One point of the view is one pixel, and a click
/// is meant in pixels from the top.
struct EditScene : KeyScene {
    EditScene(int width, int height, Pixel front = {40, 200, 60, 255}, Pixel back = {90, 110, 70, 255})
        : KeyScene(width, height, front, back), editor(info, folder.path()) {
        info.iBaseRedArray.fill(40.0);
        info.iBaseGreenArray.fill(200.0);
        info.iBaseBlueArray.fill(60.0);
    }

    void enter() { ASSERT_TRUE(editor.EnterEditorMode().isEmpty()); }
    EditedRows live(const EditItem& item) { return editor.apply(item, EditOrigin::live); }
    void choose(char key) { live({kBrushChosen, key}); }
    /// Slider, radius, hardness and transparency of the active tool, 0 to 100.
    void sliders(int slider, int radius, int hardness = 100, int transparency = 100) {
        live({kBrushSliders, slider, radius, hardness, transparency});
    }
    void press(int x, int y) { live({kMouseDown, x, height - y}); }
    void drag(int x, int y) { live({kMouseDragged, x, height - y}); }
    void release() { live({kMouseUp}); }
    void click(int x, int y) {
        press(x, y);
        release();
    }
    Pixel& out(int x = 0, int y = 0) { return at(combined, x, y); }

    /// Enters with a tool of one pixel and clicks at (0, 0).
    Pixel touchFirst(char key, int slider = 50) {
        enter();
        choose(key);
        sliders(slider, 0);
        click(0, 0);
        return out();
    }

    TempFolder folder;
    Editor editor;
};

}  // namespace tavrin::test
