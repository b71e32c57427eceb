// Mails on their way to a server, and every way in which that can end.
#include <atomic>
#include <gtest/gtest.h>
#include <thread>

#include <QByteArray>
#include <QList>
#include <QRandomGenerator>

#include "delivery/mail/MailMan.h"
#include "delivery/mail/MailText.h"
#include "support/Files.h"
#include "support/SmtpServer.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using Fault = test::SmtpHabits::Fault;

std::string randomBytes(int count) {
    QRandomGenerator random(7);
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(random.bounded(256));
    return bytes;
}

class MailSendingTest : public testing::Test {
  protected:
    Email email(int attached = 3000) {
        Email email;
        email.setSubject("Your picture");
        email.setBody("Here it is.");
        email.setFrom("studio@example.org");
        email.AddTo("", "anna@example.org");
        if (attached == 0) return email;
        test::writeFile(folder_.file("anna.jpg"), bytes_ = randomBytes(attached));
        email.AddFileAttachment(folder_.file("anna.jpg"));
        return email;
    }
    MailMan manFor(const test::SmtpServer& server) {
        MailMan man;
        man.setSmtpHost("127.0.0.1");
        man.setSmtpPort(server.port());
        man.setPatience(std::chrono::seconds(1));
        return man;
    }

    test::TempFolder folder_;
    std::string bytes_;
};

