// Accesses beyond the operands: each operand, table and list ends at a page that cannot be touched, or begins right behind
// one, and the pages of sources cannot be written.
#include "harness/groups.h"
#include "harness/patterns.h"

using namespace harness;

namespace {

// What a kernel touches behind an operand, in bytes: these few, and on purpose.
int64_t promisedBeyond(const Function& function, const std::map<std::string, int32_t>& sizes, const Operand& operand)
{
    auto size = [&](const char* name) { return sizes.at(name); };
    const std::string& name = function.name;
    // Small sizes that come to 3 or 4 by OR go through the code of that size, by way of further entries of the tables.
    if (name == "vokmMul_mm_32f_P" || name == "vokmMul_tt_64f_P") {
        return int64_t(function.spareEntries) * operand.elementSize;
    }
    // 4x4 by 3 stored rows: the row behind src2 is multiplied too, into a fourth column.
    if (name == "vokmMul_mat_32f" && size("src1Width") == 4 && size("src1Height") == 4 && size("src2Height") == 3) {
        return operand.spec.name == "src2" ? operand.stride1 : operand.spec.name == "dst" ? operand.elementSize : 0;
    }
    // Rows on 16 bytes go two objects at a time, up to an even count.
    if (name == "vokmMul_tava_32f" && size("src1Width") == 3 && size("src1Height") == 3 && size("count") % 2) {
        return operand.stride0;
    }
    return 0;
}

class GuardPages : public GroupTest {};

TEST_P(GuardPages, NothingBeyondIsTouched)
{
    constexpr int draws = 240;
    for (const Function* function : functions()) {
        for (int draw = 0; draw < draws; ++draw) {
            JobSpec spec;
            spec.seed = seedOf(*function, 9000 + draw);
            Random random(spec.seed);
            spec.sizes = drawAgreeingSizes(*function, random);
            Style style = drawStyle(random);
            if (function->array && draw % 6 == 0) {  // enough objects for the widest registers
                spec.sizes = equalSizes(*function, 1 + int(random() % 8), 40 + int(random() % 100));
                style = draw % 12 ? Style::planes : style;
            }
            drawPatterns(spec, *function, style, random);
            spec.guard = draw % 2 ? Guard::before : Guard::behind;
            spec.beyond = [&](const Operand& operand) { return promisedBeyond(*function, spec.sizes, operand); };
            if (!report(Job(*function, spec).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, GuardPages, testing::ValuesIn(declaredGroups()), groupName);

}  // namespace
