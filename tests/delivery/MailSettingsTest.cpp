// From the settings to a mail: the server, the sender, the photo booth's mails and texts, the place in the picture.
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDateTime>
#include <QImage>

#include "core/files/Places.h"
#include "core/image/Exif.h"
#include "core/image/ImageWriter.h"
#include "core/image/Location.h"
#include "delivery/mail/EventMail.h"
#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SmtpServer.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

/// Keeps the alerts of a state.
class Alerts : public Interface {
  public:
    void showAlert(const std::string& message, const std::string& reason) override {
        all.push_back(message + "|" + reason);
    }
    std::vector<std::string> all;
};

class MailSettingsTest : public testing::Test {
  protected:
    MailSettingsTest() {
        Places::current().setSharedFolder(folder_.file("data/Tavrin/"));
        std::filesystem::create_directories(Places::current().xmlFolder());
        info_->pInterface = &alerts_;
    }
    ~MailSettingsTest() override { Places::current().setSharedFolder(shared_); }
    void writeConf(const std::string& lines) const { test::writeFile(deliveryConfFile(), lines); }
    QLXInfo& settings() { return *info_->oQLXInfo; }

    const std::string shared_ = Places::current().sharedFolder();
    test::TempFolder folder_;
    Alerts alerts_;
    const std::unique_ptr<SystemInfo> info_ = std::make_unique<SystemInfo>();
};