TEST_F(MailSendingTest, AMailArrivesOnceWithItsWordsAndItsFile) {
    test::SmtpServer server;
    const std::string name =
        "Gr\xC3\xBC\xC3\x9F"
        "e \"1\".jpg";
    const std::string subject =
        "Gr\xC3\xBC\xC3\x9F"
        "e vom Sommerfest, mit einem Bild und noch einem Wort \xF0\x9F\x98\x80";
    test::writeFile(folder_.file(name), bytes_ = randomBytes(200'000));
    Email mail;
    mail.setSubject(subject);
    mail.setBody("One\n.Two\nf\xC3\xBCr");
    mail.setFrom("studio@example.org");
    mail.setReplyTo("maria@example.org");
    mail.AddTo("", "anna@example.org");
    mail.AddFileAttachment(folder_.file(name));
    MailMan man = manFor(server);
    EXPECT_EQ(man.SendEmail(mail), 1) << man.LastErrorText();
    EXPECT_EQ(man.CloseSmtpConnection(), 1);
    ASSERT_EQ(server.mails().size(), 1u);
    EXPECT_TRUE(server.heard("EHLO [127.0.0.1]")) << "the machine's name is nobody's business";
    EXPECT_TRUE(server.heard("MAIL FROM:<studio@example.org>"));
    EXPECT_TRUE(server.heard("RCPT TO:<anna@example.org>"));
    const QByteArray text = QByteArray::fromStdString(server.mails()[0]);
    EXPECT_TRUE(text.contains("\r\nTo: <anna@example.org>\r\n"));
    EXPECT_TRUE(text.contains("\r\nReply-To: <maria@example.org>\r\n"));
    EXPECT_TRUE(text.contains("One\r\n..Two\r\nf=C3=BCr"));
    EXPECT_TRUE(text.contains("filename*=utf-8''Gr%C3%BC%C3%9Fe%20%221%22.jpg\r\n"));
    QByteArray words, head = text.mid(text.indexOf("\r\nSubject: ") + 11);
    for (const QByteArray& line : head.left(head.indexOf("\r\nMessage-ID")).split('\n'))
        words += QByteArray::fromBase64(line.trimmed().mid(10).chopped(2));
    EXPECT_EQ(words.toStdString(), subject);
    const qsizetype file = text.indexOf("\r\n\r\n", text.indexOf("Content-Type: image/jpeg")) + 4;
    EXPECT_EQ(QByteArray::fromBase64(text.mid(file, text.indexOf("\r\n--", file) - file)).toStdString(), bytes_);
}

TEST_F(MailSendingTest, AFileThatHoldsNoCertificatesIsNamed) {
    test::SmtpServer server;
    test::writeFile(folder_.file("none.pem"), "no certificate");
    for (const char* name : {"none.pem", "gone.pem"}) {
        MailMan man;
        MailServer smtps{"127.0.0.1", "", "", server.port(), true};
        smtps.caFile = folder_.file(name);
        man.setServer(smtps);
        EXPECT_EQ(man.SendEmail(email()), 0);
        EXPECT_EQ(man.end(), MailEnd::refused);
        EXPECT_NE(man.LastErrorText().find(smtps.caFile), std::string::npos) << man.LastErrorText();
    }
}

TEST_F(MailSendingTest, AFileWhoseNameIsNoTextIsAttached) {
    test::SmtpServer server;
    const std::string path = folder_.file("a\xff\n%\xfe.jpg");
    test::writeFile(path, "the picture");
    Email mail = email();
    mail.AddFileAttachment(path);
    ASSERT_TRUE(mail.LastMethodSuccess()) << mail.LastErrorText();
    MailMan man = manFor(server);
    EXPECT_EQ(man.SendEmail(mail), 1) << man.LastErrorText();
    ASSERT_EQ(server.mails().size(), 1u);
    const std::string text = server.mails()[0];
    EXPECT_NE(text.find(QByteArray("the picture").toBase64().toStdString()), std::string::npos);
    const std::size_t name = text.find("filename*=utf-8''a");
    ASSERT_NE(name, std::string::npos);
    EXPECT_EQ(text.substr(text.find("\r\n", name) - 7, 7), "%3F.jpg");
    EXPECT_NE(text.find("_%25"), std::string::npos) << "no line break in the name that the recipient sees";
}

TEST_F(MailSendingTest, OnlyTheRightPasswordOpensTheServer) {
    test::SmtpHabits habits;
    habits.auth = QByteArray("\0studio\0pass w\xC3\xB6rd", 18).toBase64().toStdString();
    test::SmtpServer server(habits);
    MailMan man = manFor(server);
    man.setSmtpUsername("studio");
    man.setSmtpPassword("wrong");
    EXPECT_EQ(man.SendEmail(email()), 0);
    EXPECT_EQ(man.end(), MailEnd::refused);
    EXPECT_NE(man.LastErrorText().find("does not take the account name or the password"), std::string::npos);
    EXPECT_FALSE(server.heard("MAIL"));
    man.setSmtpPassword("pass w\xC3\xB6rd");
    EXPECT_EQ(man.SendEmail(email()), 1) << man.LastErrorText();
    EXPECT_EQ(server.mails().size(), 1u);
}

struct Ending {
    const char* what;
    test::SmtpHabits habits;
    MailEnd end;
    std::size_t mails;  ///< that the server has
    bool closed = false;
    const char* told = "";
};

TEST_F(MailSendingTest, EveryEndIsToldAsItIs) {
    const Ending endings[] = {
        {"silent", {Fault::hangAtStart, "", "", "", 0}, MailEnd::notSent, 0, false, "silent for 1 seconds"},
        {"nobody", {Fault::none, "", "550 no such user", "", 0}, MailEnd::refused, 0, true, "550 no such user"},
        {"later", {Fault::none, "", "451 come back", "", 0}, MailEnd::notSent, 0, true, "451 come back"},
        {"breaks off", {Fault::closeInData, "", "", "", 0}, MailEnd::notSent, 0, false, "broke off"},
        {"no answer", {Fault::closeAfterData, "", "", "", 0}, MailEnd::unknown, 1, false, "may have gone"},
        {"silent then", {Fault::hangAfterData, "", "", "", 0}, MailEnd::unknown, 1, false, "may have gone"},
        {"not wanted", {Fault::none, "", "", "554 not wanted", 0}, MailEnd::refused, 1, true, "554 not wanted"},
        {"no goodbye", {Fault::hangAtGoodbye, "", "", "", 0}, MailEnd::sent, 1, false, ""},
        {"just gone", {Fault::closeAtGoodbye, "", "", "", 0}, MailEnd::sent, 1, false, ""},
        {"too large", {Fault::none, "", "", "", 40'000}, MailEnd::refused, 0, false, "takes 0.0 MB at most"},
    };
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.what);
        test::SmtpServer server(ending.habits);
        MailMan man = manFor(server);
        EXPECT_EQ(man.SendEmail(email(ending.habits.fault == Fault::closeInData ? 20'000'000 : 100'000)),
                  ending.end == MailEnd::sent ? 1 : 0);
        EXPECT_EQ(man.end(), ending.end) << man.LastErrorText();
        EXPECT_EQ(server.mails().size(), ending.mails);
        EXPECT_EQ(man.CloseSmtpConnection() == 1, ending.closed);
        EXPECT_NE(man.LastErrorText().find(ending.told), std::string::npos) << man.LastErrorText();
        EXPECT_EQ(ending.habits.size > 0 && server.heard("MAIL"), false) << "told before anything is sent";
    }
}

TEST_F(MailSendingTest, WithoutTheEncryptionThatWasAskedForNothingIsSaid) {
    test::SmtpServer server;
    MailMan man = manFor(server);
    man.setStartTLS(true);
    man.setSmtpUsername("studio");
    man.setSmtpPassword("secret");
    EXPECT_EQ(man.SendEmail(email()), 0);
    EXPECT_EQ(man.end(), MailEnd::refused);
    EXPECT_FALSE(server.heard("AUTH") || server.heard("MAIL"));
}

TEST_F(MailSendingTest, AStopEndsItBeforeTheMailIsGone) {
    test::SmtpServer server({Fault::hangAtStart, "", "", "", 0});
    std::atomic<bool> stop = false;
    MailMan man = manFor(server);
    man.setPatience(std::chrono::seconds(60));
    man.setStop(&stop);
    std::thread person([&stop] { stop = true; });
    EXPECT_EQ(man.SendEmail(email()), 0);
    person.join();
    EXPECT_EQ(man.end(), MailEnd::stopped);
    // Nor does it go when what has to be noted before cannot be noted.
    server.setHabits({});
    stop = false;
    man.setBeforeEnd([] { return false; });
    Email empty = email(0), emptyFile = email(0);
    empty.setBody("");
    test::writeFile(folder_.file("empty.jpg"), "");
    emptyFile.AddFileAttachment(folder_.file("empty.jpg"));
    for (const Email& one : {email(0), email(3000), empty, emptyFile}) {
        EXPECT_EQ(man.SendEmail(one), 0);
        EXPECT_EQ(man.end(), MailEnd::notSent);
    }
    EXPECT_TRUE(server.mails().empty());
}

TEST_F(MailSendingTest, NoTextBringsInLinesOfItsOwn) {
    test::SmtpServer server;
    for (const char* address :
         {"a@b.org\r\nBcc: x@y.org", "a@b.org\nx", "a@b.org> SIZE=1", "a@b.org,x@y.org", "-a@b.org", "a b@c.org",
          "a@b.org\x7f", "\xff@b.org", "@", "a@", "@b.org", "a@b@c.org", "anna", ""}) {
        Email mail;
        mail.setFrom("studio@example.org");
        mail.AddTo("", address);
        EXPECT_EQ(manFor(server).SendEmail(mail), 0) << address;
    }
    EXPECT_TRUE(server.commands().empty()) << "nobody was asked";
    Email mail;
    mail.setSubject("Hello\r\nBcc: x@y.org");
    mail.setBody("x\r\n.\r\nMAIL FROM:<evil@example.org>\r\n");
    mail.setFrom("studio@example.org");
    mail.AddTo("Anna\r\nBcc: x@y.org", "anna@example.org");
    test::writeFile(folder_.file("a.jpg"), "x");
    mail.AddFileAttachment(folder_.file("a.jpg"), "a\r\nBcc: x@y.org.jpg");
    EXPECT_EQ(manFor(server).SendEmail(mail), 1);
    ASSERT_EQ(server.mails().size(), 1u);
    EXPECT_EQ(server.mails()[0].find("\r\nBcc:"), std::string::npos);
    EXPECT_FALSE(server.heard("MAIL FROM:<evil"));
}

TEST_F(MailSendingTest, WhatIsMissingIsToldInPlainWords) {
    Email gone = email(0);
    gone.AddFileAttachment(folder_.file("gone.jpg"));
    EXPECT_FALSE(gone.LastMethodSuccess());
    EXPECT_NE(gone.LastErrorText().find("gone.jpg cannot be attached"), std::string::npos);
    test::SmtpServer server;
    const auto told = [&](const std::string& host, int port) {
        MailMan man;
        man.setSmtpHost(host);
        man.setSmtpPort(port);
        EXPECT_EQ(man.SendEmail(email(0)), 0);
        return man.LastErrorText();
    };
    EXPECT_NE(told("", 25).find("There is no mail server"), std::string::npos);
    EXPECT_NE(told("127.0.0.1", 0).find("port"), std::string::npos);
    EXPECT_NE(told("127.0.0.1/x?y", 25).find("no name of a mail server"), std::string::npos);
    EXPECT_NE(told("no-such-host.invalid", 25).find("is found"), std::string::npos);
}

}  // namespace
}  // namespace tavrin
