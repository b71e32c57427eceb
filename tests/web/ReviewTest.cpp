// Pages of results and of portraits in a window: what a click there does.
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QTest>
#include <QVariant>
#include <QtWebEngineWidgets/QWebEngineView>

#include "delivery/pages/ComparePage.h"
#include "support/BuildPlaces.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class ReviewTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
    }
    /// Results of a batch with their masks, one of them with a name that a page could stumble over.
    void addResults(int count) {
        fs::create_directories(folder_.file("out/Thumbs"));
        for (int i = 0; i < count; ++i) {
            const std::string name = i == 0 ? "r'0 <b>#&\xc3\xbc.png" : "r" + std::to_string(i) + ".png";
            test::savePng(test::discOnScreen(240, 300), folder_.file("out/" + name));
            test::savePng(test::discOnScreen(24, 30), folder_.file("out/Thumbs/TQTQ" + name));
        }
        info_->oQLXInfo->sLastBatchOutput = folder_.file("out");
    }
    QWidget* page(const char* id) { return window_->findChild<QWidget*>(id); }
    QWebEngineView* view(const char* id) { return page(id)->findChild<QWebEngineView*>(); }

    /// What a page that has been read says to a line of script.
    static QVariant ask(QWebEngineView* view, const QString& script) {
        QVariant answer;
        bool came = false;
        view->page()->runJavaScript(script, [&](const QVariant& value) {
            answer = value;
            came = true;
        });
        EXPECT_TRUE(test::eventually([&] { return came; }));
        return answer;
    }
    /// The page stands, with all of its pictures that can be seen.
    bool isShown(const char* id, const QString& file) {
        return test::eventually([&] {
            QWebEngineView* shown = view(id);
            return shown && page(id)->isVisible() && shown->url().fileName() == file && !shown->page()->isLoading();
        });
    }
    /// The middle of what a selector finds, in points of the view.
    static QPoint middleOf(QWebEngineView* view, const QString& selector) {
        const QVariantList place =
            ask(view, QString("(function(){ var e=document.querySelector('%1'); e.scrollIntoView();"
                              " var r=e.getBoundingClientRect(); return [r.x+r.width/2, r.y+r.height/2]; })()")
                          .arg(selector))
                .toList();
        return {static_cast<int>(place.value(0).toDouble()), static_cast<int>(place.value(1).toDouble())};
    }
    static void click(QWebEngineView* view, const QString& selector) {
        QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, middleOf(view, selector));
    }
    std::string source() { return info_->pForegroundBitmapInfo->sSourceImageFullPath; }
};

TEST_F(ReviewTest, WithoutResultsTheWindowSaysSo) {
    action("showReviewBatchOutput")->trigger();
    EXPECT_EQ(window_->messages()->message(), "No batch has been run yet.");
    info_->oQLXInfo->sLastBatchOutput = folder_.file("gone");
    action("showReviewBatchOutput")->trigger();
    EXPECT_TRUE(test::eventually([&] { return window_->messages()->message().endsWith("gone holds no pictures."); }));
}

TEST_F(ReviewTest, AClickOnAResultOpensItToBeMendedAndSavingBringsThePagesBack) {
    addResults(31);
    action("showReviewBatchOutput")->trigger();
    ASSERT_TRUE(isShown("MyReviewBatchOutputPanel", "FilesInFolder1.htm"));
    QWebEngineView* pages = view("MyReviewBatchOutputPanel");
    EXPECT_TRUE(
        test::eventually([&] { return ask(pages, "Array.from(document.images).every(i => i.complete)").toBool(); }));
    EXPECT_EQ(ask(pages, "Array.from(document.images).filter(i => i.naturalWidth == 0).length").toInt(), 0)
        << "results and masks are there, whatever their names are";
    EXPECT_EQ(ask(pages, "document.images.length").toInt(), 60);

    click(pages, "a[href=\"FilesInFolder2.htm\"]");
    ASSERT_TRUE(isShown("MyReviewBatchOutputPanel", "FilesInFolder2.htm"));
    click(pages, "a[href=\"30\"] input");
    const std::string result = info_->myFileNames[30];
    EXPECT_TRUE(test::eventually([&] { return info_->bBatchReviewActive.load(); }));
    EXPECT_EQ(info_->sBatchReviewFileSavePath.load(), result);
    EXPECT_FALSE(page("MyReviewBatchOutputPanel")->isVisible());
    EXPECT_EQ(action("Save")->text(), "Save to Batch");

    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return action("Save")->isEnabled(); }));
    const auto before = fs::file_size(result);
    action("Save")->trigger();
    EXPECT_TRUE(isShown("MyReviewBatchOutputPanel", "FilesInFolder2.htm")) << "where it was chosen";
    EXPECT_NE(fs::file_size(result), before);
    EXPECT_EQ(action("Save")->text().remove('&'), "Save");
}

