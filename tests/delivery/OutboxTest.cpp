// Mails that are kept: each is sent or in the outbox, once, whatever happens meanwhile.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "delivery/mail/OutboxFiles.h"
#include "delivery/mail/Posting.h"
#include "support/Files.h"
#include "support/SmtpServer.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Fault = test::SmtpHabits::Fault;
using State = OutboxEntry::State;

class OutboxTest : public testing::Test {
  protected:
    OutboxTest() { test::writeFile(folder_.file("anna.jpg"), "the picture"); }

    OutgoingMail mail() const {
        OutgoingMail mail;
        mail.to = "anna@example.org";
        mail.subject =
            "Gr\xC3\xBC\xC3\x9F"
            "e";
        mail.body = "One\nTwo";
        mail.attachment = folder_.file("anna.jpg");
        return mail;
    }
    MailRoute routeTo(int port) const { return {{"127.0.0.1", "", "", port}, "studio@example.org", ""}; }
    MailWatch watch() const {
        MailWatch watch;
        watch.patience = std::chrono::seconds(1);
        return watch;
    }
    Posted postTo(const test::SmtpServer& server) { return post(mail(), routeTo(server.port()), &outbox_, watch()); }
    /// Sends what is due, as a program does from time to time.
    int postDueTo(const test::SmtpServer& server) {
        int posted = 0;
        postDue(outbox_, routeTo(server.port()), watch(), [&](const OutboxEntry&, const Posted&) { ++posted; });
        return posted;
    }
    /// Lets the time of every mail come.
    void letTimePass() {
        for (OutboxEntry entry : outbox_.entries()) {
            entry.nextTry = QDateTime::currentDateTime().addSecs(-1);
            ASSERT_EQ(writeOutboxEntry(entry, folder_.file("Outbox/" + entry.id)), "");
        }
    }
    OutboxEntry only() const {
        const std::vector<OutboxEntry> entries = outbox_.entries();
        EXPECT_EQ(entries.size(), 1u);
        return entries.empty() ? OutboxEntry() : entries[0];
    }

    test::TempFolder folder_;
    const Outbox outbox_{folder_.file("Outbox/")};
};

TEST_F(OutboxTest, AMailThatGoesLeavesNothingBehind) {
    test::SmtpServer server;
    const Posted posted = postTo(server);
    EXPECT_TRUE(posted.isSent() && posted.closedCleanly && !posted.inOutbox);
    EXPECT_TRUE(fs::is_empty(folder_.file("Outbox")));
    // The connection that was not closed cleanly keeps no mail that is gone, either.
    server.setHabits({Fault::closeAtGoodbye, "", "", "", 0});
    const Posted unclean = postTo(server);
    EXPECT_TRUE(unclean.isSent() && !unclean.closedCleanly);
    EXPECT_TRUE(fs::is_empty(folder_.file("Outbox")));
    EXPECT_EQ(server.mails().size(), 2u);
}

TEST_F(OutboxTest, WhatCannotGoIsKeptForItsOwnerAloneAndGoesLaterWithGrowingPauses) {
    test::SmtpServer server({Fault::none, "", "451 come back", "", 0});
    EXPECT_TRUE(postTo(server).inOutbox);
    fs::remove(folder_.file("anna.jpg"));  // the outbox has its own
    for (const auto& entry : fs::recursive_directory_iterator(folder_.path() / "Outbox")) {
        struct stat facts {};
        ASSERT_EQ(::stat(entry.path().c_str(), &facts), 0);
        EXPECT_EQ(facts.st_mode & 077, 0u) << entry.path();
    }
    EXPECT_EQ(only().state, State::waiting);
    EXPECT_NE(only().reason.find("451 come back"), std::string::npos);
    EXPECT_EQ(postDueTo(server), 0) << "its time has not come";
    letTimePass();
    EXPECT_EQ(postDueTo(server), 1);
    EXPECT_EQ(only().tries, 2);
    EXPECT_NEAR(static_cast<double>(QDateTime::currentDateTime().secsTo(only().nextTry)), 120.0, 5.0);
    EXPECT_EQ(Outbox::pauseSeconds(1), 60);
    EXPECT_EQ(Outbox::pauseSeconds(100), 4 * 60 * 60);
    server.setHabits({});
    letTimePass();
    EXPECT_EQ(postDueTo(server), 1);
    EXPECT_TRUE(outbox_.entries().empty());
    ASSERT_EQ(server.mails().size(), 1u);
    EXPECT_NE(server.mails()[0].find("dGhlIHBpY3R1cmU="), std::string::npos) << "the picture";
    EXPECT_NE(server.mails()[0].find("filename=\"anna.jpg\""), std::string::npos);
}

