#include "ui/frame/ChosenKeys.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

constexpr const char* kGroup = "keys";

QString words(const char* text) {
    return QCoreApplication::translate("ShortcutDialog", text);
}

// Windows are moved, closed and exchanged with these, and consoles are reached.
bool isOfTheDesktop(QKeyCombination key) {
    const Qt::KeyboardModifiers held = key.keyboardModifiers();
    const bool isFunction = key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35;
    if (held & Qt::MetaModifier) return true;
    if ((held & Qt::ControlModifier) && (held & Qt::AltModifier)) return true;
    if (key.key() == Qt::Key_Print || key.key() == Qt::Key_SysReq) return true;
    if (isFunction) return held & (Qt::AltModifier | Qt::ControlModifier);
    return (held & Qt::AltModifier) && (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab ||
                                        key.key() == Qt::Key_Space || key.key() == Qt::Key_Escape);
}

// What every list, field and slider understands.
bool isOfControls(QKeyCombination key) {
    constexpr Qt::Key kTheirs[] = {Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Up,     Qt::Key_Down, Qt::Key_Return,
                                   Qt::Key_Enter,  Qt::Key_Escape,    Qt::Key_Space,  Qt::Key_Tab,  Qt::Key_Backtab,
                                   Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_Home, Qt::Key_End};
    const Qt::KeyboardModifiers held = key.keyboardModifiers() & ~Qt::KeypadModifier;
    if (held == Qt::ControlModifier) {  // of text
        constexpr Qt::Key kOfText[] = {Qt::Key_C, Qt::Key_V, Qt::Key_X};
        if (std::ranges::find(kOfText, key.key()) != std::end(kOfText)) return true;
    }
    return std::ranges::find(kTheirs, key.key()) != std::end(kTheirs);
}

}  // namespace

ChosenKeys keptKeys() {
    QSettings settings = windowSettings();
    settings.beginGroup(kGroup);
    ChosenKeys keys;
    for (const QString& id : settings.childKeys())
        keys[id] = QKeySequence(settings.value(id).toString(), QKeySequence::PortableText);
    return keys;
}

void keepKeys(const ChosenKeys& keys) {
    QSettings settings = windowSettings();
    settings.beginGroup(kGroup);
    settings.remove(QString());
    for (const auto& [id, key] : keys)
        settings.setValue(id, key.toString(QKeySequence::PortableText));
}

QString whyNoKey(const Command& command, QKeyCombination key) {
    if (isOfTheDesktop(key)) return words(QT_TRANSLATE_NOOP("ShortcutDialog", "The desktop takes this key itself."));
    const bool isOwn = QKeySequence(key) == command.shortcut;  // Tab acts on the picture alone
    if (isOfControls(key) && !isOwn)
        return words(QT_TRANSLATE_NOOP("ShortcutDialog", "Lists, fields and sliders need this key themselves."));
    if (command.kind == Command::Kind::held && key.keyboardModifiers() != Qt::NoModifier)
        return words(
            QT_TRANSLATE_NOOP("ShortcutDialog", "A key that is held stands alone, without Ctrl, Alt or Shift."));
    return {};
}

}  // namespace tavrin