TEST_F(ReviewTest, PortraitsAreComparedScrolledAndOpened) {
    fs::create_directories(folder_.file("shots"));
    for (int i = 0; i < 40; ++i)
        test::savePng(test::discOnScreen(240, 300), folder_.file("shots/p" + std::to_string(i) + ".png"));
    info_->oQLXInfo->sForegroundPath = folder_.file("shots/p0.png");
    action("showCompareFiles")->trigger();
    ASSERT_TRUE(isShown("MyCompareFilesPanel", "CompareFiles.htm"));
    QWebEngineView* strip = view("MyCompareFilesPanel");
    EXPECT_LT(ask(strip, "Array.from(document.images).filter(i => i.naturalWidth > 0).length").toInt(), 40)
        << "those that cannot be seen are not read";

    const std::string chosen = info_->myFileNames[3];
    addResults(5);
    action("showReviewBatchOutput")->trigger();
    ASSERT_TRUE(isShown("MyReviewBatchOutputPanel", "FilesInFolder1.htm"));
    ASSERT_EQ(info_->myFileNames.size(), 5u) << "the other page has a list of its own";
    ask(strip, "document.getElementById('drag3').dispatchEvent(new MouseEvent('dblclick')); 1");
    EXPECT_TRUE(test::eventually([&] { return source() == chosen; }));
    EXPECT_FALSE(page("MyCompareFilesPanel")->isVisible());
    EXPECT_TRUE(page("MyReviewBatchOutputPanel")->isVisible());
    info_->oQLXInfo->sForegroundPath = folder_.file("shots/p0.png");
    action("showCompareFiles")->trigger();
    ASSERT_TRUE(isShown("MyCompareFilesPanel", "CompareFiles.htm"));
    click(view("MyReviewBatchOutputPanel"), "a[href=\"4\"] input");
    EXPECT_TRUE(test::eventually([&] { return info_->bBatchReviewActive.load(); }));
    EXPECT_EQ(info_->sBatchReviewFileSavePath.load(), folder_.file("out/r4.png")) << "and never a portrait";

    ask(strip, "document.getElementById('ImageDiv').scrollLeft = 700");
    EXPECT_TRUE(test::eventually([&] { return info_->iLastScrollHtmlFileChooser == 700; }));
    bool cameAgain = false;
    QObject::connect(strip, &QWebEngineView::loadFinished, strip, [&] { cameAgain = true; });
    action("showCompareFiles")->trigger();
    ASSERT_TRUE(test::eventually([&] { return cameAgain; }));
    EXPECT_TRUE(test::eventually(
        [&] { return ask(strip, "document.getElementById('ImageDiv').scrollLeft").toInt() == 700; }));
}

TEST_F(ReviewTest, NothingLeavesThisComputerAndNoLinkLeadsElsewhere) {
    addResults(1);
    action("showReviewBatchOutput")->trigger();
    ASSERT_TRUE(isShown("MyReviewBatchOutputPanel", "FilesInFolder1.htm"));
    QWebEngineView* pages = view("MyReviewBatchOutputPanel");
    for (const char* to : {"FilesInFolder2.htm", "http://127.0.0.1:9/x", "file:///etc/passwd", "99", "-1", "x"}) {
        ask(pages, QString("window.location.href='%1'; 1").arg(to));
        QTest::qWait(100);  // nothing may come
        EXPECT_EQ(pages->url().fileName(), "FilesInFolder1.htm") << to;
    }
    EXPECT_FALSE(info_->bBatchReviewActive);
    ask(pages,
        "var i=new Image(); i.onerror=function(){document.title='refused'}; i.src='http://127.0.0.1:9/a.png'; 1");
    EXPECT_TRUE(test::eventually([&] { return pages->title() == "refused"; }));
    ask(pages, "alert('boo'); document.title='went on'; 1");
    EXPECT_TRUE(test::eventually([&] { return pages->title() == "went on"; })) << "no box waits for an answer";
}

}  // namespace
}  // namespace tavrin
