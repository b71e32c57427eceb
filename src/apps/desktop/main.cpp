#include <clocale>
#include <memory>

#include <QApplication>

#include "core/Log.h"
#include "core/raster/PixelMemory.h"
#include "core/state/SystemInfo.h"
#include "pipeline/StartUp.h"
#include "ui/MainWindow.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");  // what is printed and digested has a full stop in every locale
    QApplication::setApplicationName("Tavrin");
    QApplication::setOrganizationName("Tavrin");
    QApplication::setApplicationVersion(TAVRIN_VERSION);
    tavrin::setTraceLog(true);
    // A pass takes the memory that the last one gave back.
    tavrin::keepPixelMemory(std::size_t{1} << 28);

    const auto info = std::make_unique<tavrin::SystemInfo>();
    const std::string problems = tavrin::startSystem(*info);
    tavrin::MainWindow window(*info);
    window.show();
    window.tellStartProblems(problems);
    return QApplication::exec();
}
