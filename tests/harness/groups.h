// Tests run by group: one form of one family, with all its element types and layouts.
#pragma once
#include <gtest/gtest.h>

#include "job.h"

namespace harness {

class GroupTest : public testing::TestWithParam<std::string> {
protected:
    std::vector<const Function*> functions() const { return functionsOf(GetParam()); }

    // Reports a problem, if it is one; false once there are so many that more would not help.
    bool report(const std::string& problem)
    {
        if (!problem.empty() && ++problems <= 5) {
            ADD_FAILURE() << problem;
        }
        return problems < 50;
    }

private:
    int problems = 0;
};

inline std::string groupName(const testing::TestParamInfo<std::string>& info)
{
    return info.param.back() == '-' ? info.param.substr(0, info.param.size() - 2) : info.param;
}

// The seed of a function's draws: the same on every run and machine.
inline uint64_t seedOf(const Function& function, uint64_t salt)
{
    uint64_t seed = 1469598103934665603u + salt;
    for (char letter : function.name) {
        seed = (seed ^ uint64_t(static_cast<unsigned char>(letter))) * 1099511628211u;
    }
    return seed;
}

}  // namespace harness
