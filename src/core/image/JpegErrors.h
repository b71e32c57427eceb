#pragma once

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <string>

namespace tavrin {

/// What the JPEG library complains about. An error leaves by a long jump to `giveUp`, so whoever calls the library
/// sets it first, in a function where nothing needs a destructor. Warnings are counted and keep silent.
struct JpegErrors {
    jpeg_error_mgr manager;  // the library's view of this object, and so the first member
    std::jmp_buf giveUp;
    char message[JMSG_LENGTH_MAX] = "";

    JpegErrors() {
        jpeg_std_error(&manager);
        manager.error_exit = leave;
        manager.emit_message = count;
    }

  private:
    [[noreturn]] static void leave(j_common_ptr codec) {
        auto* self = reinterpret_cast<JpegErrors*>(codec->err);
        self->manager.format_message(codec, self->message);
        std::longjmp(self->giveUp, 1);
    }
    static void count(j_common_ptr codec, int level) {
        if (level < 0) ++codec->err->num_warnings;
    }
};

}  // namespace tavrin