TEST_F(OutboxTest, NothingIsSentByItselfThatWasRefusedOrMayHaveGone) {
    for (const auto& [habits, state] :
         {std::pair{test::SmtpHabits{Fault::none, "", "550 nobody", "", 0}, State::held},
          std::pair{test::SmtpHabits{Fault::closeAfterData, "", "", "", 0}, State::maybeGone}}) {
        test::SmtpServer server(habits);
        EXPECT_FALSE(postTo(server).isSent());
        EXPECT_EQ(only().state, state);
        const std::size_t before = server.mails().size();
        server.setHabits({});
        letTimePass();
        EXPECT_EQ(postDueTo(server), 0);
        EXPECT_EQ(server.mails().size(), before);
        // A person may mean it all the same.
        std::optional<OutboxClaim> claim = outbox_.claim(only().id);
        ASSERT_TRUE(claim);
        EXPECT_TRUE(postAgain(std::move(*claim), routeTo(server.port())).isSent());
        EXPECT_EQ(server.mails().size(), before + 1);
        EXPECT_TRUE(outbox_.entries().empty());
    }
}

TEST_F(OutboxTest, AMailThatWasHandedOverSaysWhyNobodyKnowsWhateverWasTheReasonBefore) {
    test::SmtpServer server({Fault::none, "", "451 come back", "", 0});
    EXPECT_FALSE(postTo(server).isSent());
    std::optional<OutboxClaim> claim = outbox_.claim(only().id);
    ASSERT_TRUE(claim);
    EXPECT_TRUE(claim->noteHandedOver());
    claim.reset();  // killed
    EXPECT_EQ(only().state, State::maybeGone);
    EXPECT_NE(only().reason.find("Tavrin ended"), std::string::npos) << only().reason;
    claim = outbox_.claim(only().id);
    ASSERT_TRUE(claim);
    claim->settle({MailEnd::unknown, false, "No answer came."});
    EXPECT_EQ(only().reason, "No answer came.");
    claim->settle({MailEnd::notSent, false, "No network."});
    EXPECT_EQ(only().state, State::underWay);
    claim.reset();
    EXPECT_EQ(only().state, State::waiting) << "it surely has not gone this time";
}

TEST_F(OutboxTest, OneProgramAtATimeHasAMail) {
    test::SmtpServer server;
    std::string problem;
    std::optional<OutboxClaim> mine = outbox_.add(mail(), "the picture", problem);
    ASSERT_TRUE(mine) << problem;
    const std::string id = mine->entry().id;
    EXPECT_EQ(only().state, State::underWay);
    EXPECT_FALSE(outbox_.claim(id));
    EXPECT_FALSE(outbox_.discard(id));
    EXPECT_EQ(postDueTo(server), 0);
    mine.reset();  // as if the program had been killed before the mail was handed over
    EXPECT_EQ(only().state, State::waiting);
    EXPECT_EQ(postDueTo(server), 1);
    EXPECT_EQ(server.mails().size(), 1u);
    EXPECT_FALSE(outbox_.claim(id)) << "it is gone";
    for (const char* odd : {"", ".", "..", "../anna.jpg", "nothing"})
        EXPECT_FALSE(outbox_.claim(odd) || outbox_.discard(odd)) << odd;
}

