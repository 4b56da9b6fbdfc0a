// Accesses beyond the operands: each operand, table and list ends at a page that cannot be touched, or begins right behind
// one, and the pages of sources cannot be written.
#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/promises.h"

using namespace harness;

namespace {

class GuardPages : public GroupTest {};

TEST_P(GuardPages, NothingBeyondIsTouched)
{
    constexpr int draws = 240;
    for (const Function* function : functions()) {
        for (int draw = 0; draw < draws; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, 9000 + draw);
            Random random(plan.seed);
            plan.sizes = drawAgreeingSizes(*function, random);
            Style style = drawStyle(random);
            if (function->array && draw % 6 == 0) {  // enough objects for the widest registers
                plan.sizes = equalSizes(*function, 1 + int(random() % 8), 40 + int(random() % 100));
                style = draw % 12 ? Style::planes : style;
            }
            drawPatterns(plan, *function, style, random);
            plan.guard = draw % 2 ? Guard::before : Guard::behind;
            plan.beyond = [&](const Operand& operand) { return touchedBehind(*function, plan.sizes, operand); };
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, GuardPages, testing::ValuesIn(declaredGroups()), groupName);

}  // namespace
