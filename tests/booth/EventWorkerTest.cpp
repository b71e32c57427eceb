// The worker of the booth: each ticket becomes one picture, and what it asks for happens once.
#include <gmock/gmock.h>

#include "booth/Booth.h"
#include "booth/BoothFolder.h"
#include "booth/EventCounts.h"
#include "booth/EventOrders.h"
#include "booth/JobNote.h"
#include "booth/TicketClaim.h"
#include "delivery/mail/Outbox.h"
#include "support/Cli.h"
#include "support/SmallDisk.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::IsEmpty;

using EventWorkerTest = test::BoothTest;

TEST_F(EventWorkerTest, MakesThePicturesOfRenderAndLeavesTicketsWithAPhotoAlone) {
    const std::string first = press(), second = press(), done = press(), other = press();
    test::writeFile(out_ + "/" + done + ".jpg", "a photo put here by hand");
    test::writeFile(out_ + "/" + other + ".PNG", "of another type");
    runOnce(setup());
    EXPECT_EQ(told_.ending(Status::done), 2);
    EXPECT_EQ(test::readFile(out_ + "/" + done + ".jpg"), "a photo put here by hand");
    EXPECT_FALSE(isMade(other));
    EXPECT_EQ(told_.counts(), std::pair(4, 4)) << "tickets and photos";
    EXPECT_THAT(leftovers(), IsEmpty());
    const std::string rendered = folder_.file("rendered.jpg");
    for (const std::string& stem : {first, second}) {
        const auto ticket = QString::fromStdString(out_ + "/" + stem + ".qlx");
        const test::CliOutcome outcome =
            test::runCli({"render", "--fast", "--state", ticket, "--out", QString::fromStdString(rendered)});
        ASSERT_EQ(outcome.code, 0) << outcome.err.toStdString();
        EXPECT_TRUE(test::readFile(rendered) == test::readFile(out_ + "/" + stem + ".jpg"));
    }
}

TEST_F(EventWorkerTest, TheTicketAloneDecidesWhatBecomesOfThePicture) {
    test::SmtpServer server;
    EventSetup chosen = setup();
    useServer(chosen, server);
    const std::string saved = press(), unknown = press(7, 4);
    const std::string twice = press(kEventSaveAndPrint, 2), once = press(kEventSaveAndPrint, 0);
    const std::string mailed = press(kEventSaveAndMail, 5, "anna@example.org");
    runOnce(chosen);
    EXPECT_EQ(told_.ending(Status::done), 5) << told_.alerts();
    EXPECT_THAT(printed(),
                testing::ElementsAre(twice + ".jpg, One on A4", twice + ".jpg, One on A4", once + ".jpg, One on A4"));
    ASSERT_TRUE(test::comes([&] { return server.mails().size() == 1; }));
    EXPECT_THAT(server.mails().front(), HasSubstr(mailed + ".jpg"));
    EXPECT_TRUE(server.heard("RCPT TO:<anna@example.org>"));
    EXPECT_THAT(Outbox(chosen.outbox).entries(), IsEmpty());
    EXPECT_TRUE(isMade(saved) && isMade(unknown));
}

TEST_F(EventWorkerTest, SetsATicketThatCannotBeMadeAsideWithItsReasonAndGoesOn) {
    test::writeFile(out_ + "/torn_5.qlx", "<ImageState><SystemInfo>");
    const std::string bare = press(kEventSave, 0, "", [](SystemInfo& info) { setBackground(info, ""); });
    test::writeFile(folder_.file("damaged.png"), test::readFile(portrait_).substr(0, 200));
    fs::last_write_time(folder_.file("damaged.png"), fs::file_time_type::clock::now() - 1h);
    const std::string damaged =
        press(kEventSave, 0, "", [this](SystemInfo& info) { setForeground(info, folder_.file("damaged.png")); });
    const std::string good = press();
    runOnce(setup());
    EXPECT_TRUE(isMade(good));
    EXPECT_EQ(told_.ending(Status::failed), 3);
    EXPECT_THAT(test::readFile(broken("torn_5", ".txt")), HasSubstr("torn_5.qlx"));
    EXPECT_THAT(test::readFile(broken(bare, ".txt")), HasSubstr("no background"));
    EXPECT_THAT(test::readFile(broken(damaged, ".txt")), HasSubstr("damaged"));
    EXPECT_THAT(told_.alerts(), HasSubstr("no background"));
    EXPECT_FALSE(isMade(damaged)) << "no picture goes out that is not the job's";

    fs::copy_file(portrait_, folder_.file("damaged.png"), fs::copy_options::overwrite_existing);
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_EQ(worker.retryBroken(), 3);
    EXPECT_TRUE(test::comes([&] { return isMade(damaged); }));
    EXPECT_TRUE(test::comes([&] { return worker.signs().today.failed == 5; })) << "the others fail again";
    EXPECT_TRUE(test::comes([&] { return worker.signs().brokenTickets == 2; }));
    EXPECT_TRUE(test::comes([&] { return worker.signs().today.pictures == 2; }));
}

