// Windows that are closed while something is under way: whatever still runs must not reach what is gone.
#include <random>

#include <QMessageBox>

#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class ClosingTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        qputenv("XDG_CACHE_HOME", folder_.file("cache").c_str());
        for (int i = 0; i < 5; ++i)
            test::savePng(test::discOnScreen(120, 150, QColor(40, 160, 60), QColor(200, 40 * i, 50)),
                          folder_.file("p" + std::to_string(i) + ".png"));
    }
    void TearDown() override {
        WindowTest::TearDown();
        qputenv("XDG_CACHE_HOME", cache_);
    }
    QString path(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }

    /// One thing that a hurried user does; none of them is waited for.
    void doSomething(std::uint_fast32_t which) {
        switch (which % 10) {
            case 0:
                return window_->openForeground(path("p" + std::to_string(which % 5) + ".png"));
            case 1:
                return window_->openBackground(path("p" + std::to_string(which % 3) + ".png"));
            case 2:
                return window_->openFolder(QString::fromStdString(folder_.path().string()));
            case 3:
                QTest::keyClick(window_->view(), Qt::Key_R);
                return;
            case 4:
                QTest::keyClick(window_->view(), Qt::Key_W);
                return;
            case 5:
                info_->sForegroundOverlay = folder_.file("gone.png");
                info_->bHaveForegroundOverlay = true;
                return info_->StartUpdate();
            case 6:
                return window_->openForeground(path("gone.png"));
            case 7:
                action("UndoButton")->trigger();
                return;
            case 8:
                QTest::keyClick(window_->view(), Qt::Key_Right);
                return;
            default:
                action("ResetAll")->trigger();
        }
    }

    const QByteArray cache_ = qgetenv("XDG_CACHE_HOME");
};

TEST_F(ClosingTest, AWindowMayCloseAtAnyMoment) {
    std::mt19937 random(5);
    for (int round = 0; round < 15; ++round) {
        window_ = std::make_unique<MainWindow>(*info_);
        window_->resize(1200, 800);
        window_->show();
        for (std::uint_fast32_t i = 0, count = random() % 5; i < count; ++i) {
            QTest::qWait(static_cast<int>(random() % 150));
            doSomething(random());
        }
        QTest::qWait(static_cast<int>(random() % 400));
        window_.reset();
    }
}

}  // namespace
}  // namespace tavrin
