#include "core/text/Fonts.h"

#include <atomic>

#include <QFontInfo>
#include <QGuiApplication>

namespace tavrin {

std::string whyNoFonts() {
    static std::atomic<bool> found = false;
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return "this program was started without fonts";
    // Without any font there is still one that draws boxes; it has no name.
    if (!found) found = !QFontInfo(QFont()).family().isEmpty();
    return found ? "" : "no font was found; install one, on Debian for example the package fonts-liberation";
}

std::string fontInsteadOf(const std::string& family) {
    constexpr const char* kUsual = "Arial";
    if (family.empty() || family == kUsual || !whyNoFonts().empty()) return "";
    const QString wanted = QString::fromStdString(family), taken = QFontInfo(QFont(wanted)).family();
    return taken.compare(wanted, Qt::CaseInsensitive) == 0 ? "" : taken.toStdString();
}

bool canDrawText(SystemInfo& info) {
    static std::atomic<bool> told = false;
    const std::string reason = whyNoFonts();
    if (reason.empty()) return true;
    if (!told.exchange(true)) info.alert(kTextMissing, reason);
    info.pictures.fail(std::string(kTextMissing) + " (" + reason + ")");
    return false;
}

}  // namespace tavrin
