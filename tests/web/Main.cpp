// The entry of the tests of pages in windows, which need a web engine.
#include <filesystem>
#include <gtest/gtest.h>

#include <QApplication>

#include "support/BuildPlaces.h"
#include "ui/frame/Theme.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const std::filesystem::path built = std::filesystem::path(tavrin::test::kCliProgram).parent_path();
    qputenv("TAVRIN_WEB_PAGES", QByteArray::fromStdString((built / "tavrin-web").string()));
    // Tests may run as the administrator, and on machines without a graphics card.
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", "--disable-gpu --disable-dev-shm-usage");
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("TavrinTest");
    tavrin::useTheme(tavrin::Theme::light);
    return RUN_ALL_TESTS();
}
