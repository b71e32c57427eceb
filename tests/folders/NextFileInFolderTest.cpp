#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "folders/HistoryFile.h"
#include "folders/NextFileInFolder.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Names = std::vector<std::string>;

class NextFileInFolderTest : public testing::Test {
  protected:
    void put(const std::string& name) { test::writeFile(folder_.file(name), "x"); }
    NextFileInFolder scanner() const {
        NextFileInFolder scanner;
        scanner.setFolderToCheck(folder_.path().string());
        return scanner;
    }

    test::TempFolder folder_, elsewhere_;
};

TEST_F(NextFileInFolderTest, FindsPhotosOfTheFolderItselfInTheOrderOfPeople) {
    for (const char* name :
         {"b.JPG", "A.jpeg", "c.Tif", "D.TIFF", "e.png", "f.gif", "g.jpg.txt", ".jpg", "jpg", "s.qlx", "l.XML"})
        put(name);
    fs::create_directories(folder_.path() / "folder.jpg");  // a folder counts by its name ...
    put("folder.jpg/inside.jpg");                           // ... and what is in it does not
    NextFileInFolder files = scanner();
    files.FindPhotosInFolder();
    EXPECT_EQ(files.oFilesInFolder, (Names{"A.jpeg", "b.JPG", "c.Tif", "D.TIFF", "e.png", "folder.jpg"}));
    EXPECT_EQ(files.iFileCount, 6);

    files.oFilesInFolder.push_back("UseCurrent");
    EXPECT_EQ(files.iFileCount, 6);
    put("B2.jpg");
    files.FindPhotosInFolder();
    EXPECT_EQ(files.oFilesInFolder, (Names{"A.jpeg", "b.JPG", "B2.jpg", "c.Tif", "D.TIFF", "e.png", "folder.jpg"}));

    files.FindQLXInFolder();
    EXPECT_EQ(files.oFilesInFolder, Names{"s.qlx"});
    files.FindXMLFilesInFolder();
    EXPECT_EQ(files.oFilesInFolder, Names{"l.XML"});
    files.FindPhotosInFolderAndSubfolders();
    EXPECT_EQ(files.iFileCount, 8);
    EXPECT_EQ(std::count(files.oFilesInFolder.begin(), files.oFilesInFolder.end(), "folder.jpg/inside.jpg"), 1);

    files.setFolderToCheck(folder_.file("missing"));
    files.FindPhotosInFolder();
    EXPECT_EQ(files.iFileCount, 0);
    files.setFolderToCheck("");
    files.FindPhotosInFolder();
    EXPECT_TRUE(files.oFilesInFolder.empty());
}

TEST_F(NextFileInFolderTest, TheHistoryTellsWhatIsNextAcrossInstances) {
    put("a.jpg");
    put("b.jpg");
    NextFileInFolder files = scanner();
    EXPECT_EQ(files.NextFileToProcess(), "a.jpg");
    EXPECT_EQ(files.NextFileToProcess(), "a.jpg");  // without a history the first one every time

    files.setHistoryFileLocation(elsewhere_.path().string(), "History.dat");
    EXPECT_EQ(*files.sHistoryFileName, elsewhere_.file("History.dat"));
    files.AddProcessedFiles("a.jpg");
    EXPECT_EQ(files.iProcessedCount, 1);

    NextFileInFolder other = scanner();
    other.setHistoryFileLocation(elsewhere_.path().string() + "/", "History.dat");
    EXPECT_EQ(other.NextFileToProcess(), "b.jpg");
    other.AddProcessedFiles("b.jpg");
    EXPECT_EQ(other.NextFileToProcess(), std::nullopt);
    put("B.jpg");
    EXPECT_EQ(other.NextFileToProcess(), "B.jpg");  // keys are compared byte by byte

    other.ClearHistoryFile();
    EXPECT_EQ(other.oProcessedFiles.size(), 2u);
    EXPECT_EQ(other.NextFileToProcess(), "a.jpg");
    EXPECT_EQ(other.iProcessedCount, 0);
    for (const char* broken : {"", "<plist", "<plist version=\"1.0\"><dict/></plist>", "bplist00"}) {
        test::writeFile(elsewhere_.file("History.dat"), broken);
        EXPECT_EQ(other.NextFileToProcess(), "a.jpg") << broken;
    }
}

TEST_F(NextFileInFolderTest, ChangesAreCountedAndAHistoryThatRestsIsReadOnce) {
    put("a.jpg");
    NextFileInFolder files = scanner();
    const std::string history = elsewhere_.file("History.dat");
    files.setHistoryFileLocation(elsewhere_.path().string(), "History.dat");
    std::uint64_t before = 0;
    const auto isOther = [&] {
        files.FindPhotosInFolder();
        files.ReadHistoryFile();
        return std::exchange(before, files.changes()) != files.changes();
    };
    EXPECT_TRUE(isOther());
    EXPECT_FALSE(isOther());
    put("b.jpg");
    EXPECT_TRUE(isOther());
    // Two of one size, one after the other: the clock of files may not tell them apart.
    for (const char* key : {"a.jpg", "c.jpg"}) {
        ASSERT_EQ(writeHistory(history, {key}), "");
        EXPECT_TRUE(isOther()) << key;
        EXPECT_FALSE(isOther());
        EXPECT_EQ(files.oProcessedFiles, Names{key});
    }
    const auto longAgo = std::filesystem::last_write_time(history) - std::chrono::hours(1);
    std::filesystem::last_write_time(history, longAgo);
    EXPECT_FALSE(isOther());
    ASSERT_EQ(writeHistory(history, {"b.jpg"}), "");
    std::filesystem::last_write_time(history, longAgo);
    EXPECT_FALSE(isOther()) << "not read again";
    files.AddProcessedFiles("d.jpg");
    EXPECT_TRUE(isOther());
    files.ClearHistoryFile();
    EXPECT_TRUE(isOther());
    EXPECT_TRUE(files.oProcessedFiles.empty());
    put("c.jpg");
    const std::uint64_t asked = files.changes();
    EXPECT_EQ(files.NextFileToProcess(), "a.jpg");
    EXPECT_GT(files.changes(), asked);
}

TEST_F(NextFileInFolderTest, TheHistoryIsAPlainPropertyListOfStrings) {
    const std::string path = folder_.file("History.dat");
    const Names keys = {"a & b<c>.jpg", " ", "tab\there\nand there\r.png", "\xC3\xA4\xE6\xBC\xA2.jpg", "]]>", ""};
    ASSERT_EQ(writeHistory(path, keys), "");
    EXPECT_EQ(readHistory(path), keys);
    const std::string text = test::readFile(path);
    EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    EXPECT_NE(text.find("<plist version=\"1.0\">\n<array>\n\t<string>a &amp; b&lt;c&gt;.jpg</string>"),
              std::string::npos);
    // As other programs write it.
    test::writeFile(path,
                    "<?xml version=\"1.0\"?><plist version='1.0'><array><string>x</string><integer>3</integer>"
                    "<string/></array></plist>");
    EXPECT_EQ(readHistory(path), (Names{"x", ""}));
    EXPECT_NE(writeHistory(folder_.file("missing/History.dat"), keys), "");
}

}  // namespace
}  // namespace tavrin
