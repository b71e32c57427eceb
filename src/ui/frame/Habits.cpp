#include "ui/frame/Habits.h"

#include <memory>
#include <thread>

#include <QCoreApplication>

#include "core/raster/Rows.h"
#include "ui/WindowSettings.h"
#include "ui/frame/Theme.h"

namespace tavrin {

namespace {

constexpr const char *kLanguage = "language", *kThreads = "threads", *kFileType = "fileType";

QString words(const char* text) {
    return QCoreApplication::translate("Habits", text);
}

QString kept(const char* key) {
    return windowSettings().value(key).toString();
}

/// A list whose choice is kept under a key.
ListSetting keptList(const char* control, const char* key, const QString& label, const QString& toolTip,
                     std::vector<ListSetting::Entry> entries) {
    return {control,
            label,
            toolTip,
            std::move(entries),
            [key] { return kept(key); },
            [key](const QString& value) { windowSettings().setValue(key, value); }};
}

ListSetting languageList() {
    ListSetting list = keptList("settingsLanguage", kLanguage, words(QT_TRANSLATE_NOOP("Habits", "Language")),
                                words(QT_TRANSLATE_NOOP("Habits", "The words of the window, from the next start on")),
                                {{"", words(QT_TRANSLATE_NOOP("Habits", "As the desktop"))},
                                 {"en", QStringLiteral("English")},
                                 {"de", QStringLiteral("Deutsch")},
                                 {"es", QStringLiteral("Espa\u00f1ol")}});
    list.said = words(QT_TRANSLATE_NOOP("Habits", "The words change with the next start."));
    return list;
}

ListSetting themeList() {
    return {"settingsTheme",
            words(QT_TRANSLATE_NOOP("Habits", "Colours")),
            words(QT_TRANSLATE_NOOP("Habits", "The colours of the window")),
            {{"desktop", words(QT_TRANSLATE_NOOP("Habits", "As the desktop"))},
             {"light", words(QT_TRANSLATE_NOOP("Habits", "Light"))},
             {"dark", words(QT_TRANSLATE_NOOP("Habits", "Dark"))}},
            [] { return nameOf(chosenTheme()); },
            [](const QString& name) { chooseTheme(themeOf(name)); }};
}

ListSetting threadsList() {
    std::vector<ListSetting::Entry> entries = {{"", words(QT_TRANSLATE_NOOP("Habits", "All"))}};
    for (unsigned n = 1; n < std::thread::hardware_concurrency(); ++n)
        entries.push_back({QString::number(n), QString::number(n)});
    ListSetting list =
        keptList("settingsThreads", kThreads, words(QT_TRANSLATE_NOOP("Habits", "Processors")),
                 words(QT_TRANSLATE_NOOP(
                     "Habits", "How many processors work on a picture; fewer leave some to other programs")),
                 std::move(entries));
    list.choose = [](const QString& value) {
        windowSettings().setValue(kThreads, value);
        useChosenThreads();
    };
    return list;
}

ListSetting fileTypeList() {
    return keptList("settingsFileType", kFileType, words(QT_TRANSLATE_NOOP("Habits", "Kind of file")),
                    words(QT_TRANSLATE_NOOP("Habits",
                                            "What names of saved pictures end with, until another ending is typed. "
                                            "A clear background is always proposed as PNG")),
                    {{"", words(QT_TRANSLATE_NOOP("Habits", "As the portrait"))},
                     {".jpg", QStringLiteral("JPEG")},
                     {".png", QStringLiteral("PNG")},
                     {".tif", QStringLiteral("TIFF")}});
}

}  // namespace

QLocale chosenLanguage() {
    const QString name = kept(kLanguage);
    return name.isEmpty() ? QLocale::system() : QLocale(name);
}

void useChosenThreads() {
    static std::unique_ptr<ThreadLimit> limit;
    limit.reset();
    if (const int threads = windowSettings().value(kThreads).toInt(); threads > 0)
        limit = std::make_unique<ThreadLimit>(threads);
}

QString chosenFileType() {
    return kept(kFileType);
}

std::vector<ListSetting> habitLists() {
    return {languageList(), themeList(), threadsList(), fileTypeList()};
}

}  // namespace tavrin
