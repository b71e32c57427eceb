#include "support/BuildPlaces.h"

namespace tavrin::test {

const char* const kSourceFolder = TAVRIN_SOURCE_DIR;
const char* const kCliProgram = TAVRIN_CLI;

}  // namespace tavrin::test