TEST_F(OutboxTest, APersonsStopHoldsAMailAndTheProgramsEndDoesNot) {
    test::SmtpServer server({Fault::hangAtStart, "", "", "", 0});
    const std::atomic<bool> stop = true;
    MailWatch stopped = watch();
    stopped.stop = &stop;
    EXPECT_EQ(post(mail(), routeTo(server.port()), &outbox_, stopped).end, MailEnd::stopped);
    EXPECT_EQ(only().state, State::held);
    EXPECT_TRUE(outbox_.discard(only().id));
    stopped.leaving = &stop;
    post(mail(), routeTo(server.port()), &outbox_, stopped);
    EXPECT_EQ(only().state, State::waiting);
}

TEST_F(OutboxTest, WhatNoServerWouldTakeIsNotKeptAndADamagedMailIsShown) {
    test::SmtpServer server;
    OutgoingMail wrong = mail();
    wrong.to = "@";
    const Posted posted = post(wrong, routeTo(server.port()), &outbox_, watch());
    EXPECT_EQ(posted.end, MailEnd::refused);
    EXPECT_FALSE(posted.inOutbox);
    EXPECT_NE(posted.reason.find("is no mail address"), std::string::npos);
    EXPECT_TRUE(outbox_.entries().empty());
    EXPECT_FALSE(post(mail(), {{}, "", "The server is missing."}, &outbox_, watch()).isSent());
    const std::string id = only().id;
    EXPECT_EQ(only().reason, "The server is missing.");
    test::writeFile(folder_.file("Outbox/" + id + "/message.json"), "{ \"to\": ");
    EXPECT_EQ(only().state, State::held);
    EXPECT_NE(only().reason.find("cannot be read"), std::string::npos);
    EXPECT_TRUE(outbox_.discard(id));
    EXPECT_TRUE(fs::is_empty(folder_.file("Outbox")));
}

TEST_F(OutboxTest, AFullOutboxSaysSoAndAMailGoesAllTheSame) {
    test::SmtpServer server({Fault::none, "", "451 come back", "", 0});
    const std::string size = std::to_string(fs::file_size(folder_.file("anna.jpg")));
    for (const OutboxLimits& limits : {OutboxLimits{2, 1000}, OutboxLimits{1000, 2 * std::stoll(size) + 1}}) {
        const Outbox small(folder_.file("Outbox/"), limits);
        for (int i = 0; i < 2; ++i)
            EXPECT_TRUE(post(mail(), routeTo(server.port()), &small, watch()).inOutbox);
        const Posted third = post(mail(), routeTo(server.port()), &small, watch());
        EXPECT_FALSE(third.isSent() || third.inOutbox);
        EXPECT_NE(third.reason.find("451 come back"), std::string::npos) << third.reason;
        EXPECT_NE(third.reason.find("The outbox is full"), std::string::npos) << third.reason;
        EXPECT_EQ(outbox_.entries().size(), 2u);
        server.setHabits({});
        EXPECT_TRUE(post(mail(), routeTo(server.port()), &small, watch()).isSent());
        EXPECT_TRUE(small.discard(outbox_.entries().front().id));
        server.setHabits({Fault::none, "", "451 come back", "", 0});
        EXPECT_TRUE(post(mail(), routeTo(server.port()), &small, watch()).inOutbox) << "there is room again";
        for (const OutboxEntry& entry : outbox_.entries())
            EXPECT_TRUE(small.discard(entry.id));
    }
}

TEST_F(OutboxTest, AMailGoesEvenWhereNothingCanBeKept) {
    test::SmtpServer server;
    test::writeFile(folder_.file("file"), "");
    const Outbox none(folder_.file("file/Outbox/"));
    EXPECT_TRUE(post(mail(), routeTo(server.port()), &none, watch()).isSent());
    EXPECT_EQ(server.mails().size(), 1u);
}

}  // namespace
}  // namespace tavrin
