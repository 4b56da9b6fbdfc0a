// Ways to lay operands out, drawn at random within a style.
#pragma once
#include "job.h"

namespace harness {

enum class Style {
    dense,    // every stride2 is one element, any alignment and padding
    aligned,  // dense, every address and stride0 a multiple of 16
    tight,    // dense without padding, any alignment
    planes,   // neighbouring objects next to each other in memory
    any       // everything, operand by operand
};

Pattern drawPattern(Style style, int elementSize, Random& random);
// A pattern of its own for each operand; only styles and seeds decide, so a failure can be drawn again.
void drawPatterns(JobPlan& plan, const Function& function, Style style, Random& random);
Style drawStyle(Random& random);
// Sizes that agree with each other, count included; emphasis on 3 to 6, long ones for single vectors.
std::map<std::string, int32_t> drawAgreeingSizes(const Function& function, Random& random);

}  // namespace harness
