#include "ui/effects/ShadowKind.h"

#include "ui/bind/ControlRow.h"

namespace tavrin {

namespace {

struct Kind {
    int value;  // of `iHaveShadow`
    const char *word, *title;
};
constexpr Kind kKinds[] = {
    {5, QT_TRANSLATE_NOOP("Panel", "wall"), QT_TRANSLATE_NOOP("Panel", "Wall Shadow")},
    {2, QT_TRANSLATE_NOOP("Panel", "floor"), QT_TRANSLATE_NOOP("Panel", "Floor Shadow")},
    {3, QT_TRANSLATE_NOOP("Panel", "wall and floor"), QT_TRANSLATE_NOOP("Panel", "Wall and Floor Shadow")},
};

const Kind* kindOf(const SystemInfo& info) {
    for (const Kind& kind : kKinds)
        if (info.iHaveShadow == kind.value) return &kind;
    return nullptr;
}

}  // namespace

bool hasShadow(const SystemInfo& info) {
    return kindOf(info) != nullptr;
}

QString shadowWord(const SystemInfo& info) {
    const Kind* kind = kindOf(info);
    return kind ? ControlRow::translated(kind->word) : QString();
}

QString shadowTitle(const SystemInfo& info) {
    const Kind* kind = kindOf(info);
    return ControlRow::translated(kind ? kind->title : QT_TRANSLATE_NOOP("Panel", "No Shadow Active"));
}

}  // namespace tavrin
