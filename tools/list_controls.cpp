// Prints every control of the desktop program as JSON: what it is called and which setting or action it drives.
#include <cstdio>

#include <QApplication>
#include <QJsonDocument>

#include "SampleState.h"
#include "ui/frame/ControlList.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/Theme.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const auto info = std::make_unique<tavrin::SystemInfo>();
    tavrin::startWithSample(*info);
    tavrin::useTheme(tavrin::Theme::light);
    tavrin::MainWindow window(*info);
    std::fputs(QJsonDocument(tavrin::listControls(window)).toJson().constData(), stdout);
    return 0;
}
