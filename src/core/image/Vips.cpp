#include "core/image/Vips.h"

#include "core/Log.h"

namespace tavrin {

namespace {

void traceMessage(const gchar*, GLogLevelFlags, const gchar* message, gpointer) {
    logTrace(std::string("Image library: ") + message);
}

}  // namespace

bool startVips() {
    static const bool started = [] {
        if (vips_init("tavrin") != 0) return false;
        vips_cache_set_max(0);
        g_log_set_handler("VIPS",
                          static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE | G_LOG_LEVEL_INFO),
                          traceMessage, nullptr);
        return true;
    }();
    return started;
}

std::string takeVipsError() {
    std::string text = vips_error_buffer();
    vips_error_clear();
    while (!text.empty() && (text.back() == '\n' || text.back() == ' '))
        text.pop_back();
    return text.substr(text.rfind('\n') + 1);
}

}  // namespace tavrin
