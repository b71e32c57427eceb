// The entry of the window's tests.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/frame/Theme.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setOrganizationName("TavrinTest");
    tavrin::useTheme(tavrin::Theme::light);
    return RUN_ALL_TESTS();
}
