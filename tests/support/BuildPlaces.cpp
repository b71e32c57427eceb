#include "support/BuildPlaces.h"

namespace tavrin::test {

const char* const kSourceFolder = TAVRIN_SOURCE_DIR;
const char* const kCliProgram = TAVRIN_CLI;
const char* const kFailingFolder = TAVRIN_FAILING_FOLDER;

}  // namespace tavrin::test
