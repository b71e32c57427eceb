# How every target of the tree is compiled.
option(TAVRIN_TESTS "Build the tests" ON)
option(TAVRIN_BENCH "Build the benchmarks" ON)
option(TAVRIN_WINDOW "Build the desktop program" ON)
option(TAVRIN_FUZZ "Build the fuzz targets (clang)" OFF)
option(TAVRIN_WERROR "Treat warnings as errors" ON)
set(TAVRIN_SANITIZER "" CACHE STRING "address or thread")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(TAVRIN_CCACHE ccache)
if(TAVRIN_CCACHE)
  # What it has to overlook to keep results made with headers that were compiled once. A clone at another place takes
  # what this one made.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
                                  CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${TAVRIN_CCACHE})
endif()

# tavrin_compile_once(TARGET HEADER...): headers of libraries that most of its files include are compiled once. A file
# still names all that it uses.
function(tavrin_compile_once target)
  target_precompile_headers(${target} PRIVATE ${ARGN})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Without it the compiler cache takes no result.
    target_compile_options(${target} PRIVATE -fpch-preprocess)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
      # It takes joined strings for writes out of bounds (its bug 105329), and forgets that it is in a system header.
      target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow
                                               -Wno-stringop-overread)
    endif()
  endif()
endfunction()

# No fused multiply-add: a*b+c must give the same bytes on every machine and at every lane width.
# Nobody reads errno or floating-point exceptions after arithmetic: leaving both out changes no value, and roots and
# choices stay in line.
add_compile_options(-Wall -Wextra -Wconversion -Wno-sign-conversion -ffp-contract=off -fno-math-errno
                    -fno-trapping-math)
if(TAVRIN_WERROR)
  add_compile_options(-Werror)
endif()

if(TAVRIN_SANITIZER STREQUAL "address")
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
elseif(TAVRIN_SANITIZER STREQUAL "thread")
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()
