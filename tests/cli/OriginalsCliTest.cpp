// Nothing that a run reads, and nothing that it did not make, is written over.
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <sys/stat.h>

#include "formats/ImageState.h"
#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

class OriginalsCliTest : public testing::Test {
  protected:
    OriginalsCliTest() {
        for (const char* name : {"shots", "shots/sea", "out"})
            fs::create_directory(folder_.path() / name);
        for (const char* name : {"shots/sea/anna.png", "shots/sea/ben.png"})
            test::savePng(test::discOnScreen(60, 36), folder_.file(name));
        for (const char* name : {"sea.png", "lace.png"})
            test::savePng(test::noisePicture(60, 36, 4), folder_.file(name));
        fs::create_hard_link(folder_.file("shots/sea/anna.png"), folder_.file("hard.png"));
        fs::create_symlink(folder_.file("sea.png"), folder_.file("soft.png"));
    }
    QString file(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    QStringList size() const { return {"--inches", "5x3", "--dpi", "12"}; }
    QStringList batch(const QStringList& more = {}) const {
        return QStringList{"batch",         "--bare",        "--foregrounds", file("shots/sea"),
                           "--backgrounds", file("sea.png"), "--out",         file("out")} +
               size() + more;
    }
    QStringList batchOf(const char* portraits, const char* out, const QStringList& more) const {
        return QStringList{"batch",         "--bare",        "--foregrounds", file(portraits),
                           "--backgrounds", file("sea.png"), "--out",         file(out)} +
               size() + more;
    }
    QStringList render(const QString& out, const QStringList& more = {}) const {
        return QStringList{"render",       "--bare",        "--foreground", file("shots/sea/anna.png"),
                           "--background", file("sea.png"), "--out",        out} +
               size() + more;
    }
    std::map<std::string, std::string> everything() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(folder_.path()))
            files[entry.path().string()] = entry.is_regular_file() ? test::readFile(entry.path().string()) : "";
        return files;
    }
    void list(const std::string& name, const std::string& foreground, const std::string& out) const {
        test::writeFile(folder_.file(name), "<image>\n<foreground>" + folder_.file(foreground) +
                                                "</foreground>\n<background>" + folder_.file("sea.png") +
                                                "</background>\n<outputnamestyle>outputfolderhasname"
                                                "</outputnamestyle>\n<outputfiletype>outputpng</outputfiletype>\n"
                                                "<outputfolder>" +
                                                folder_.file(out) + "</outputfolder>\n</image>\n");
    }
    QStringList makeList(const std::string& name) const {
        return QStringList{"batch", "--bare", "--list", file(name), "--out", file("out")} + size();
    }

    test::TempFolder folder_;
};

