#include "ui/review/WebPages.h"

#include <QCoreApplication>
#include <QPluginLoader>

#include "core/Log.h"

namespace tavrin {

namespace {

// As it is built, and as it is installed.
constexpr const char* kPlaces[] = {"/tavrin-web", "/../lib/tavrin/tavrin-web"};

WebPages* load() {
    static QPluginLoader loader;
    const QString given = qEnvironmentVariable("TAVRIN_WEB_PAGES");
    QStringList files = given.isEmpty() ? QStringList() : QStringList(given);
    for (const char* place : kPlaces)
        if (given.isEmpty()) files.append(QCoreApplication::applicationDirPath() + place);
    for (const QString& file : files) {
        loader.setFileName(file);
        if (auto* pages = qobject_cast<WebPages*>(loader.instance())) return pages;
        logTrace("No pages from " + file.toStdString() + ": " + loader.errorString().toStdString());
    }
    return nullptr;
}

}  // namespace

WebPages* webPages() {
    static WebPages* const pages = load();
    return pages;
}

}  // namespace tavrin
