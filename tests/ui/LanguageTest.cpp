// Words in other languages: that all that is seen can be translated, and that longer words still fit.
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionButton>
#include <QTest>
#include <QTranslator>

#include "ui/WindowTest.h"
#include "ui/frame/Language.h"

namespace tavrin {
namespace {

constexpr QChar kMark = QChar(0x27e6);

/// A language two fifths longer than English, in which every word is marked.
class MarkedLanguage : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override {
        asked.insert({context, text});
        const QString source = QString::fromUtf8(text);
        return kMark + source + QString(source.size() * 2 / 5, QChar(0xe6));
    }

    mutable std::set<std::pair<std::string, std::string>> asked;  ///< context and text
};

class LanguageTest : public test::WindowTest {
  protected:
    void TearDown() override {
        WindowTest::TearDown();
        useLanguage(QLocale::c());
    }
    void openUnfolded() {
        open({1440, 900});
        for (GroupBox* group : window_->panel()->groups())
            group->setFolded(false);
        QTest::qWait(50);
    }

    /// What stands on a widget, without what is not said in words.
    static QString textOf(const QWidget* widget) {
        QString text;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) text = label->text();
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) text = button->text();
        if (const auto* dock = qobject_cast<const QDockWidget*>(widget)) text = dock->windowTitle();
        const bool hasWords = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
        return hasWords ? text : QString();
    }

    /// Texts that do not fit on what they stand on.
    QStringList cutOff() const {
        QStringList cut;
        for (const QWidget* widget : window_->findChildren<QWidget*>()) {
            const QString text = textOf(widget);
            if (text.isEmpty() || !widget->isVisible() || qobject_cast<const QDockWidget*>(widget)) continue;
            if (widget->width() < widget->minimumSizeHint().width())
                cut.append(text + QString(" (%1 of %2)").arg(widget->width()).arg(widget->minimumSizeHint().width()));
        }
        return cut;
    }
};

TEST_F(LanguageTest, NothingThatIsSeenEscapesTranslation) {
    MarkedLanguage language;
    QCoreApplication::installTranslator(&language);
    openUnfolded();
    QStringList escaped;
    const auto look = [&](const QString& text, const QString& where) {
        if (!text.isEmpty() && !text.contains(kMark)) escaped.append(where + ": " + text);
    };
    for (const QWidget* widget : window_->findChildren<QWidget*>()) {
        const QString where = QString(widget->metaObject()->className()) + ' ' + widget->objectName();
        look(textOf(widget), where);
        look(widget->toolTip(), where + " (tool tip)");
    }
    for (const QMenu* menu : window_->findChildren<QMenu*>())
        look(menu->title(), "menu");
    for (const QAction* action : window_->findChildren<QAction*>()) {
        if (!action->objectName().isEmpty()) look(action->text(), "action " + action->objectName());
    }
    EXPECT_TRUE(escaped.isEmpty()) << escaped.join('\n').toStdString();
    EXPECT_TRUE(cutOff().isEmpty()) << cutOff().join('\n').toStdString();
    window_.reset();
    QCoreApplication::removeTranslator(&language);

    for (const char* const name : {"de", "es"}) {
        QTranslator words;
        ASSERT_TRUE(words.load(QLocale(name), "tavrin", "_", ":/translations"));
        EXPECT_NE(words.translate("tavrin::LooksPanel", "Delete"), words.translate("tavrin::Commands", "Delete"))
            << name << ": a button, and a key of the keyboard";
        for (const auto& [context, text] : language.asked) {
            if (context.starts_with('Q')) continue;  // the toolkit's
            if (text.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz") == text.npos) continue;
            EXPECT_FALSE(words.translate(context.c_str(), text.c_str()).isEmpty())
                << name << ": " << context << ": " << text;
        }
    }
}

TEST_F(LanguageTest, SpeaksTheFirstOfTheDesktopsLanguagesThatThereIs) {
    const struct {
        const char* locale;
        const char* open;
    } cases[] = {{"de_AT", "&Porträt öffnen..."},
                 {"es_MX", "Abrir &retrato..."},
                 {"en_GB", "Open &Portrait..."},
                 {"ja_JP", "Open &Portrait..."}};
    for (const auto& [locale, text] : cases) {
        useLanguage(QLocale(locale));
        openUnfolded();
        EXPECT_EQ(window_->commands().action("loadForeground")->text(), QString::fromUtf8(text)) << locale;
        EXPECT_TRUE(cutOff().isEmpty()) << locale << '\n' << cutOff().join('\n').toStdString();
        window_.reset();
    }
}

}  // namespace
}  // namespace tavrin
