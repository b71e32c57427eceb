#include "ui/frame/PictureCommands.h"

#include <QCoreApplication>

namespace tavrin {

namespace {

using Kind = Command::Kind;

QString say(const char* text) {
    return QCoreApplication::translate("PictureCommands", text);
}

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
        {"ShowOriginal", "|&View", say("Before (hold the key)"), say("The portrait as it was taken"), "",
         QKeySequence(Qt::Key_B), finished, [&tools](bool on) { tools.showOriginal(on); }, Kind::held},
        {"ShowSplit",
         "&View",
         say("&Before | After"),
         say("A line to drag across the picture: the portrait on its left, the result on its right"),
         "",
         QKeySequence(Qt::Key_D),
         {},
         [&tools](bool on) { tools.showSplit(on); },
         Kind::checked},
        {"ShowAlpha",
         "&View",
         say("&Alpha"),
         say("What the key leaves of the portrait: dark stays, light goes"),
         "",
         QKeySequence(Qt::Key_A),
         {},
         [&tools](bool on) { tools.showAlpha(on); },
         Kind::checked},
        {"ShowScreen",
         "&View",
         say("S&creen"),
         say("The colour that the key takes as screen, over the whole picture"),
         "",
         QKeySequence(Qt::Key_C),
         {},
         setting(binder, "combined.bShowSelectedAreas", say("Screen")),
         Kind::checked,
         [&info] { return info.pCombinedBitmapInfo->bShowSelectedAreas.load(); }},
        {"ShowGuard", "&View", say("&Guard"), say("What the green guard protects; clothes must be protected for it"),
         "", QKeySequence(Qt::Key_G), [&info] { return info.iGreenProtectMode != 0; },
         setting(binder, "bShowGreenProtection", say("Guard")), Kind::checked,
         [&info] { return info.iGreenProtectMode != 0 && info.bShowGreenProtection; }},
        {"AskPicture",
         "&View",
         say("As&k"),
         say("A click on the picture tells how its pixel came about"),
         "",
         QKeySequence(Qt::Key_I),
         {},
         [&tools](bool on) { tools.ask(on); },
         Kind::checked},
    };
}

}  // namespace tavrin
