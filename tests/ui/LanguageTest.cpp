// Words in other languages: that all that is seen can be translated, and that longer words still fit.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QStyleOptionButton>
#include <QTest>
#include <QTranslator>

#include "core/files/Places.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "ui/frame/Language.h"
#include "ui/frame/MainWindow.h"

namespace tavrin {
namespace {

constexpr QChar kMark = QChar(0x27e6);

/// A language two fifths longer than English, in which every word is marked.
class MarkedLanguage : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        const QString source = QString::fromUtf8(text);
        return kMark + source + QString(source.size() * 2 / 5, QChar(0xe6));
    }
};

class LanguageTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(folder_.file("shared/QLXXML"));
        Places::current().setSharedFolder(folder_.file("shared"));
        chooseSizeByName(*info_, "test");
        info_->pForegroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::discOnScreen(240, 300), folder_.file("fg.png"));
        info_->pBackgroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::noisePicture(240, 300, 9), folder_.file("bg.png"));
    }
    void TearDown() override {
        window_.reset();
        useLanguage(QLocale::c());
        Places::current().setSharedFolder(shared_);
    }
    void open() {
        window_ = std::make_unique<MainWindow>(*info_);
        window_->resize(1440, 900);
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
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

    const std::string shared_ = Places::current().sharedFolder();
    test::TempFolder folder_;
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(240, 300);
    std::unique_ptr<MainWindow> window_;
};

TEST_F(LanguageTest, NothingThatIsSeenEscapesTranslation) {
    MarkedLanguage language;
    QCoreApplication::installTranslator(&language);
    open();
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
        open();
        EXPECT_EQ(window_->commands().action("loadForeground")->text(), QString::fromUtf8(text)) << locale;
        EXPECT_TRUE(cutOff().isEmpty()) << locale << '\n' << cutOff().join('\n').toStdString();
        window_.reset();
    }
}

}  // namespace
}  // namespace tavrin
