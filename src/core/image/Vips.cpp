#include "core/image/Vips.h"

#include <sstream>

#include "core/Log.h"

namespace tavrin {

namespace {

void traceMessage(const gchar*, GLogLevelFlags, const gchar* message, gpointer) {
    logTrace(std::string("Image library: ") + message);
}

}  // namespace

std::string startVips() {
    static const bool started = [] {
        if (vips_init("tavrin") != 0) return false;
        vips_cache_set_max(0);
        g_log_set_handler("VIPS",
                          static_cast<GLogLevelFlags>(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE | G_LOG_LEVEL_INFO),
                          traceMessage, nullptr);
        return true;
    }();
    return started ? "" : "the image library cannot be started";
}

std::string takeVipsError() {
    // In one step: other threads may be adding theirs.
    char* text = vips_error_buffer_copy();
    std::istringstream lines(text);
    g_free(text);
    std::string cause;
    for (std::string line; std::getline(lines, line);)
        if (line.find(": ") != std::string::npos) cause = line;
    return cause;
}

}  // namespace tavrin
