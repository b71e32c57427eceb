#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "core/files/StandardPath.h"
#include "formats/ProcessXML.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::readFile;
using test::writeFile;
using testing::HasSubstr;
namespace fs = std::filesystem;

class ProcessXMLTest : public testing::Test {
  protected:
    /// Opens a document with these leaves and makes their element the active one.
    void openLeaves(const std::string& leaves) {
        writeFile(path, "<R><E>" + leaves + "</E></R>");
        ASSERT_TRUE(xml.OpenXMLFile(path)) << xml.error;
        xml.SetActiveElement(xml.FindNodesForPath(".//R/E").at(0));
    }
    bool opens(const std::string& bytes) {
        writeFile(path, bytes);
        return xml.OpenXMLFile(path);
    }
    /// Saves one text; true when the save went well.
    bool saveText(const std::string& text) {
        xml.StartXMLSave(path);
        xml.OpenNode("R");
        xml.SaveStringValue("s", text);
        xml.CloseNode("R");
        return xml.EndXMLSave();
    }
    std::string loadText() {
        EXPECT_TRUE(xml.OpenXMLFile(path)) << xml.error;
        xml.SetActiveElement(xml.FindNodesForPath(".//R").at(0));
        return xml.StringValue("s");
    }

    test::TempFolder folder;
    const std::string path = folder.file("a.xml");
    ProcessXML xml;
};

TEST_F(ProcessXMLTest, WritesTheseBytes) {
    xml.StartXMLSave(path);
    xml.OpenNode("Root");
    xml.OpenNode("Part");
    xml.SaveStringValue("s", "C:/x y_1\n\xE9");
    xml.SaveStringValue("sEmpty", "");
    xml.SaveIntValue("i", std::numeric_limits<std::int64_t>::min());
    xml.SaveDoubleValue("d", 0.1234567);
    xml.SaveDoubleValue("dWhole", -40.0);
    xml.SaveDoubleValue("dNone", std::numeric_limits<double>::quiet_NaN());
    xml.SaveBoolValue("b", true);
    xml.CloseNode("Part");
    xml.SaveBoolValue("b", false);
    xml.CloseNode("Root");
    ASSERT_TRUE(xml.EndXMLSave()) << xml.error;
    EXPECT_EQ(readFile(path),
              "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
              "<Root>\n"
              "    <Part>\n"
              "        <s>C#058/x y#0951#010#233</s>\n"
              "        <sEmpty></sEmpty>\n"
              "        <i>-9223372036854775808</i>\n"
              "        <d>0.123457</d>\n"
              "        <dWhole>-40.000000</dWhole>\n"
              "        <dNone>0.000000</dNone>\n"
              "        <b>1</b>\n"
              "    </Part>\n"
              "    <b>0</b>\n"
              "</Root>\n");
}

TEST_F(ProcessXMLTest, EveryByteComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '~') all += static_cast<char>(byte);
    }
    for (const std::string& text :
         {all, std::string("   "), std::string("a#b"), std::string(), std::string("\n\t\r\n")}) {
        ASSERT_TRUE(saveText(text)) << xml.error;
        EXPECT_EQ(loadText(), text);
    }
    EXPECT_EQ(escapeText("a#b"), "a#035b");
}

TEST_F(ProcessXMLTest, CommaLocalesChangeNothing) {
    const char* set = nullptr;
    for (const char* name : {"de_DE.UTF-8", "de_DE", "fr_FR.UTF-8", "fr_FR"}) {
        if (!set) set = std::setlocale(LC_ALL, name);
    }
    if (!set) GTEST_SKIP() << "no locale with a decimal comma here";
    xml.StartXMLSave(path);
    xml.SaveDoubleValue("d", 12345.5);
    EXPECT_TRUE(xml.EndXMLSave());
    openLeaves("<d>12345.5</d>");
    const double back = xml.DoubleValue("d");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(back, 12345.5);
}

