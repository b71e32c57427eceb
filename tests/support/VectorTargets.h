#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <hwy/targets.h>

namespace tavrin::test {

/// Calls `work` once with the vectors of every target that this machine has; failures name the target.
inline void onEveryTarget(const std::function<void()>& work) {
    hwy::SetSupportedTargetsForTest(0);
    for (std::int64_t left = hwy::SupportedTargets(); left != 0; left &= left - 1) {
        const std::int64_t target = left & -left;
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(target);
        work();
        hwy::SetSupportedTargetsForTest(0);
    }
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

}  // namespace tavrin::test
