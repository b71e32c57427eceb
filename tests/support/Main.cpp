// The test program's entry: as gtest's own, with the fonts that text needs and without any display.
#include <csignal>
#include <gtest/gtest.h>
#include <memory>

#include <QGuiApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::signal(SIGHUP, SIG_DFL);  // ignored, as under nohup, it would be so in the programs that tests start
    static char name[] = "tavrin_tests", option[] = "-platform", platform[] = "offscreen";
    static char* words[] = {name, option, platform, nullptr};
    static int count = 3;
    new QGuiApplication(count, words);  // a test that does without one takes it away in a process of its own
    const int result = RUN_ALL_TESTS();
    delete qGuiApp;
    return result;
}