TEST_F(EventWorkerTest, SheetsWaitForTheirPrinterInOrderWhilePicturesAreMade) {
    room_.trouble = "The printer \"studio\" is stopped: out of paper.";
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    std::vector<std::string> stems;
    for (int i = 0; i < 3; ++i)
        stems.push_back(press(kEventSaveAndPrint, 1));
    EXPECT_TRUE(test::comes([&] { return isMade(stems[0]) && isMade(stems[1]) && isMade(stems[2]); }));
    EXPECT_TRUE(test::comes([&] { return worker.signs().printsWaiting == 3; }));
    EXPECT_EQ(worker.signs().printerTrouble, "The printer \"studio\" is stopped: out of paper.");
    EXPECT_THAT(printed(), IsEmpty());
    {
        const std::lock_guard lock(room_.mutex);
        room_.trouble.clear();
    }
    EXPECT_TRUE(test::comes([&] { return worker.signs().printsWaiting == 0; }));
    EXPECT_THAT(printed(), testing::ElementsAre(stems[0] + ".jpg, One on A4", stems[1] + ".jpg, One on A4",
                                                stems[2] + ".jpg, One on A4"));
    EXPECT_EQ(worker.signs().printerTrouble, "");
}

TEST_F(EventWorkerTest, ASheetThatThePrinterGaveUpWaitsForAPerson) {
    room_.jobs = JobNews::State::givenUp;
    press(kEventSaveAndPrint, 1);
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_TRUE(test::comes([&] { return worker.signs().printsUnsure == 1; }));
    worker.stop();
    worker.join();
    EXPECT_EQ(printed().size(), 1U) << "and is not sent over and over";
}

TEST_F(EventWorkerTest, AServerThatKeepsSilentHoldsUpNoPictureAndItsMailsGoLater) {
    test::SmtpHabits silent;
    silent.fault = test::SmtpHabits::Fault::hangAtStart;
    test::SmtpServer server(silent);
    EventSetup chosen = setup();
    useServer(chosen, server);
    {
        EventWorker worker(base_, told_);
        ASSERT_EQ(worker.start(chosen), "");
        std::vector<std::string> stems;
        for (int i = 0; i < 3; ++i)
            stems.push_back(press(kEventSaveAndMail, 0, "guest" + std::to_string(i) + "@example.org"));
        EXPECT_TRUE(test::comes([&] { return isMade(stems[0]) && isMade(stems[1]) && isMade(stems[2]); }));
        EXPECT_TRUE(test::comes([&] { return worker.signs().mailsWaiting == 3; }));
        const auto begin = std::chrono::steady_clock::now();
        worker.stop();
        worker.join();
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s) << "nor the end, by the patience of 30 seconds";
    }
    server.setHabits({});
    runOnce(chosen);
    EXPECT_TRUE(test::comes([&] { return server.mails().size() == 3; }));
    EXPECT_THAT(Outbox(chosen.outbox).entries(), IsEmpty());
}

TEST_F(EventWorkerTest, AMailThatIsRefusedOrHasNoAddressIsToldAndThePictureStands) {
    test::SmtpHabits habits;
    habits.recipientAnswer = "550 no such guest\r\n";
    test::SmtpServer server(habits);
    EventSetup chosen = setup();
    useServer(chosen, server);
    const std::string refused = press(kEventSaveAndMail, 0, "nobody@example.org");
    const std::string none = press(kEventSaveAndMail, 0, "@");
    runOnce(chosen);
    EXPECT_TRUE(isMade(refused) && isMade(none));
    EXPECT_THAT(told_.alerts(), HasSubstr("Error|Message Failed to Send"));
    EXPECT_THAT(told_.alerts(), HasSubstr("\"@\" is no mail address"));
    ASSERT_EQ(Outbox(chosen.outbox).entries().size(), 1U);
    EXPECT_EQ(Outbox(chosen.outbox).entries().front().state, OutboxEntry::State::held);
}