TEST_F(OriginalsCliTest, NoOutputIsAlsoAnInput) {
    auto info = std::make_unique<SystemInfo>();
    info->sFrameOverlay = folder_.file("lace.png");
    info->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("sea.png");
    ASSERT_EQ(saveImageStateToXML(*info, folder_.file("look.qlx")), "");
    list("over.xml", "shots/sea/anna.png", "shots/sea/anna.png");
    list("itself.xml", "shots/sea/anna.png", "lace.png");
    const QString anna = file("shots/sea/anna.png");
    const QStringList split = {"batch",         "--bare",        "--foregrounds", file("shots/sea"),
                               "--backgrounds", file("sea.png"), "--out",         file("shots"),
                               "--style",       "split",         "--type",        "png"};
    const struct {
        QStringList arguments;
        QString output, input;
    } calls[] = {
        {split, anna, anna},
        {split + QStringList{"--watch"}, anna, anna},
        {split + QStringList{"--overwrite", "--again"}, anna, anna},
        {makeList("over.xml"), anna, anna},
        {makeList("itself.xml") + QStringList{"--overlay-frame", file("lace.png")}, file("lace.png"),
         file("lace.png")},
        {batch({"--report", anna}), anna, "picture"},
        {batch({"--report", file("hard.png")}), file("hard.png"), "picture"},
        {makeList("over.xml") + QStringList{"--report", file("over.xml")}, anna, anna},
        {batch({"--report", file("out/anna_sea.jpg")}), file("out/anna_sea.jpg"), "report"},
        {batch({"--states", file("look.qlx"), "--report", file("look.qlx")}), file("look.qlx"), file("look.qlx")},
        {render(anna), anna, anna},
        {render(file("hard.png")), file("hard.png"), anna},
        {render(file("soft.png")), file("soft.png"), file("sea.png")},
        {render(file("new.png"), {"--alpha", anna}), anna, anna},
        {render(file("new.png"), {"--alpha", file("new.png")}), "--alpha", "--out"},
        {render(file("new.png"), {"--alpha", file("out/../new.png")}), "--alpha", "--out"},
        {render(file("new.png"), {"--save-state", file("new.png")}), "--save-state", "--out"},
        {render(file("new.png"), {"--save-state", file("soft.png")}), file("soft.png"), file("sea.png")},
        {render(file("new.png"), {"--save-state", file("shots/sea/ben.png")}), file("shots/sea/ben.png"), "picture"},
        {render(file("new.png"), {"--state", file("look.qlx"), "--save-state", file("look.qlx")}), file("look.qlx"),
         file("look.qlx")},
        {render(file("lace.png"), {"--state", file("look.qlx")}), file("lace.png"), file("lace.png")},
        {render(file("lace.png"),
                {"--set", "bOutputSilhouette=0", "--set", "sSilhouetteFileName=" + file("lace.png")}),
         file("lace.png"), file("lace.png")},
        {{"report", "merge", "--out", anna, file("over.xml")}, anna, "picture"},
        {{"report", "merge", "--out", file("over.xml"), file("over.xml")}, file("over.xml"), file("over.xml")},
        {{"state", "set", file("look.qlx"), file("lace.png")}, file("lace.png"), file("lace.png")},
    };
    const auto before = everything();
    for (const auto& call : calls) {
        const auto outcome = test::runCli(call.arguments);
        EXPECT_EQ(outcome.code, 2) << call.arguments.join(' ').toStdString() << '\n' << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(call.output)) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains(call.input)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
    }
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(test::runCli(render(file("lace.png"))).code, 0);  // replaces any other file, as it always has
    EXPECT_EQ(test::runCli({"state", "set", file("look.qlx"), file("look.qlx"), "bUseBlueLogic=1"}).code, 0);
}

TEST_F(OriginalsCliTest, ABatchReplacesOnlyWhatItMade) {
    test::writeFile(folder_.file("out/anna_sea.jpg"), "retouched by hand");
    auto outcome = test::runCli(batch());
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.contains("anna_sea.jpg: ")) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("--overwrite")) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.err.contains("1 picture made, 1 failed")) << outcome.err.toStdString();
    EXPECT_TRUE(test::runCli(batch({"--dry-run"})).out.contains("fails  anna_sea.jpg: "));
    outcome = test::runCli(batch({"--again", "--retry-failed"}));
    EXPECT_TRUE(outcome.err.contains("1 picture made, 1 failed")) << outcome.err.toStdString();
    EXPECT_EQ(test::readFile(folder_.file("out/anna_sea.jpg")), "retouched by hand");
    EXPECT_EQ(test::runCli(batch({"--overwrite"})).code, 0);
    EXPECT_NE(test::readFile(folder_.file("out/anna_sea.jpg")), "retouched by hand");
    EXPECT_EQ(test::runCli(batch({"--again"})).code, 0);  // ours from now on

    // A kill may have come between a picture and the record that it is done.
    for (const auto& entry : fs::directory_iterator(folder_.path() / "out" / ".tavrin-batch")) {
        std::string begun;
        std::istringstream lines(test::readFile(entry.path().string()));
        for (std::string line; std::getline(lines, line);) {
            if (line.find("\"begun\"") != std::string::npos) begun += line + "\n";
        }
        test::writeFile(entry.path().string(), begun);
    }
    EXPECT_TRUE(test::runCli(batch()).err.startsWith("tavrin-cli: 2 pictures made, in"));

    // Without the journal nobody knows whose the pictures are. Numbers go on behind them.
    fs::remove_all(folder_.path() / "out" / ".tavrin-batch");
    EXPECT_TRUE(test::runCli(batch()).err.contains("0 pictures made, 2 failed"));
    ASSERT_EQ(test::runCli(batch({"--style", "number"})).code, 0);
    const std::string first = test::readFile(folder_.file("out/BatchFile1.jpg"));
    fs::remove_all(folder_.path() / "out" / ".tavrin-batch");
    test::savePng(test::discOnScreen(60, 36, QColor(40, 160, 60), QColor(20, 20, 240)),
                  folder_.file("shots/sea/anna.png"));
    ASSERT_EQ(test::runCli(batch({"--style", "number"})).code, 0);
    EXPECT_EQ(test::readFile(folder_.file("out/BatchFile1.jpg")), first);
    EXPECT_TRUE(fs::exists(folder_.file("out/BatchFile4.jpg")));
}

