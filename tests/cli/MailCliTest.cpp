// tavrin-cli mail and outbox, as a user calls them, and kills in the middle.
#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/SmtpServer.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Fault = test::SmtpHabits::Fault;

bool eventually(const std::function<bool()>& condition) {
    for (int i = 0; i < 3000; ++i) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

class MailCliTest : public testing::Test {
  protected:
    MailCliTest() { test::writeFile(folder_.file("anna.jpg"), std::string(300'000, 'x')); }

    QString path(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    QMap<QString, QString> account() const { return {{"HOME", path("home")}, {"XDG_DATA_HOME", path("home/data")}}; }
    test::CliOutcome call(const QStringList& arguments) const { return test::runCli(arguments, account()); }
    QStringList mailTo(const QString& url, const QStringList& more = {}) const {
        return QStringList{"mail",
                           "--server",
                           url,
                           "--from",
                           "studio@example.org",
                           "--to",
                           "anna@example.org",
                           "--subject",
                           "Hello",
                           "--body",
                           "Text",
                           "--attach",
                           path("anna.jpg")} +
               more;
    }
    QStringList mail(const test::SmtpServer& server) const {
        return mailTo(QString::fromStdString(server.url()), {"--patience", "2"});
    }
    QJsonArray outbox() const {
        return QJsonDocument::fromJson(call({"outbox", "list", "--json"}).out.toUtf8()).array();
    }
    /// Starts a mail and kills its program when the condition holds.
    void killWhen(const QStringList& arguments, const std::function<bool()>& condition) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QMap<QString, QString> own = account();
        for (auto entry = own.begin(); entry != own.end(); ++entry)
            environment.insert(entry.key(), entry.value());
        process.setProcessEnvironment(environment);
        process.start(test::kCliProgram, arguments);
        EXPECT_TRUE(eventually(condition));
        process.kill();
        EXPECT_TRUE(process.waitForFinished(60000));
    }

    test::TempFolder folder_;
};

TEST_F(MailCliTest, ExitCodesTellSentKeptAndWronglyAsked) {
    test::SmtpServer server;
    const auto sent = call(mail(server));
    EXPECT_EQ(sent.code, 0) << sent.err.toStdString();
    EXPECT_EQ(server.mails().size(), 1u);
    EXPECT_TRUE(outbox().isEmpty());
    server.setHabits({Fault::none, "", "451 come back", "", 0});
    const auto kept = call(mail(server));
    EXPECT_EQ(kept.code, 1);
    EXPECT_TRUE(kept.err.contains("451 come back") && kept.err.contains("it is kept in the outbox"))
        << kept.err.toStdString();
    ASSERT_EQ(outbox().size(), 1);
    EXPECT_EQ(outbox().at(0).toObject()["state"], "waiting");
    server.setHabits({});
    EXPECT_EQ(call({"outbox", "send"}).code, 0);
    EXPECT_TRUE(outbox().isEmpty());
    EXPECT_EQ(server.mails().size(), 2u);
    EXPECT_EQ(call({"outbox", "discard", "nothing"}).code, 1);
    const auto refused = [&](const QStringList& arguments, const char* words) {
        const auto outcome = call(arguments);
        EXPECT_EQ(outcome.code, 2) << words;
        EXPECT_TRUE(outcome.err.contains(words)) << outcome.err.toStdString();
    };
    const QString url = QString::fromStdString(server.url());
    refused({"mail", "--subject", "x"}, "--to or --phone is missing");
    refused({"mail", "--to", "a@b.org\r\nBcc: c@d.org"}, "line break");
    refused({"mail", "--to", "anna"}, "is no mail address");
    refused({"mail", "--server", "http://x", "--to", "a@b.org"}, "--server takes smtp://");
    refused({"mail", "--server", "smtp://x:port", "--to", "a@b.org"}, "--server takes smtp://");
    refused({"mail", "--server", url, "--to", "a@b.org"}, "--from is missing");
    refused({"mail", "--to", "a@b.org", "--attach", path("gone.jpg")}, "there is no such file");
    refused({"mail", "--phone", "123"}, "Must have area code");
    EXPECT_TRUE(outbox().isEmpty());
    const auto unset = call({"mail", "--to", "a@b.org"});
    EXPECT_EQ(unset.code, 1);
    EXPECT_TRUE(unset.err.contains("There is no mail server in the settings")) << unset.err.toStdString();
}

TEST_F(MailCliTest, AKillBeforeTheMailIsHandedOverLeavesItToBeSentOnce) {
    test::SmtpServer server({Fault::hangAtStart, "", "", "", 0});
    const fs::path kept = folder_.path() / "home/data/Tavrin/Outbox";
    killWhen(mail(server), [&] {
        std::error_code none;
        return fs::exists(kept, none) && !fs::is_empty(kept, none) &&
               !fs::directory_iterator(kept)->path().filename().string().starts_with('.');
    });
    ASSERT_EQ(outbox().size(), 1);
    EXPECT_EQ(outbox().at(0).toObject()["state"], "waiting");
    server.setHabits({});
    const auto again = call({"outbox", "send"});
    EXPECT_EQ(again.code, 0) << again.err.toStdString();
    EXPECT_TRUE(outbox().isEmpty());
    EXPECT_EQ(server.mails().size(), 1u);
}

TEST_F(MailCliTest, AKillBehindItLeavesAMailThatMayHaveGone) {
    test::SmtpServer server({Fault::hangAfterData, "", "", "", 0});
    killWhen(mail(server), [&] { return server.mails().size() == 1; });
    ASSERT_EQ(outbox().size(), 1);
    EXPECT_EQ(outbox().at(0).toObject()["state"], "may have gone");
    server.setHabits({});
    EXPECT_EQ(call({"outbox", "send"}).code, 0);
    EXPECT_EQ(server.mails().size(), 1u) << "nothing sends it by itself";
    EXPECT_EQ(call({"outbox", "discard", outbox().at(0).toObject()["id"].toString()}).code, 0);
    EXPECT_TRUE(outbox().isEmpty());
}

TEST_F(MailCliTest, ProgramsThatSendOneOutboxAtOnceSendEachMailOnce) {
    test::SmtpServer server({Fault::none, "", "451 come back", "", 0});
    constexpr int kMails = 4, kPrograms = 3;
    for (int i = 0; i < kMails; ++i)
        EXPECT_EQ(call(mail(server)).code, 1);
    server.setHabits({});
    std::vector<std::thread> programs;
    for (int i = 0; i < kPrograms; ++i)
        programs.emplace_back([this] { call({"outbox", "send"}); });
    for (std::thread& program : programs)
        program.join();
    EXPECT_EQ(server.mails().size(), static_cast<std::size_t>(kMails));
    EXPECT_TRUE(outbox().isEmpty());
}

}  // namespace
}  // namespace tavrin
