// Results against the slow evaluation, bit for bit, with all memory between and around them.
#include "harness/groups.h"
#include "harness/patterns.h"

using namespace harness;

namespace {

Values drawValues(Random& random)
{
    int die = int(random() % 10);
    return die < 7 ? Values::ordinary : die < 9 ? Values::special : Values::zeros;
}

class Results : public GroupTest {};

TEST_P(Results, EveryLayoutAndSize)
{
    constexpr int draws = 1500;
    for (const Function* function : functions()) {
        if (!Oracle::find(function->group())) {
            GTEST_SKIP() << "no oracle for " << function->group();
        }
        for (int draw = 0; draw < draws; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, draw);
            Random random(plan.seed);
            plan.sizes = drawAgreeingSizes(*function, random);
            drawPatterns(plan, *function, drawStyle(random), random);
            plan.values = drawValues(random);
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

// Arrays that fill the widest registers many times over: without gaps between the objects, at any alignment of either side,
// and with a plane for each element.
TEST_P(Results, LongArrays)
{
    for (const Function* function : functions()) {
        const bool mayBeWide = function->array && function->layout() != 'L' && Oracle::find(function->group());
        for (int draw = function->layout() == 'S' ? 0 : 12; draw < 20 && mayBeWide; ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, 7000 + draw);
            Random random(plan.seed);
            plan.sizes = equalSizes(*function, 3 + draw % 4, draw < 4 ? 3000 + int(random() % 100) : 60 + int(random() % 600));
            drawPatterns(plan, *function, function->layout() == 'P' || draw >= 16 ? Style::planes : Style::tight, random);
            plan.values = drawValues(random);
            if (!report(Job(*function, plan).check())) {
                break;
            }
        }
    }
}

// Operands of 24 MiB and more in all: results are stored past the cache.
TEST_P(Results, LargeArrays)
{
    const std::string group = GetParam(), form = group.substr(group.find('_') + 1);
    const std::set<std::string> others{"vokmCrossProduct", "vokmAffineTransform3DH", "vokmDotProduct", "vokmL2Norm", "vokmTrace"};
    for (const Function* function : functions()) {
        const std::string& family = function->family;
        const bool constant = form.find('c') != std::string::npos;
        const bool elementwise = family == "vokmAdd" || family == "vokmSub" || (family == "vokmMul" && constant);
        if (function->layout() != 'S' || !function->array || !(elementwise || others.count(family))) {
            continue;
        }
        JobPlan plan;
        plan.seed = seedOf(*function, 9000);
        Random random(plan.seed);
        const int n = elementwise ? 3 + int(random() % 4) : 3;
        int64_t elements = 0;
        for (const ArgRecord& arg : function->args) {
            const bool matrix = arg.letter == 'm' || arg.letter == 't';
            elements += arg.kind == ArgKind::scalars ? 1 : !arg.array ? 0 : arg.letter == 'c' ? 1 : matrix ? n * n : n;
        }
        plan.sizes = equalSizes(*function, n, int((25 << 20) / (elements * function->elementSize())));
        drawPatterns(plan, *function, Style::tight, random);
        EXPECT_TRUE(report(Job(*function, plan).check()));
    }
}

// Nobody tests a pointer for alignment: operands may start between two elements' addresses.
TEST_P(Results, PointersBetweenElements)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 60 && Oracle::find(function->group()); ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, 5000 + draw);
            Random random(plan.seed);
            plan.sizes = drawAgreeingSizes(*function, random);
            drawPatterns(plan, *function, drawStyle(random), random);
            for (auto& [name, pattern] : plan.patterns) {
                pattern.align += int(random() % function->elementSize());
            }
            if (!report(Job(*function, plan).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Results, testing::ValuesIn(declaredGroups()), groupName);

}  // namespace
