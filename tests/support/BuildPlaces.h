#pragma once

namespace tavrin::test {

/// Where the tests were built from. Known to one file alone, so that the others compile to the same objects in every
/// checkout.
extern const char* const kSourceFolder;
/// The `tavrin-cli` of the same build.
extern const char* const kCliProgram;
/// A library that makes folders fail while they are read; "" where there is none.
extern const char* const kFailingFolder;

}  // namespace tavrin::test