/// What a kill leaves at the moments that matter, and what the next start makes of it.
TEST_F(EventWorkerTest, AfterAKillAtAnyMomentThePrintsComeOnce) {
    const BoothFolder folder(out_);
    const auto chosen = std::make_shared<const EventSetup>(setup());
    EventTeller teller(told_);
    const auto lists = std::make_shared<SystemInfo>();
    startLike(*lists, base_);
    const auto prints = std::make_shared<EventPrints>(chosen, teller);
    prints->step();
    EventOrders orders(chosen, lists, prints, std::make_shared<EventCounts>(out_, "test"));
    const auto prepare = [&](const std::string& stem) {
        SystemInfo info;
        startLike(info, base_);
        *info.oQLXInfo = chosen->settings;
        info.iEventSaveMode = kEventSaveAndPrint;
        info.iEventPrintCount = 2;
        fs::copy_file(portrait_, folder.madePhoto(stem));
        const JobNote note = orders.prepare(info, stem, folder.madePhoto(stem));
        EXPECT_EQ(writeNote(note, folder.note(stem)), "");
        return note;
    };
    const std::string before = press(kEventSaveAndPrint, 2), after = press(kEventSaveAndPrint, 2);
    const std::string between = press(kEventSaveAndPrint, 2);
    prepare(before);  // ended before the picture had its name
    prepare(after);   // right behind it
    fs::rename(folder.madePhoto(after), folder.photo(after));
    const JobNote note = prepare(between);  // and after one of the sheets was let go
    fs::rename(folder.madePhoto(between), folder.photo(between));
    EXPECT_TRUE(PrintQueue(chosen->printQueue).release(note.sheets.front()));
    EXPECT_FALSE(PrintQueue(chosen->printQueue).release(note.sheets.front()));

    runOnce(setup());
    runOnce(setup());
    EXPECT_EQ(printed().size(), 6U);
    for (const std::string& stem : {before, after, between}) {
        EXPECT_TRUE(isMade(stem));
        EXPECT_EQ(std::ranges::count(printed(), stem + ".jpg, One on A4"), 2);
    }
    EXPECT_THAT(leftovers(), IsEmpty());
    EXPECT_EQ(EventCounts(out_, "x").today().prints, 6);
}

TEST_F(EventWorkerTest, SeveralBoothsOnOneFolderDoEachTicketOnce) {
    constexpr int kTickets = 24;
    for (int i = 0; i < kTickets; ++i)
        press(i % 3 ? kEventSave : kEventSaveAndPrint, 1);
    EventWorker one(base_, told_), other(base_, told_), third(base_, told_);
    for (EventWorker* worker : {&one, &other, &third}) {
        EventSetup chosen = setup();
        chosen.once = true;
        ASSERT_EQ(worker->start(std::move(chosen)), "");
    }
    for (EventWorker* worker : {&one, &other, &third})
        worker->join();
    EXPECT_EQ(told_.ending(Status::done), kTickets);
    EXPECT_LE(printed().size(), static_cast<std::size_t>(kTickets / 3));
    // A sheet that one booth was just looking at when the other one ended waits in the queue for the next start.
    runOnce(setup());
    EXPECT_EQ(printed().size(), static_cast<std::size_t>(kTickets / 3));
    EXPECT_EQ(EventCounts(out_, "x").today().pictures, kTickets);
}

TEST_F(EventWorkerTest, AClaimedTicketIsLeftToWhoeverHasItAndTheClaimGoesWithItsOwner) {
    const std::string stem = press();
    auto claim = TicketClaim::take(BoothFolder(out_), stem);
    ASSERT_TRUE(claim);
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_TRUE(test::comes([&] { return told_.counts().first == 1; }));
    const std::string other = press();
    EXPECT_TRUE(test::comes([&] { return isMade(other); }));
    EXPECT_FALSE(isMade(stem));
    claim.reset();
    EXPECT_TRUE(test::comes([&] { return isMade(stem); }));
}

TEST_F(EventWorkerTest, AJobThatTakesTooLongIsGivenUpAndDoneLaterWhenAPersonSaysSo) {
    const std::string stem =
        press(kEventSave, 0, "", [](SystemInfo& info) { chooseOwnSize(info, "Large Vert", 8.0, 10.0, 300); });
    EventSetup hasty = setup();
    hasty.jobLimit = 1ms;
    runOnce(hasty);
    EXPECT_FALSE(isMade(stem));
    EXPECT_THAT(test::readFile(broken(stem, ".txt")), HasSubstr("It took longer than 1 second"));
    EXPECT_THAT(leftovers(), IsEmpty());
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_EQ(worker.retryBroken(), 1);
    EXPECT_TRUE(test::comes([&] { return isMade(stem); }));
}

