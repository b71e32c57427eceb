// The test program's entry: as gtest's own, with the fonts that text needs and without any display.
#include <gtest/gtest.h>
#include <memory>

#include <QGuiApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    static char name[] = "tavrin_tests", option[] = "-platform", platform[] = "offscreen";
    static char* words[] = {name, option, platform, nullptr};
    static int count = 3;
    new QGuiApplication(count, words);  // a test that does without one takes it away in a process of its own
    const int result = RUN_ALL_TESTS();
    delete qGuiApp;
    return result;
}