TEST_F(OriginalsCliTest, WhatIsThereIsWhatTheJournalSays) {
    const QStringList other = {"--set", "foreground.iContrast=80"};
    ASSERT_TRUE(test::runCli(batch()).err.startsWith("tavrin-cli: 2 pictures made"));
    ASSERT_TRUE(test::runCli(batch(other)).err.startsWith("tavrin-cli: 2 pictures made"));
    // A kill between the second pictures and their records: those of the first stand under the names no longer.
    const std::string journal = folder_.file("out/.tavrin-batch/");
    const auto forEachLine = [&journal](const auto& use) {
        for (const auto& entry : fs::directory_iterator(journal)) {
            std::istringstream lines(test::readFile(entry.path().string()));
            std::string kept;
            for (std::string line; std::getline(lines, line);)
                kept += use(line) ? line + "\n" : "";
            test::writeFile(entry.path().string(), kept);
        }
    };
    const auto isDone = [](const std::string& line) { return line.find("\"done\"") != std::string::npos; };
    const auto orderOf = [](const std::string& line) { return std::stoi(line.substr(line.find("\"order\":") + 8)); };
    int earliest = 1000;
    forEachLine([&](const std::string& line) {
        if (isDone(line)) earliest = std::min(earliest, orderOf(line));
        return true;
    });
    forEachLine([&](const std::string& line) { return !isDone(line) || orderOf(line) <= earliest + 2; });
    EXPECT_TRUE(test::runCli(batch()).err.startsWith("tavrin-cli: 2 pictures made, in"));

    // A file counts by its contents, also when its name has no folder.
    fs::current_path(folder_.path());
    const QStringList laced = {"--overlay-frame", "lace.png"};
    ASSERT_TRUE(test::runCli(batch(laced)).err.startsWith("tavrin-cli: 2 pictures made"));
    ASSERT_TRUE(test::runCli(batch(laced)).err.startsWith("tavrin-cli: 0 pictures made"));
    test::savePng(test::noisePicture(60, 36, 9), folder_.file("lace.png"));
    EXPECT_TRUE(test::runCli(batch(laced)).err.startsWith("tavrin-cli: 2 pictures made"));
}

TEST_F(OriginalsCliTest, LinksAreNotFollowedOutOfTheFolderAndReadOnlyPicturesStay) {
    fs::create_directory(folder_.path() / "elsewhere");
    test::writeFile(folder_.file("elsewhere/mine.jpg"), "mine");
    fs::create_symlink(folder_.file("elsewhere/mine.jpg"), folder_.file("out/anna_sea.jpg"));
    fs::create_symlink(folder_.file("elsewhere/mine.jpg"), folder_.file("out/ben_sea.jpg"));
    fs::create_directory_symlink(folder_.file("elsewhere"), folder_.file("out/sea"));
    for (const char* style : {"combine", "split"}) {
        const auto outcome = test::runCli(batch({"--style", style, "--overwrite"}));
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains("0 pictures made, 2 failed")) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains("leads out of")) << outcome.err.toStdString();
    }
    EXPECT_EQ(test::readFile(folder_.file("elsewhere/mine.jpg")), "mine");
    // One that leads nowhere is replaced.
    fs::remove(folder_.path() / "out" / "ben_sea.jpg");
    fs::create_symlink(folder_.file("elsewhere/new.jpg"), folder_.file("out/ben_sea.jpg"));
    EXPECT_TRUE(test::runCli(batch()).err.contains("0 pictures made, 2 failed"));
    EXPECT_TRUE(test::runCli(batch({"--overwrite"})).err.contains("1 picture made, 1 failed"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder_.file("out/ben_sea.jpg"))));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.file("elsewhere")), {}), 1);

    fs::create_directory_symlink(folder_.file("elsewhere"), folder_.file("linked"));  // what the user named
    EXPECT_EQ(test::runCli(batchOf("shots/sea", "linked", {})).code, 0);
    const std::string made = test::readFile(folder_.file("elsewhere/anna_sea.jpg"));
    fs::permissions(folder_.file("elsewhere/anna_sea.jpg"), fs::perms(0444));
    for (const QStringList& call : {batchOf("shots/sea", "linked", {"--set", "iBlendEdges=2"}),
                                    render(file("linked/anna_sea.jpg"), {"--set", "iBlendEdges=2"})}) {
        const auto outcome = test::runCli(call);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_TRUE(outcome.err.contains("anna_sea.jpg is write-protected")) << outcome.err.toStdString();
    }
    EXPECT_EQ(test::readFile(folder_.file("elsewhere/anna_sea.jpg")), made);
}

