// The mail page: a letter with the finished picture, its outbox, the mail server's settings.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTest>

#include "formats/SettingsFile.h"
#include "support/Files.h"
#include "support/SmtpServer.h"
#include "ui/WindowTest.h"
#include "ui/mail/MailPage.h"

namespace tavrin {
namespace {

using Fault = test::SmtpHabits::Fault;

class MailTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        QLXInfo& settings = *info_->oQLXInfo;
        settings.sSMTPHost = "127.0.0.1";
        settings.sSMTPort = std::to_string(server_.port());
        test::writeFile(deliveryConfFile(), "relay-account = studio@example.org\ninstallation = m1\n");
        std::filesystem::create_directories(Places::current().tempFilesFolder());
        open();
        ASSERT_TRUE(test::eventually([&] { return button("buttonSendMail")->isEnabled(); }));
        window_->panel()->selectMainTab(8);
        type("textEmailTo", "anna@example.org");
        type("textEmailTitle", "Your picture");
        window_->findChild<QPlainTextEdit*>("myEmailTextView")->setPlainText("Here it is.");
    }
    void TearDown() override {
        qputenv("PATH", path_);
        WindowTest::TearDown();
    }
    QAbstractButton* button(const char* name) { return window_->findChild<QAbstractButton*>(name); }
    void type(const char* name, const char* text) {
        auto* field = window_->findChild<QLineEdit*>(name);
        field->clear();
        QTest::keyClicks(field, text);
    }
    void press(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    QListWidget* outbox() { return window_->findChild<QListWidget*>("listOutbox"); }
    bool says(const QString& words) {
        return test::eventually([&] { return window_->messages()->message().contains(words); });
    }
    /// Closes the alerts that are open. @return their titles and texts
    QStringList takeAlerts() {
        QStringList all;
        for (auto* box : window_->findChildren<QMessageBox*>()) {
            all << box->text() + '|' + box->informativeText();
            box->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return all;
    }
    /// A mail program of the test's own, which writes down what it is called with.
    void makeMailProgram() {
        std::filesystem::create_directories(folder_.file("bin"));
        const std::string program = folder_.file("bin/xdg-email");
        test::writeFile(program, "#!/bin/sh\nfor word; do echo \"$word\"; done > '" + folder_.file("asked.new") +
                                     "'\nmv '" + folder_.file("asked.new") + "' '" + folder_.file("asked") + "'\n");
        std::filesystem::permissions(program, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(folder_.file("bin")) + ":" + path_);
    }

    const QByteArray path_ = qgetenv("PATH");
    test::SmtpServer server_;
};

TEST_F(MailTest, TheFinishedPictureGoesOutOnce) {
    type("textEmailFrom", "maria@example.org");
    press("buttonSendMail");
    ASSERT_TRUE(says("The mail to anna@example.org is sent."));
    ASSERT_EQ(server_.mails().size(), 1u);
    const QByteArray mail = QByteArray::fromStdString(server_.mails()[0]);
    EXPECT_TRUE(mail.contains("Subject: Your picture\r\n"));
    EXPECT_TRUE(mail.contains("Reply-To: <maria@example.org>\r\n"));
    EXPECT_TRUE(mail.contains("Here it is."));
    EXPECT_TRUE(mail.contains("m1.jpg\"\r\n")) << "the installation's mark";
    const qsizetype file = mail.indexOf("\r\n\r\n", mail.indexOf("Content-Type: image/jpeg")) + 4;
    const QImage sent = QImage::fromData(QByteArray::fromBase64(mail.mid(file, mail.indexOf("\r\n--", file) - file)));
    EXPECT_EQ(sent.size(), QSize(240, 300));
    EXPECT_TRUE(takeAlerts().isEmpty());
    EXPECT_TRUE(std::filesystem::is_empty(Places::current().tempFilesFolder()));
    EXPECT_TRUE(std::filesystem::is_empty(Outbox::usualFolder()));
}

TEST_F(MailTest, WhatDoesNotGoIsAlertedOnceAndGoesFromTheOutbox) {
    server_.setHabits({Fault::none, "", "451 come back", "", 0});
    press("buttonSendMail");
    ASSERT_TRUE(says("It is kept in the outbox."));
    EXPECT_EQ(takeAlerts(), QStringList("Error|Message Failed to Send"));
    EXPECT_TRUE(window_->messages()->details().contains("451 come back"));
    EXPECT_TRUE(test::eventually(
        [&] { return outbox()->count() == 1 && outbox()->item(0)->text().contains("451 come back"); }));
    press("buttonOutboxSend");
    ASSERT_TRUE(test::eventually([&] { return Outbox().entries().at(0).tries == 2; }));
    EXPECT_TRUE(takeAlerts().isEmpty());
    server_.setHabits({});
    press("buttonOutboxSend");
    ASSERT_TRUE(test::eventually([&] { return outbox()->count() == 0; }));
    EXPECT_EQ(server_.mails().size(), 1u);
    // Without an outbox nothing is kept, and the person hears of it all the same.
    button("checkboxOutbox")->setChecked(false);
    server_.setHabits({Fault::none, "", "550 nobody", "", 0});
    press("buttonSendMail");
    ASSERT_TRUE(says("is not sent."));
    EXPECT_EQ(takeAlerts(), QStringList("Error|Message Failed to Send"));
    EXPECT_TRUE(Outbox().entries().empty());
    button("checkboxOutbox")->setChecked(true);
}

TEST_F(MailTest, ASilentServerHoldsNobodyUpAndTheSendingIsStoppedByHand) {
    server_.setHabits({Fault::hangAtStart, "", "", "", 0});
    press("buttonSendMail");
    auto* stop = window_->findChild<QAbstractButton*>("stopMail");
    ASSERT_NE(stop, nullptr);
    ASSERT_TRUE(test::eventually([&] { return stop->isVisible(); })) << "the window lives meanwhile";
    stop->click();
    ASSERT_TRUE(says("It is kept in the outbox."));
    ASSERT_TRUE(test::eventually([&] { return outbox()->count() == 1; }));
    EXPECT_EQ(Outbox().entries().at(0).state, OutboxEntry::State::held);
    takeAlerts();
    outbox()->item(0)->setSelected(true);
    press("buttonOutboxDiscard");
    ASSERT_TRUE(test::eventually([&] { return outbox()->count() == 0; }));
}

TEST_F(MailTest, ATelephoneNumberAsksForItsCarrierAndOneOfThemSends) {
    const auto question = [this] { return window_->findChild<QDialog*>("MyPhoneTextView"); };
    const auto answer = [&](const char* name) {
        ASSERT_TRUE(question());
        QTest::mouseClick(question()->findChild<QAbstractButton*>(name), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(question());
    };
    type("textEmailTo", "555.123.4567");
    press("buttonTextMessage");
    EXPECT_FALSE(question());
    EXPECT_TRUE(test::eventually([this] { return window_->findChild<QMessageBox*>() != nullptr; }));
    EXPECT_EQ(takeAlerts(), QStringList("Bad Phone Number|Must have area code to make a 10 digit phone number"));

    type("textEmailTo", "(555) 123-4567");
    for (const char* silent : {"textMessageSprintClicked", "textMessageCancelClicked"}) {
        press("buttonTextMessage");
        answer(silent);
    }
    EXPECT_TRUE(takeAlerts().isEmpty());
    press("buttonTextMessage");
    answer("textMessageVerizonClicked");
    EXPECT_TRUE(test::eventually([this] { return window_->findChild<QMessageBox*>() != nullptr; }));
    EXPECT_TRUE(takeAlerts().value(0).contains("text-gateway is missing"));
    EXPECT_TRUE(server_.mails().empty());

    test::writeFile(deliveryConfFile(), "relay-account = studio@example.org\ntext-gateway = pictures.example.org\n");
    press("buttonTextMessage");
    answer("textMessageVerizonClicked");
    ASSERT_TRUE(says("The mail to 5551234567@pictures.example.org is sent."));
    EXPECT_EQ(server_.mails().size(), 1u);
}

constexpr int kQueued = 3;
constexpr const char *kAccount = "TAVRIN_TEST_ACCOUNT", *kPort = "TAVRIN_TEST_PORT";

/// The other side of the next test: a program that sends until it is killed.
TEST(MailQueueTest, SendsUntilItIsKilled) {
    if (!qEnvironmentVariableIsSet(kAccount)) GTEST_SKIP() << "only for the test of kills";
    const std::string account = qgetenv(kAccount).toStdString();
    Places::current().setSharedFolder(account + "/Tavrin/");
    const auto info = std::make_unique<SystemInfo>();
    info->oQLXInfo->sSMTPHost = "127.0.0.1";
    info->oQLXInfo->sSMTPort = qgetenv(kPort).toStdString();
    info->oQLXInfo->sSMTPAccountName = "studio@example.org";
    MailDesk desk(*info);
    for (int i = 0; i < kQueued; ++i) {
        const std::string picture = account + "/" + std::to_string(i) + ".jpg";
        test::writeFile(picture, "picture " + std::to_string(i));
        desk.send({"anna@example.org", QString::number(i), "", "", picture});
    }
    QTest::qWait(10 * test::kPatienceMs);
}

TEST_F(MailTest, LettersBehindASlowOneOutliveAKillAndGoOnceEach) {
    server_.setHabits({Fault::hangAtStart, "", "", "", 0});
    const std::string account = folder_.file("other");
    std::filesystem::create_directories(account + "/Tavrin/QLXXML");
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(kAccount, QString::fromStdString(account));
    environment.insert(kPort, QString::number(server_.port()));
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=MailQueueTest.*"});
    const Outbox outbox(account + "/Tavrin/Outbox/");
    EXPECT_TRUE(test::eventually([&] { return outbox.entries().size() == kQueued; }))
        << program.readAll().toStdString();
    program.kill();
    ASSERT_TRUE(program.waitForFinished(test::kPatienceMs));
    for (const OutboxEntry& entry : outbox.entries())
        EXPECT_EQ(entry.state, OutboxEntry::State::waiting);
    server_.setHabits({});
    const MailRoute route{{"127.0.0.1", "", "", server_.port()}, "studio@example.org", ""};
    postDue(outbox, route, {}, [](const OutboxEntry&, const Posted& posted) { EXPECT_TRUE(posted.isSent()); });
    EXPECT_TRUE(outbox.entries().empty());
    ASSERT_EQ(server_.mails().size(), static_cast<std::size_t>(kQueued));
    for (int i = 0; i < kQueued; ++i) {
        const std::string mail = server_.mails()[static_cast<std::size_t>(i)];
        EXPECT_NE(mail.find("Subject: " + std::to_string(i) + "\r\n"), std::string::npos);
        const QByteArray picture = "picture " + QByteArray::number(i);
        EXPECT_NE(mail.find(picture.toBase64().toStdString()), std::string::npos);
    }
}

TEST_F(MailTest, AWindowThatIsClosedWaitsForItsMail) {
    press("buttonSendMail");
    window_->close();
    ASSERT_TRUE(test::eventually([&] { return !window_->isVisible(); }));
    EXPECT_EQ(server_.mails().size(), 1u);
}

TEST_F(MailTest, TheServersSettingsAreStoredWhenTheyAreDone) {
    const auto dialog = [&] { return window_->findChild<QDialog*>("MySMTPSettings"); };
    const auto field = [&](const char* name) { return dialog()->findChild<QLineEdit*>(name); };
    press("buttonShowSMTPServer");
    EXPECT_EQ(field("editSMTPHost")->text(), "127.0.0.1");
    test::writeFile(deliveryConfFile(), "gmail-host = smtp.example.org\n");
    dialog()->findChild<QAbstractButton*>("fillInGMailSettings")->click();
    const QStringList alerts = takeAlerts();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(alerts[0].startsWith("Make sure Pop is enabled in GMAIL Account|On your computer, open Gmail.\n"));
    EXPECT_EQ(field("editSMTPHost")->text(), "smtp.example.org");
    EXPECT_EQ(field("editSMTPort")->text(), "587");
    dialog()->reject();
    EXPECT_EQ(info_->oQLXInfo->sSMTPHost.load(), "127.0.0.1") << "nothing is stored";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    press("buttonShowSMTPServer");
    field("editSMTPHost")->setText("mail.example.org");
    field("editSMTPort")->setText("465");
    field("editSMTPAccountName")->setText("me@example.org");
    field("editSMTPAccoutPassword")->setText("a secret");
    for (const char* box : {"checkboxUseDefaultSMTPServer", "checkboxSMTPTSL", "checkboxSMTPSSL"})
        dialog()->findChild<QCheckBox*>(box)->setChecked(true);
    dialog()->findChild<QAbstractButton*>("closeSMTPSettings")->click();
    QLXInfo kept;
    ASSERT_EQ(LoadQLXFile(kept), "");
    EXPECT_EQ(kept.sSMTPHost.load() + kept.sSMTPort.load(), "mail.example.org465");
    EXPECT_EQ(kept.sSMTPAccountName.load() + kept.sSMTPAccoutPassword.load(), "me@example.orga secret");
    EXPECT_TRUE(kept.bDefaultSMTPServer && kept.bSMTPTSL && kept.bSMTPSSL);
}

TEST_F(MailTest, TheDesktopsMailProgramGetsThePictureAsItIsAndNoShellSeesTheWords) {
    qputenv("PATH", "/nowhere");
    press("buttonShareUsingEmail");
    QStringList alerts;
    ASSERT_TRUE(test::eventually([&] { return !(alerts = takeAlerts()).isEmpty(); }));
    EXPECT_EQ(alerts, QStringList("Email|Cound not perform with items. Make sure Mail.app is default mail program"));
    makeMailProgram();
    type("textEmailTitle", "A $(touch /tmp/x) \"title\"; and `more`");
    press("buttonShareUsingEmail");
    ASSERT_TRUE(test::eventually([&] { return std::filesystem::exists(folder_.file("asked")); }));
    const QStringList words = QString::fromStdString(test::readFile(folder_.file("asked"))).split('\n');
    EXPECT_EQ(words.at(2), "A $(touch /tmp/x) \"title\"; and `more`");
    EXPECT_EQ(words.mid(3, 4), QStringList({"--body", "Here it is.", "", ""})) << "an empty line behind the text";
    EXPECT_EQ(words.at(7), "--attach");
    EXPECT_EQ(QImage(words.at(8)).size(), QSize(240, 300));
    EXPECT_EQ(words.at(9), "anna@example.org");
    EXPECT_TRUE(server_.commands().empty());
    // An option in the place of an address goes nowhere.
    type("textEmailTo", "--attach=/etc/passwd@x");
    press("buttonShareUsingEmail");
    ASSERT_TRUE(test::eventually([&] { return !takeAlerts().isEmpty(); }));
}

}  // namespace
}  // namespace tavrin
