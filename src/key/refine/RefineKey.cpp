#include "key/refine/RefineKey.h"

#include "key/refine/Steps.h"

namespace tavrin::refine {

Refined refineKey(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result) {
    return Steps(false).run(context, shot, taste, result);
}

}  // namespace tavrin::refine