TEST_F(OriginalsCliTest, GuestsWhoseNamesAreNoTextKeepTheirPictures) {
    fs::create_directory(folder_.path() / "guests");
    const auto guest = [&](const char* name, QColor colour) {
        test::savePng(test::discOnScreen(60, 36, QColor(40, 160, 60), colour), folder_.file("portrait.png"));
        fs::rename(folder_.file("portrait.png"), folder_.file(std::string("guests/") + name));
    };
    guest("M\xf6ller.png", QColor(200, 60, 50));
    const QStringList numbered = batchOf("guests", "out", {"--style", "number"});
    ASSERT_EQ(test::runCli(numbered).code, 0);
    const std::string first = test::readFile(folder_.file("out/BatchFile1.jpg"));
    guest("M\xfcller.png", QColor(60, 60, 200));
    auto outcome = test::runCli(numbered);
    EXPECT_TRUE(outcome.err.startsWith("tavrin-cli: 1 picture made, 1 made before")) << outcome.err.toStdString();
    EXPECT_TRUE(outcome.out.contains("M\\udcfcller.png")) << outcome.out.toStdString();
    EXPECT_EQ(test::readFile(folder_.file("out/BatchFile1.jpg")), first);
    EXPECT_NE(test::readFile(folder_.file("out/BatchFile2.jpg")), first);
    outcome = test::runCli(batchOf("guests", "out", {"--report", file("report")}));
    EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
    EXPECT_TRUE(fs::exists(folder_.file("out/M\xf6ller_sea.jpg")));
    EXPECT_TRUE(fs::exists(folder_.file("out/M\xfcller_sea.jpg")));
    EXPECT_EQ(test::runCli({"report", "merge", "--out", file("all"), file("report")}).code, 0);
    EXPECT_TRUE(test::readFile(folder_.file("all")).find("\\udcf6") != std::string::npos);
}

TEST_F(OriginalsCliTest, WhatIsNoPlainFileIsToldAndKeepsNobodyWaiting) {
    const std::string pipe = folder_.file("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    fs::create_directory(folder_.path() / "out" / ".tavrin-batch");
    for (const char* name : {"out/.tavrin-batch/x.jsonl", "shots/sea/pipe.png", "pipe.qlx", "pipe.xml"})
        fs::create_symlink(pipe, folder_.file(name));
    const struct {
        QStringList arguments;
        int code;
    } calls[] = {
        {batch(), 1},
        {batch({"--states", file("pipe.qlx")}), 1},
        {makeList("pipe.xml"), 1},
        {batch({"--overlay-frame", file("pipe")}), 1},
        {QStringList{"render", "--bare", "--foreground", file("pipe"), "--background", file("sea.png"), "--out",
                     file("new.png")},
         1},
        {render(file("new.png"), {"--state", file("pipe.qlx")}), 1},
        {render(file("new.png"), {"--overlay-frame", file("pipe")}), 1},
        {render(file("new.png"), {"--alpha", file("pipe")}), 1},
        {{"report", "merge", "--out", file("all"), file("pipe")}, 1},
        {{"info", file("pipe")}, 1},
    };
    for (const auto& call : calls) {
        const auto outcome = test::runCli(call.arguments);
        EXPECT_EQ(outcome.code, call.code) << call.arguments.join(' ').toStdString() << outcome.err.toStdString();
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_TRUE(fs::exists(folder_.file("out/anna_sea.jpg")));
}

TEST_F(OriginalsCliTest, TheNamesOfAJournalLeadNowhere) {
    test::writeFile(folder_.file("victim.jpg"), "mine");
    fs::create_directory(folder_.path() / "out" / ".tavrin-batch");
    fs::create_directory(folder_.path() / "out" / "BatchFile");
    test::writeFile(folder_.file("out/.tavrin-batch/evil.jsonl"),
                    R"({"name":"anna.png|sea.png|","out":"BatchFile/../../victim.jpg","status":"begun","at":"1"})"
                    "\n");
    EXPECT_EQ(test::runCli(batch({"--style", "number"})).code, 0);
    EXPECT_EQ(test::readFile(folder_.file("victim.jpg")), "mine");
    EXPECT_TRUE(fs::exists(folder_.file("out/BatchFile1.jpg")));
}

}  // namespace
}  // namespace tavrin
