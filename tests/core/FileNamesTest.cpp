// Names that are no text, and names that are of one file.
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include <QJsonDocument>
#include <QJsonObject>

#include "core/files/FileIdentity.h"
#include "core/files/NameText.h"
#include "formats/SafeFile.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

TEST(NameText, EveryNameComesBackFromItsOwnLine) {
    using namespace std::string_literals;
    const std::string names[] = {
        "plain.jpg",
        "Möller.jpg",
        "M\xf6ller.jpg",
        "M\xfcller.jpg",
        "M\xef\xbf\xbdller.jpg",              // the character that stands for what cannot be read
        "\xef\xbb\xbfmark.jpg",               // the mark of a byte order
        "\xef\xbb\xbf\xff\xef\xbb\xbf",       // the same around a byte
        "\xed\xb3\xb6.jpg",                   // a lone surrogate in three bytes, which is no UTF-8
        "\xf0\x9f\x98\x80\xf0\x9f\x98.jpg"s,  // a character beyond 16 bits, and one that is cut short
        "\\udcf6\n\"|\x7f.jpg",
        "a\0b"s,
        "",
    };
    std::set<QString> texts;
    for (const std::string& name : names) {
        const QByteArray line = QJsonDocument(QJsonObject{{"name", textOfName(name)}}).toJson();
        const QString text = QJsonDocument::fromJson(line).object()["name"].toString();
        EXPECT_EQ(nameOfText(text), name) << line.constData();
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), std::size(names));
    EXPECT_EQ(textOfName("Möller.jpg"), QString::fromUtf8("Möller.jpg"));
}

TEST(KnownFiles, AreToldApartByWhatTheyAre) {
    test::TempFolder folder;
    test::writeFile(folder.file("one"), "1");
    test::writeFile(folder.file("two"), "1");
    fs::create_hard_link(folder.file("one"), folder.file("hard"));
    fs::create_symlink(folder.file("one"), folder.file("soft"));
    fs::create_symlink(folder.file("none"), folder.file("nowhere"));
    KnownFiles files;
    files.add(folder.file("one"));
    files.add(folder.file("none"));
    for (const char* name : {"one", "hard", "soft"}) {
        ASSERT_NE(files.find(folder.file(name)), nullptr) << name;
        EXPECT_EQ(*files.find(folder.file(name)), folder.file("one"));
        EXPECT_TRUE(isSameFile(folder.file(name), folder.file("one")));
    }
    for (const char* name : {"two", "none", "nowhere"}) {
        EXPECT_EQ(files.find(folder.file(name)), nullptr) << name;
        EXPECT_FALSE(isSameFile(folder.file(name), folder.file("one")));
    }
    EXPECT_TRUE(isSameFile(folder.file("none"), folder.file("../" + folder.path().filename().string() + "/none")));
    EXPECT_FALSE(isSameFile("", ""));
}

TEST(SafeFile, TakesNamesThatAreNoText) {
    test::TempFolder folder;
    const std::string one = folder.file("M\xf6ller.qlx"), two = folder.file("M\xfcller.qlx");
    for (const std::string& path : {one, two, one}) {
        SafeSave save;
        ASSERT_TRUE(save.begin(path, Readers::everyone)) << save.problem();
        save.write(path);
        ASSERT_TRUE(save.commit()) << save.problem();
    }
    EXPECT_EQ(readSafeFile(one, 1000).bytes, one);
    EXPECT_EQ(readSafeFile(two, 1000).bytes, two);
}

}  // namespace
}  // namespace tavrin
