// Why a mail or a sheet did not go, in the language of the window.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "delivery/words/Says.h"
#include "ui/ReasonText.h"
#include "ui/frame/Language.h"

namespace tavrin {
namespace {

class ReasonTest : public testing::Test {
  protected:
    void TearDown() override { useLanguage(QLocale::c()); }
};

TEST_F(ReasonTest, NoSentenceIsTakenForAnotherWhateverStandsInIt) {
    for (const char* language : {"de", "es"}) {
        useLanguage(QLocale(language));
        for (std::size_t i = 0; i < wordsOfReasons().size(); ++i) {
            const std::string parts[] = {"/a b/(c).d", "7, 8", "$9", "\\0"};
            const std::string english = said(static_cast<Says>(i), {parts[0], parts[1], parts[2], parts[3]});
            QString expected = QCoreApplication::translate("Delivery", wordsOfReasons()[i]);
            for (int place = 0; place < 4; ++place)
                expected.replace('%' + QString::number(place + 1), QString::fromStdString(parts[place]));
            EXPECT_EQ(reasonText(english), expected);
            EXPECT_NE(reasonText(english), QString::fromStdString(english));
        }
    }
}

TEST_F(ReasonTest, ServersWordsAndNamesStayAndWordsInASentenceAreTranslated) {
    useLanguage(QLocale("de"));
    EXPECT_EQ(reasonText(said(Says::keepsSilent, {"mail.example.org", "30"})),
              "mail.example.org schweigt seit 30 Sekunden.");
    EXPECT_EQ(reasonText("mail.example.org refuses the mail: 550 no such user\nThe outbox is full (mails: 2, MB: 0); "
                         "it takes 2 mails and 1 MB. Send or discard some of them."),
              "mail.example.org weist die Mail ab: 550 no such user\nDer Postausgang ist voll (Mails: 2, MB: 0); er "
              "fasst 2 Mails und 1 MB. Senden oder verwerfen Sie einige davon.");
    const std::string inks = said(Says::profileUnusable, {"/p/%2.icc", said(Says::fourInks)});
    EXPECT_EQ(reasonText(inks),
              QString("Das Farbprofil /p/%2.icc ist nicht zu verwenden: ") + reasonText(said(Says::fourInks)) + '.');
    const std::string words = said(Says::outOfPaper) + ", " + said(Says::coverOpen);
    EXPECT_EQ(
        reasonText(said(Says::printerStoppedBy, {"a \"b\" (c)", words})),
        QString::fromUtf8("Der Drucker \u201ea \"b\" (c)\u201c ist angehalten: kein Papier, eine Klappe ist offen."));
    EXPECT_EQ(reasonText("/a: b/sheet.pdf: the disk is full."),
              QString::fromUtf8("/a: b/sheet.pdf: der Datentr\u00e4ger ist voll."));
    for (const char* other :
         {"", "550 5.1.1 unknown, really", "some words of a printer", "%1", "out of paper, and so on"})
        EXPECT_EQ(reasonText(other), other);
    useLanguage(QLocale::c());
    EXPECT_EQ(reasonText(inks), QString::fromStdString(inks));
}

}  // namespace
}  // namespace tavrin
