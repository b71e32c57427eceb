#include "ui/frame/KeyField.h"

#include <algorithm>
#include <iterator>

#include <QKeyEvent>

namespace tavrin {

namespace {

constexpr Qt::Key kNotAlone[] = {Qt::Key_Shift, Qt::Key_Control,  Qt::Key_Alt,     Qt::Key_Meta,
                                 Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_unknown, Qt::Key_Super_L};
constexpr Qt::Key kOfDialogs[] = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Escape};

/// "!" is a key of its own and not Shift and "!"; where it lies does not matter.
QKeyCombination combinationOf(const QKeyEvent& event) {
    Qt::KeyboardModifiers held = event.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
    const QString text = event.text();
    const bool isSign = !text.isEmpty() && text[0].isPrint() && !text[0].isLetter() && !text[0].isSpace();
    if (isSign) held &= ~Qt::ShiftModifier;
    return QKeyCombination(held, static_cast<Qt::Key>(event.key()));
}

}  // namespace

bool KeyField::event(QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QLineEdit::event(event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto is = [key](const auto& keys) { return std::ranges::find(keys, key->key()) != std::end(keys); };
    if (is(kOfDialogs) && !(key->modifiers() & ~Qt::ShiftModifier)) return QLineEdit::event(event);
    if (event->type() == QEvent::KeyPress && !is(kNotAlone)) emit pressed(combinationOf(*key));
    event->accept();
    return true;
}

}  // namespace tavrin
