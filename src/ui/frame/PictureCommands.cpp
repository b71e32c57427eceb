#include "ui/frame/PictureCommands.h"

namespace tavrin {

namespace {

using Kind = Command::Kind;

/// A view of the key that is a setting.
std::function<void(bool)> setting(Binder& binder, const char* name, const QString& label) {
    return [&binder, name, label](bool on) {
        binder.run(label, [&](SettingEditor& editor) { editor.set(name, on ? "1" : "0"); });
    };
}

}  // namespace

std::vector<Command> pictureCommands(PictureTools& tools, Binder& binder, const std::function<bool()>& finished) {
    SystemInfo& info = binder.editor().info();
    return {
        {"ShowOriginal", "|&View", PictureTools::tr("Before (hold the key)"),
         PictureTools::tr("The portrait as it was taken"), "", QKeySequence(Qt::Key_B), finished,
         [&tools](bool on) { tools.showOriginal(on); }, Kind::held},
        {"ShowSplit",
         "&View",
         PictureTools::tr("&Before | After"),
         PictureTools::tr("A line to drag across the picture: the portrait on its left, the result on its right"),
         "/split",
         QKeySequence(Qt::Key_D),
         {},
         [&tools](bool on) { tools.showSplit(on); },
         Kind::checked},
        {"ShowAlpha",
         "&View",
         PictureTools::tr("&Alpha"),
         PictureTools::tr("What the key leaves of the portrait: dark stays, light goes"),
         "/alpha",
         QKeySequence(Qt::Key_A),
         {},
         [&tools](bool on) { tools.showAlpha(on); },
         Kind::checked},
        {"ShowScreen",
         "&View",
         PictureTools::tr("S&creen"),
         PictureTools::tr("The colour that the key takes as screen, over the whole picture"),
         "/screen",
         QKeySequence(Qt::Key_C),
         {},
         setting(binder, "combined.bShowSelectedAreas", PictureTools::tr("Screen")),
         Kind::checked,
         [&info] { return info.pCombinedBitmapInfo->bShowSelectedAreas.load(); }},
        {"ShowGuard", "&View", PictureTools::tr("&Guard"),
         PictureTools::tr("What the green guard protects; clothes must be protected for it"), "/guard",
         QKeySequence(Qt::Key_G), [&info] { return info.iGreenProtectMode != 0; },
         setting(binder, "bShowGreenProtection", PictureTools::tr("Guard")), Kind::checked,
         [&info] { return info.iGreenProtectMode != 0 && info.bShowGreenProtection; }},
        {"AskPicture",
         "&View",
         PictureTools::tr("As&k"),
         PictureTools::tr("A click on the picture tells how its pixel came about"),
         "/ask",
         QKeySequence(Qt::Key_I),
         {},
         [&tools](bool on) { tools.ask(on); },
         Kind::checked},
    };
}

}  // namespace tavrin