TEST_F(ProcessXMLTest, TextIsLimitedAsItStandsAndEscaped) {
    ASSERT_TRUE(saveText("old"));
    EXPECT_TRUE(saveText(std::string(9'999, 'x')));
    EXPECT_EQ(loadText().size(), 9'999U);
    EXPECT_TRUE(saveText(std::string(2'499, ':')));
    for (const std::string& tooLong : {std::string(10'000, 'x'), std::string(2'500, ':')}) {
        EXPECT_FALSE(saveText(tooLong));
        EXPECT_THAT(xml.error, HasSubstr("the text of s is too long to be saved"));
        EXPECT_EQ(loadText(), std::string(2'499, ':')) << "the old file has to stay";
    }
    openLeaves("<s>" + std::string(10'000, 'x') + "</s>");
    EXPECT_EQ(xml.StringValue("s"), "");
    EXPECT_THAT(xml.error, HasSubstr("R/E/s is longer"));
}

TEST_F(ProcessXMLTest, ReadsTheLastOfANameAndNothingAsZero) {
    openLeaves("<s>first</s><i>1</i><s> last <![CDATA[one]]></s><i>2</i><deep><i>3</i></deep>");
    EXPECT_EQ(xml.StringValue("s"), " last one");
    EXPECT_EQ(xml.IntValue("i"), 2);
    EXPECT_EQ(xml.FindNodesForName("i").size(), 2U);
    EXPECT_EQ(xml.StringValue("no"), "");
    EXPECT_EQ(xml.IntValue("no"), 0);
    EXPECT_EQ(xml.DoubleValue("no"), 0.0);
    EXPECT_FALSE(xml.BoolValue("no"));
    xml.SetActiveElement({});
    EXPECT_EQ(xml.IntValue("i"), 0);
    EXPECT_EQ(xml.error, "");
    EXPECT_TRUE(xml.FindNodesForPath("not [ a path").empty());
}

TEST_F(ProcessXMLTest, NumbersAreReadAsFarAsTheyGoAndRefusedWhenTheyDoNotFit) {
    openLeaves("<a> 12.7 points</a><b>+3</b><c></c><d>-.5e1x</d><t>YES</t><u>002</u><v>no</v>");
    EXPECT_EQ(xml.IntValue("a"), 12);
    EXPECT_EQ(xml.DoubleValue("a"), 12.7);
    EXPECT_EQ(xml.Int32Value("b"), 3);
    EXPECT_EQ(xml.IntValue("c"), 0);
    EXPECT_EQ(xml.DoubleValue("d"), -5.0);
    EXPECT_TRUE(xml.BoolValue("t"));
    EXPECT_TRUE(xml.BoolValue("u"));
    EXPECT_FALSE(xml.BoolValue("v"));
    EXPECT_EQ(xml.error, "");
    for (const char* wrong : {"9223372036854775808", "-9223372036854775809", "2147483648", "word"}) {
        openLeaves(std::string("<i>") + wrong + "</i>");
        xml.Int32Value("i");
        EXPECT_THAT(xml.error, testing::AllOf(HasSubstr(path), HasSubstr("R/E/i"), HasSubstr(wrong)));
    }
    for (const char* wrong : {"1e999", "nan", "-inf", "infinity 5"}) {
        openLeaves(std::string("<d>") + wrong + "</d>");
        EXPECT_EQ(xml.DoubleValue("d"), 0.0);
        EXPECT_THAT(xml.error, HasSubstr("R/E/d")) << wrong;
    }
}

TEST_F(ProcessXMLTest, TextWithATildeIsCleanedUpAsAPath) {
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    openLeaves("<a>~/Pictures//b.jpg</a><b>note // ~ x/</b><c>one//two</c>");
    EXPECT_EQ(xml.StringValue("a"), home + "/Pictures/b.jpg");
    EXPECT_EQ(xml.StringValue("b"), "note / ~ x");
    EXPECT_EQ(xml.StringValue("c"), "one//two");

    fs::create_directories(folder.path() / "real/inner");
    fs::create_directory_symlink(folder.path() / "real/inner", folder.path() / "link");
    EXPECT_EQ(standardizePath(folder.file("link/../x")), fs::canonical(folder.path()) / "real/x");
    EXPECT_EQ(standardizePath("/a/./b/../../../c/"), "/c");
    EXPECT_EQ(standardizePath("a/../b"), "a/../b");
    EXPECT_EQ(standardizePath("/.."), "/");
    EXPECT_EQ(standardizePath("~stranger/x"), "~stranger/x");
}

TEST_F(ProcessXMLTest, UnescapingBadHandWorkStaysInBounds) {
    EXPECT_EQ(unescapeText("a#"), std::string("a\0", 2));
    EXPECT_EQ(unescapeText("#04"), "\4");
    EXPECT_EQ(unescapeText("#321x"), "Ax");
    EXPECT_EQ(unescapeText("#x41#065"), std::string("\0A", 2));
}

TEST_F(ProcessXMLTest, RefusesWhatIsNoXML) {
    EXPECT_FALSE(xml.OpenXMLFile(folder.file("none.xml")));
    EXPECT_TRUE(xml.isMissing());
    EXPECT_THAT(xml.error, HasSubstr("none.xml"));
    EXPECT_FALSE(xml.OpenXMLFile(folder.path().string()));
    for (const char* bytes :
         {"", "text", "<a>", "<a></b>", "<a/><b/>", "<a/>text", "<a", "<?xml version=\"1.0\"?>"}) {
        EXPECT_FALSE(opens(bytes)) << bytes;
        EXPECT_THAT(xml.error, HasSubstr(path)) << bytes;
    }
    EXPECT_FALSE(opens(std::string("<a>\0</a>", 8)));
    std::string deep;
    for (int i = 0; i < 100'000; ++i)
        deep += "<a>";
    for (int i = 0; i < 100'000; ++i)
        deep += "</a>";
    EXPECT_FALSE(opens(deep));
    EXPECT_THAT(xml.error, HasSubstr("nested too deeply"));
    EXPECT_FALSE(opens("<a>" + std::string(2'000'000, '<') + "</a>"));
    EXPECT_TRUE(opens(" <!-- a --> <a/>\n"));
}

}  // namespace
}  // namespace tavrin