TEST_F(EventWorkerTest, APortraitThatIsStillArrivingIsWaitedForAndHoldsNobodyUp) {
    const std::string whole = test::readFile(portrait_);
    test::writeFile(folder_.file("late.png"), whole.substr(0, whole.size() / 2));
    const auto named = [this](const char* name) {
        return [this, name](SystemInfo& info) { setForeground(info, folder_.file(name)); };
    };
    const std::string late = press(kEventSave, 0, "", named("late.png"));
    const std::string absent = press(kEventSave, 0, "", named("absent.png"));
    const std::string other = press();
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_TRUE(test::comes([&] { return isMade(other) && told_.ending(Status::waiting) >= 2; }));
    EXPECT_FALSE(isMade(late) || isMade(absent));
    test::writeFile(folder_.file("late.png"), whole);
    fs::copy_file(portrait_, folder_.file("absent.png"));  // its disk is connected again
    EXPECT_TRUE(test::comes([&] { return isMade(late) && isMade(absent); }));
    EXPECT_EQ(told_.ending(Status::failed), 0);
}

TEST_F(EventWorkerTest, APrintForWhichThePageIsGoneIsOwedUntilThereIsOne) {
    const std::string stem = press(kEventSaveAndPrint, 2);
    EventSetup without = setup();
    without.settings.iEventModeSelectedTemplate = 9;
    runOnce(without);
    EXPECT_TRUE(isMade(stem));
    EXPECT_EQ(told_.ending(Status::partly), 1);
    EXPECT_THAT(told_.alerts(), HasSubstr("There is no print page for the event."));
    EXPECT_THAT(printed(), IsEmpty());
    runOnce(setup());
    runOnce(setup());
    EXPECT_EQ(printed().size(), 2U);
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(EventWorkerTest, AFolderThatGoesAwayIsToldAndItsTicketsAreDoneWhenItIsBack) {
    EXPECT_EQ(EventWorker(base_, told_).start({}), "No folder is chosen for the event's pictures.");
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_NE(worker.start(setup()), "") << "it runs";
    EXPECT_TRUE(test::comes([&] { return worker.signs().trouble.empty() && worker.signs().isRunning; }));
    fs::rename(out_, folder_.file("away"));
    EXPECT_TRUE(
        test::comes([&] { return worker.signs().trouble == "The output folder " + out_ + "/ is not there."; }));
    fs::rename(folder_.file("away"), out_);
    const std::string stem = press();
    EXPECT_TRUE(test::comes([&] { return isMade(stem); }));
    EXPECT_TRUE(test::comes([&] { return worker.signs().trouble.empty(); }));
    worker.stop();
    EXPECT_TRUE(test::comes([&] { return told_.ends == 1; }));
    EXPECT_TRUE(test::comes([&] { return !worker.isRunning(); }));
    EXPECT_EQ(worker.start(setup()), "") << "once more";
}

TEST_F(EventWorkerTest, AStopFinishesTheJobInHandAndBeginsNoOther) {
    std::vector<std::string> stems;
    for (int i = 0; i < 12; ++i)
        stems.push_back(press());
    EventWorker worker(base_, told_);
    ASSERT_EQ(worker.start(setup()), "");
    EXPECT_TRUE(test::comes([&] { return told_.ending(Status::done) > 0; }));
    worker.stop();
    worker.join();
    const auto made = std::ranges::count_if(stems, [this](const std::string& stem) { return isMade(stem); });
    EXPECT_EQ(made, told_.ending(Status::done));
    EXPECT_THAT(leftovers(), IsEmpty());
    EXPECT_EQ(told_.ends, 1);
    runOnce(setup());
    EXPECT_EQ(told_.ending(Status::done), 12);
}

TEST_F(EventWorkerTest, OnAFullDiskTicketsWaitForRoom) {
    const std::string stem = press(kEventSaveAndPrint, 1);
    EventWorker worker(base_, told_);
    {
        const test::SmallDisk full(1000);  // on which there is room for a note, and for no picture
        ASSERT_EQ(worker.start(setup()), "");
        EXPECT_TRUE(test::comes([&] { return told_.ending(Status::waiting) > 1; }));
        EXPECT_NE(worker.signs().trouble, "");
        EXPECT_FALSE(isMade(stem));
    }
    EXPECT_TRUE(test::comes([&] { return isMade(stem); }));
    EXPECT_TRUE(test::comes([&] { return printed().size() == 1; }));
    EXPECT_TRUE(test::comes([&] { return worker.signs().trouble.empty(); }));
}

}  // namespace
}  // namespace tavrin
