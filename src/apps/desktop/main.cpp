#include <clocale>
#include <memory>
#include <new>

#include <QApplication>

#include "core/Log.h"
#include "core/raster/PixelMemory.h"
#include "core/state/SystemInfo.h"
#include "session/StartUp.h"
#include "ui/MainWindow.h"

namespace {

/// A click whose work finds no memory is told, and the program goes on.
class Application : public QApplication {
  public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::bad_alloc&) {
            tavrin::logError("There is not enough memory.");
            return false;
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    Application application(argc, argv);
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
