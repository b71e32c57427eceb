// That no work is lost: kills, signals, second starts, closing, portraits that are opened again.
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QTest>

#include "formats/ImageState.h"
#include "session/RecipeStore.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class KeepingTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
    }
    BitmapInfo& portrait() { return *info_->pForegroundBitmapInfo; }
    void brighten(int value) {
        window_->binder().run("Light",
                              [&](SettingEditor& e) { e.set("foreground.iBrightness", std::to_string(value)); });
    }
    std::size_t keptRecipes() { return leftRecipes().size(); }
    template <class Kind>
    void click(const char* name) {
        auto* button = window_->findChild<Kind*>(name);
        ASSERT_TRUE(button) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    /// Answers the question that closing asks.
    void answer(QMessageBox::StandardButton button) {
        auto* question = window_->findChild<QMessageBox*>("closeQuestion");
        ASSERT_TRUE(question);
        QTest::mouseClick(question->button(button), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    /// Starts the real program in this account.
    void start(QProcess& program, const QStringList& files, const QProcessEnvironment& more = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", QString::fromStdString(folder_.file("home")));
        environment.insert("XDG_DATA_HOME", QString::fromStdString(folder_.file("data")));
        environment.insert("XDG_CONFIG_HOME", QString::fromStdString(folder_.file("config")));
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.remove("DBUS_SESSION_BUS_ADDRESS");
        environment.insert(more);
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::ForwardedChannels);
        program.start(QCoreApplication::applicationDirPath() + "/tavrin", files);
        ASSERT_TRUE(program.waitForStarted());
    }
    /// A state with a setting of its own, to be opened by the program.
    QString stateFile(const char* name, const std::string& foreground, int brightness = 33) {
        SystemInfo state;
        state.pForegroundBitmapInfo->iBrightness = brightness;
        state.pForegroundBitmapInfo->sSourceImageFullPath = foreground;
        state.pBackgroundBitmapInfo->sSourceImageFullPath = background_;
        const std::string path = folder_.file(name);
        EXPECT_EQ(saveImageStateToXML(state, path), "");
        return QString::fromStdString(path);
    }
    bool waitForKept(const std::string& value) {
        return test::eventually([&] {
            for (const auto& entry : std::filesystem::directory_iterator(Places::current().recoveryFolder())) {
                if (entry.path().extension() != ".recipe") continue;
                const auto recipe = readRecipeFile(entry.path().string());
                for (const auto& setting : recipe->settings)
                    if (setting == std::pair<std::string, std::string>("foreground.iBrightness", value)) return true;
            }
            return false;
        });
    }

    const std::string other_ = test::savePng(test::discOnScreen(240, 300), folder_.file("ben.png"));
};

TEST_F(KeepingTest, AKilledProgramsWorkIsOfferedAndGoesOnlyWithTheAnswer) {
    std::filesystem::create_directories(Places::current().recoveryFolder());
    QProcess program;
    start(program, {stateFile("ann.qlx", portrait_)});
    ASSERT_TRUE(waitForKept("33"));
    EXPECT_EQ(keptRecipes(), 0u) << "it belongs to the program that runs";
    program.kill();
    ASSERT_TRUE(program.waitForFinished());

    window_->offerLeftRecipes();
    EXPECT_TRUE(window_->messages()->question().contains("anna.png"));
    window_->messages()->tell("something else");
    EXPECT_FALSE(window_->messages()->question().isEmpty());
    open();  // ended without an answer
    ASSERT_EQ(keptRecipes(), 1u);
    window_->offerLeftRecipes();
    click<QToolButton>("TakeUp");
    ASSERT_TRUE(test::eventually([&] { return portrait().iBrightness == 33; }));
    EXPECT_EQ(portrait().sSourceImageFullPath.load(), portrait_);
    EXPECT_TRUE(window_->messages()->question().isEmpty());
    EXPECT_TRUE(test::eventually([&] { return keptRecipes() == 0; })) << "its place is taken by that of the window";
    window_.reset();
    ASSERT_EQ(keptRecipes(), 1u) << "what was taken up is kept in turn";
    open();
    window_->offerLeftRecipes();
    click<QToolButton>("Discard");
    EXPECT_EQ(keptRecipes(), 0u);
}

TEST_F(KeepingTest, SigtermKeepsTheWorkAndEndsInOrder) {
    std::filesystem::create_directories(Places::current().recoveryFolder());
    QProcess program;
    start(program, {stateFile("ann.qlx", portrait_)});
    ASSERT_TRUE(waitForKept("33"));
    ::kill(static_cast<pid_t>(program.processId()), SIGTERM);
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(keptRecipes(), 1u);
}

TEST_F(KeepingTest, ASecondStartHandsItsFilesToTheFirst) {
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty()) GTEST_SKIP() << "there is no session bus to be had";
    std::filesystem::create_directories(Places::current().recoveryFolder());
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(bus.waitForReadyRead());
    QProcessEnvironment address;
    address.insert("DBUS_SESSION_BUS_ADDRESS", QString::fromUtf8(bus.readLine().trimmed()));
    QProcess first, second;
    start(first, {stateFile("ben.qlx", other_)}, address);
    ASSERT_TRUE(waitForKept("33"));
    start(second, {stateFile("odd name %41.qlx", portrait_, 44)}, address);
    EXPECT_TRUE(second.waitForFinished(test::kPatienceMs));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(waitForKept("44")) << "the first has opened the state";
    EXPECT_EQ(first.state(), QProcess::Running);
    first.terminate();
    EXPECT_TRUE(first.waitForFinished());
    bus.terminate();
    bus.waitForFinished();
}

