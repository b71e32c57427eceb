#include "folders/BatchElement.h"

namespace tavrin {

void BatchElement::CopyElement(const BatchElement& other) {
    sQLXFile = other.sQLXFile;
    sForegroundFile = other.sForegroundFile;
    sBackgroundFile = other.sBackgroundFile;
    sOutputFile = other.sOutputFile;
}

bool BatchElement::Equals(const BatchElement& other) const {
    return sQLXFile == other.sQLXFile && sForegroundFile == other.sForegroundFile &&
           sBackgroundFile == other.sBackgroundFile && sOutputFile == other.sOutputFile;
}

}  // namespace tavrin
