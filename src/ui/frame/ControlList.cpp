#include "ui/frame/ControlList.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTabBar>

#include "ui/bind/GroupBox.h"

namespace tavrin {

namespace {

template <class Kind>
const Kind* ancestor(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (const auto* found = qobject_cast<const Kind*>(widget)) return found;
    return nullptr;
}

bool isControl(const QWidget* widget) {
    const QWidget* parent = widget->parentWidget();
    if (widget->objectName().startsWith("qt_") || qobject_cast<const QLineEdit*>(parent) ||
        qobject_cast<const QTabBar*>(parent) || widget->inherits("QTableCornerButton"))
        return false;  // parts that Qt makes
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QSlider*>(widget) ||
           qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget);
}

QString spokenName(const QWidget* widget) {
    // What Qt tells of a box is the entry that is chosen.
    if (qobject_cast<const QComboBox*>(widget)) return widget->accessibleName();
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    return spoken ? spoken->text(QAccessible::Name) : QString();
}

QString handlerOf(const QWidget* widget) {
    if (const QVariant named = widget->property("handler"); named.isValid()) return named.toString();
    if (const auto* button = qobject_cast<const QToolButton*>(widget); button && button->defaultAction())
        return button->defaultAction()->objectName();
    if (const auto* row = ancestor<ControlRow>(widget)) return row->binding().handler->name;
    return {};
}

void addBinding(QJsonObject& entry, const Binding& binding) {
    static constexpr const char* kOwners[] = {"", "active layer: ", "combined.", "selected text: "};
    entry["label"] = ControlRow::translated(binding.label);
    entry["setting"] = QString(kOwners[static_cast<int>(binding.owner)]) + binding.setting;
    entry["mapping"] = binding.mapping->text;
    entry["minimum"] = binding.minimum;
    entry["maximum"] = binding.maximum;
    entry["default"] = binding.mapping->toControl(binding.reset);
}

QJsonObject describe(const QWidget* widget) {
    const auto* group = ancestor<GroupBox>(widget);
    QJsonObject entry{{"objectName", widget->objectName()},
                      {"class", widget->metaObject()->className()},
                      {"panel", group ? group->objectName() : widget->parentWidget()->objectName()},
                      {"toolTip", widget->toolTip()},
                      {"handler", handlerOf(widget)},
                      {"accessibleName", spokenName(widget)}};
    for (const char* key : {"label", "setting", "mapping", "minimum", "maximum", "default", "shortcut"})
        entry[key] = QJsonValue();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) entry["label"] = button->text();
    if (const auto* row = ancestor<ControlRow>(widget)) {
        addBinding(entry, row->binding());
        entry["toolTip"] = ControlRow::translated(row->binding().toolTip);
        for (const Choice& choice : row->binding().choices)
            if (widget->objectName() == choice.control) entry["shortcut"] = choice.key;
    }
    return entry;
}

QJsonObject describe(const QAction* action, const QString& menu) {
    QJsonObject entry;
    for (const char* key : {"setting", "mapping", "minimum", "maximum", "default"})
        entry[key] = QJsonValue();
    const QString text = action->text().section('\t', 0, 0).remove('&');
    entry["objectName"] = entry["handler"] = action->objectName();
    entry["class"] = "QAction";
    entry["panel"] = menu;
    entry["label"] = entry["accessibleName"] = text;
    entry["toolTip"] = action->toolTip();
    entry["shortcut"] =
        action->shortcut().isEmpty() ? action->text().section('\t', 1) : action->shortcut().toString();
    return entry;
}

}  // namespace

QJsonArray listControls(const QWidget& window) {
    QJsonArray list;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (isControl(widget)) list.append(describe(widget));
    for (const QMenu* menu : window.findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            if (!action->objectName().isEmpty()) list.append(describe(action, menu->title().remove('&')));
    return list;
}

}  // namespace tavrin