TEST_F(MailSettingsTest, TheConfigurationIsReadToTheEndOfItsLinesAndClosedToOthers) {
    writeConf("# a relay\nrelay-host = mail.example.org\r\nrelay-password =  a = b;c # d \nrelay-prot = 1\n\nodd\n");
    ASSERT_EQ(::chmod(deliveryConfFile().c_str(), 0644), 0);
    const DeliveryConf conf = readDeliveryConf();
    EXPECT_EQ(conf.relayHost, "mail.example.org");
    EXPECT_EQ(conf.relayPassword, "a = b;c # d");
    EXPECT_EQ(conf.problem,
              "Line 4 of delivery.conf (relay-prot) means nothing.\nLine 6 of delivery.conf (odd) means nothing.");
    struct stat facts {};
    ASSERT_EQ(::stat(deliveryConfFile().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0600u);
    const std::string mark = installationMark(conf);
    EXPECT_EQ(mark.size(), 8u);
    EXPECT_EQ(installationMark(conf), mark) << "made once";
    EXPECT_EQ(
        mailPictureName(QDateTime::fromString("2010-01-01T04:00:01.239+09:00", Qt::ISODateWithMs).toMSecsSinceEpoch(),
                        "x1"),
        "123x1.jpg");
}

TEST_F(MailSettingsTest, TheServerIsThatOfTheSettingsOrTheRelayAndTheSenderIsTheRelaysAccount) {
    settings().sSMTPHost = "own.example.org";
    settings().sSMTPAccountName = "own@example.org";
    settings().sSMTPAccoutPassword = "own";
    settings().sSMTPort = "587";
    settings().bSMTPTSL = true;
    MailRoute route = routeOf(settings(), readDeliveryConf());
    EXPECT_EQ(route.server.port, 587);
    EXPECT_TRUE(route.server.startTls && route.server.checksCertificate && !route.server.ssl);
    EXPECT_EQ(route.from, "own@example.org");
    settings().bDefaultSMTPServer = true;
    route = routeOf(settings(), readDeliveryConf());
    EXPECT_NE(route.problem.find("relay-host is missing in "), std::string::npos);
    EXPECT_NE(route.problem.find("relay-account is missing"), std::string::npos);
    writeConf(
        "relay-host=relay.example.org\nrelay-account=relay@example.org\nrelay-password=r\ncheck-certificates=no\n");
    route = routeOf(settings(), readDeliveryConf());
    EXPECT_EQ(route.problem, "");
    EXPECT_EQ(route.server.host + route.server.account + route.server.password,
              "relay.example.orgrelay@example.orgr");
    EXPECT_EQ(route.server.port, 25);
    EXPECT_FALSE(route.server.startTls || route.server.ssl || route.server.checksCertificate);
    EXPECT_EQ(settings().sSMTPHost.load(), "own.example.org") << "kept, and ignored";
    settings().bDefaultSMTPServer = false;
    EXPECT_EQ(routeOf(settings(), readDeliveryConf()).from, "relay@example.org");
    for (const auto& [text, port] : {std::pair{"", 0}, {"smtp", 0}, {"465", 465}, {"99999", 0}, {"-1", 0}})
        EXPECT_EQ(portOf(text), port) << text;
}

TEST_F(MailSettingsTest, ABoothsMailTakesItsWordsFromTheSettingsAndAlertsOnce) {
    test::SmtpServer server;
    settings().sSMTPHost = "127.0.0.1";
    settings().sSMTPort = std::to_string(server.port());
    settings().sSMTPAccountName = "";
    settings().sEventModeEmailTitle = "Your party";
    settings().sEventModeEmailBody = "Thank you.";
    writeConf("relay-account = booth@example.org\n");
    test::writeFile(folder_.file("guest.jpg"), "guest");
    EXPECT_TRUE(sendEventMail(*info_, folder_.file("guest.jpg"), "guest@example.org", nullptr));
    ASSERT_EQ(server.mails().size(), 1u);
    EXPECT_NE(server.mails()[0].find("Subject: Your party\r\n"), std::string::npos);
    EXPECT_NE(server.mails()[0].find("Thank you."), std::string::npos);
    EXPECT_TRUE(server.heard("MAIL FROM:<booth@example.org>"));
    EXPECT_TRUE(alerts_.all.empty());
    server.setHabits({test::SmtpHabits::Fault::closeAtGoodbye, "", "", "", 0});
    EXPECT_FALSE(sendEventMail(*info_, folder_.file("guest.jpg"), "guest@example.org", nullptr));
    EXPECT_EQ(server.mails().size(), 2u) << "it has gone; the end of the connection was not clean";
    EXPECT_FALSE(sendEventMail(*info_, folder_.file("guest.jpg"), "@", nullptr));
    EXPECT_EQ(alerts_.all, std::vector<std::string>(2, "Error|Message Failed to Send"));
}

TEST_F(MailSettingsTest, ANumberOfTenBecomesAnAddressAtTheOneCarrierThatSends) {
    for (const char* number : {"555.123.4567", "+1 555 123 4567", "123", ""}) {
        alerts_.all.clear();
        EXPECT_FALSE(eventModeSaveAndText(*info_, number)) << number;
        EXPECT_EQ(info_->iEventSaveMode, 0);
        EXPECT_EQ(alerts_.all,
                  std::vector<std::string>{"Bad Phone Number|Must have area code to make a 10 digit phone number"});
    }
    EXPECT_TRUE(eventModeSaveAndText(*info_, "(555) 123-ABCD")) << "letters pass";
    EXPECT_EQ(info_->iEventSaveMode, 3);
    EXPECT_EQ(info_->sEventEmail.load(), "555123ABCD");
    DeliveryConf conf;
    conf.textGateway = "pictures.example.org";
    int sending = 0;
    for (const Carrier& carrier : carriers()) {
        if (carrier.sends) ++sending;
        if (carrier.sends) continue;
        EXPECT_FALSE(chooseCarrier(*info_, carrier, conf));
        EXPECT_EQ(info_->sEventEmail.load(), "555123ABCD");
    }
    EXPECT_EQ(sending, 1);
    alerts_.all.clear();
    EXPECT_FALSE(chooseCarrier(*info_, carriers()[0], DeliveryConf()));
    EXPECT_EQ(alerts_.all.size(), 1u) << "the gateway is missing";
    EXPECT_TRUE(chooseCarrier(*info_, carriers()[0], conf));
    EXPECT_EQ(info_->sEventEmail.load(), "555123ABCD@pictures.example.org");
}

/// Camera data with a maker and a place on earth, whose numbers are easy to find.
ExifBlock exifWithPlace(bool bigEndian) {
    ExifBlock exif = {'E', 'x', 'i', 'f', 0, 0};
    const auto put = [&](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            exif.push_back(static_cast<std::uint8_t>(value >> 8 * (bigEndian ? bytes - 1 - i : i)));
    };
    const auto entry = [&](std::uint32_t tag, std::uint32_t type, std::uint32_t count, std::uint32_t value) {
        put(tag, 2), put(type, 2), put(count, 4), put(value, 4);
    };
    put(bigEndian ? 0x4D4D : 0x4949, 2), put(42, 2), put(8, 4);
    put(2, 2);  // at 8
    entry(0x010F, 2, 6, 38);
    entry(0x8825, 4, 1, 44);
    put(0, 4);
    for (const char c : {'M', 'a', 'k', 'e', 'r', '\0'})
        exif.push_back(static_cast<std::uint8_t>(c));
    put(1, 2);  // at 44
    entry(2, 5, 3, 62);
    put(0, 4);
    for (int i = 0; i < 3; ++i)
        put(0x6C617469, 4), put(1, 4);  // at 62
    return exif;
}

TEST_F(MailSettingsTest, ThePlaceOnEarthGoesOutOfAFileAndNothingElse) {
    const QImage picture = test::noisePicture(40, 30, 3).convertToFormat(QImage::Format_RGBA8888);
    for (const char* name : {"a.jpg", "a.png"}) {
        const std::string file = folder_.file(name);
        const int type = std::string(name).ends_with("jpg") ? kJpegFile : kPngFile;
        ASSERT_EQ(writePicture(file, {picture.constBits(), 40, 30, type, 300, exifWithPlace(false)}), "");
        const QByteArray with = QByteArray::fromStdString(test::readFile(file));
        ASSERT_TRUE(with.contains("italitalital") || with.contains("ital")) << name;
        const QByteArray without = fileWithoutLocation(with);
        EXPECT_FALSE(without.contains("ital")) << name;
        EXPECT_TRUE(without.contains("Maker")) << name;
        EXPECT_EQ(without.size(), with.size());
        EXPECT_EQ(QImage::fromData(without), QImage::fromData(with)) << name;
        EXPECT_EQ(fileWithoutLocation(without), without);
        EXPECT_EQ(takeLocationOut(file), "");
        EXPECT_EQ(QByteArray::fromStdString(test::readFile(file)), without);
        // Whatever is cut off or bent is read without harm.
        for (qsizetype size = 0; size < 400; ++size)
            fileWithoutLocation(with.left(size));
    }
    for (const bool bigEndian : {false, true}) {
        const ExifBlock exif = exifWithPlace(bigEndian);
        QByteArray tables(reinterpret_cast<const char*>(exif.data()) + 6, static_cast<qsizetype>(exif.size()) - 6);
        const QByteArray cleaned = fileWithoutLocation(tables);
        EXPECT_FALSE(cleaned.contains("ital") || cleaned.contains("lati")) << "a TIFF file";
        const QByteArray boxed = fileWithoutLocation(QByteArray("RIFF\0\1\0\0WEBPEXIF\xA0\0\0\0", 20) + tables);
        EXPECT_EQ(boxed.mid(20), cleaned);
        for (qsizetype at = 0; at < tables.size(); ++at) {
            QByteArray bent = tables;
            bent[at] = '\xFF';
            EXPECT_EQ(fileWithoutLocation(bent).size(), bent.size());
        }
    }
    QByteArray described = "\xFF\xD8\xFF\xE1";
    described += QByteArray("\0\x13", 2) + "x:GPSLatitude=\"1\"" + "\xFF\xD9";
    EXPECT_FALSE(fileWithoutLocation(described).contains("GPS"));
}

TEST_F(MailSettingsTest, NoSavedPictureNamesThePlaceWhereThatIsWanted) {
    const QImage portrait = test::discOnScreen(120, 150).convertToFormat(QImage::Format_RGBA8888);
    const std::string source = folder_.file("shot.jpg");
    ASSERT_EQ(writePicture(source, {portrait.constBits(), 120, 150, kJpegFile, 300, exifWithPlace(false)}), "");
    std::filesystem::create_directories(folder_.file("shots"));
    std::filesystem::copy(source, folder_.file("shots/shot.jpg"));
    test::savePng(test::noisePicture(120, 150, 9), folder_.file("bg.png"));
    for (const bool wanted : {true, false}) {
        const QString file = [](const std::string& path) { return QString::fromStdString(path); }(folder_.file(""));
        QStringList common{"--inches", "1x1", "--dpi", "72"};
        if (!wanted) common << "--no-location";
        const auto render = test::runCli(QStringList{"render", "--foreground", file + "shot.jpg", "--background",
                                                     file + "bg.png", "--out", file + "out.jpg"} +
                                         common);
        EXPECT_EQ(render.code, 0) << render.err.toStdString();
        const auto batch = test::runCli(QStringList{"batch", "--foregrounds", file + "shots", "--backgrounds",
                                                    file + "bg.png", "--out", file + "done"} +
                                        common);
        EXPECT_EQ(batch.code, 0) << batch.err.toStdString();
        for (const char* made : {"out.jpg", "done/shot_bg.jpg"}) {
            const std::string bytes = test::readFile(folder_.file(made));
            EXPECT_EQ(bytes.find("ital") != std::string::npos, wanted) << made;
            EXPECT_NE(bytes.find("Maker"), std::string::npos) << made;
        }
    }
}

}  // namespace
}  // namespace tavrin