TEST_F(KeepingTest, ClosingAsksOnceAndOnlyAboutUnsavedWork) {
    brighten(20);
    editor().undo();
    EXPECT_FALSE(editor().isUnsaved());
    editor().redo();
    EXPECT_FALSE(window_->close());
    EXPECT_FALSE(window_->close());
    EXPECT_EQ(window_->findChildren<QMessageBox*>("closeQuestion").size(), 1);
    answer(QMessageBox::Cancel);
    EXPECT_TRUE(window_->isVisible());

    const QString saved = QString::fromStdString(folder_.file("anna.qlx"));
    window_->saveState(saved);
    brighten(40);  // behind the save
    ASSERT_TRUE(test::eventually([&] { return window_->savesUnderWay() == 0; }));
    EXPECT_TRUE(editor().isUnsaved());
    editor().undo();
    EXPECT_FALSE(editor().isUnsaved()) << "that is what was saved";
    editor().redo();
    EXPECT_FALSE(window_->close());
    answer(QMessageBox::Discard);
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(keptRecipes(), 0u) << "closed by its user";
    EXPECT_FALSE(loadRecipe(portrait_)->history.steps.empty());
}

TEST_F(KeepingTest, APortraitComesBackWithItsSettingsAndItsHistory) {
    brighten(20);
    brighten(40);
    window_->openForeground(QString::fromStdString(other_));
    EXPECT_TRUE(editor().steps().empty());
    brighten(-7);
    window_->openForeground(QString::fromStdString(portrait_));
    ASSERT_TRUE(test::eventually([&] { return editor().steps().size() == 2u; }));
    EXPECT_EQ(portrait().iBrightness, 40);
    EXPECT_EQ(portrait().sSourceImageFullPath.load(), portrait_);
    window_->commands().action("UndoButton")->trigger();
    EXPECT_EQ(portrait().iBrightness, 20);

    EXPECT_FALSE(window_->close());
    answer(QMessageBox::Discard);
    portrait().iBrightness = 0;
    open();
    window_->openForeground(QString::fromStdString(portrait_));
    ASSERT_TRUE(test::eventually([&] { return editor().steps().size() == 2u; })) << "the program ended in between";
    EXPECT_EQ(portrait().iBrightness, 20);
    window_->commands().action("RedoButton")->trigger();
    EXPECT_EQ(portrait().iBrightness, 40);

    // Opened and left at once, before the loop could give it its settings: nothing of it reaches the next.
    window_->openForeground(QString::fromStdString(other_));
    window_->openForeground(QString::fromStdString(portrait_));
    window_->openForeground(QString::fromStdString(other_));
    ASSERT_TRUE(test::eventually([&] { return editor().steps().size() == 1u; }));
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(portrait().iBrightness, -7);
    EXPECT_EQ(portrait().sSourceImageFullPath.load(), other_);
    EXPECT_EQ(loadRecipe(portrait_)->history.steps.size(), 2u);
}

TEST_F(KeepingTest, WhatAStateBroughtToAPortraitComesBackToo) {
    brighten(20);
    window_->openForeground(QString::fromStdString(other_));
    window_->openForeground(QString::fromStdString(portrait_));
    ASSERT_TRUE(test::eventually([&] { return portrait().iBrightness == 20; }));
    window_->openState(stateFile("anna.qlx", portrait_));
    ASSERT_TRUE(test::eventually([&] { return portrait().iBrightness == 33; }));
    ASSERT_TRUE(waitForPicture());
    QTest::qWait(50);
    window_->openForeground(QString::fromStdString(other_));
    brighten(1);
    window_->openForeground(QString::fromStdString(portrait_));
    EXPECT_TRUE(test::eventually([&] { return portrait().iBrightness == 33; }));

    // A background that is chosen before the loop has given the portrait its recipe holds.
    window_->openForeground(QString::fromStdString(other_));
    ASSERT_TRUE(test::eventually([&] { return portrait().iBrightness == 1; }));
    window_->openForeground(QString::fromStdString(portrait_));
    window_->openBackground(QString::fromStdString(other_));
    ASSERT_TRUE(test::eventually([&] { return portrait().iBrightness == 33; }));
    EXPECT_TRUE(
        test::eventually([&] { return info_->pBackgroundBitmapInfo->sSourceImageFullPath.load() == other_; }));
}

}  // namespace
}  // namespace tavrin
