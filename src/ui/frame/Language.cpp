#include "ui/frame/Language.h"

#include <memory>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace tavrin {

namespace {

/// @param name of the files, before the language
void install(const QLocale& locale, const QString& name, const QString& folder) {
    delete qApp->findChild<QTranslator*>(name);  // which takes its words out
    for (const QString& language : locale.uiLanguages()) {
        const QLocale wanted(language);
        if (wanted.language() == QLocale::English) return;  // the words of the sources
        auto translator = std::make_unique<QTranslator>(qApp);
        translator->setObjectName(name);
        if (!translator->load(wanted, name, "_", folder)) continue;
        QCoreApplication::installTranslator(translator.release());
        return;
    }
}

}  // namespace

void useLanguage(const QLocale& locale) {
    install(locale, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(locale, "tavrin", ":/translations");
}

}  // namespace tavrin
