// Results against the slow evaluation, bit for bit, with all memory between and around them.
#include "harness/groups.h"
#include "harness/patterns.h"

using namespace harness;

namespace {

Values drawValues(Random& random) {
    int die = int(random() % 10);
    return die < 7 ? Values::ordinary : die < 9 ? Values::special : Values::zeros;
}

int drawSize(const Function& function, Random& random) {
    bool reduces = function.form == "vv" || function.form == "v";  // long vectors have paths of their own
    switch (random() % 8) {
        case 0: return 1 + int(random() % 20);
        case 1: return reduces ? 7 + int(random() % 60) : 1 + int(random() % 9);
        case 2: return reduces ? 7 + int(random() % 14) : 7 + int(random() % 3);
        default: return 3 + int(random() % 4);
    }
}

class Results : public GroupTest {};

TEST_P(Results, EveryLayoutAndSize) {
    constexpr int draws = 1500;
    for (const Function* function : functions()) {
        if (!Oracle::find(function->group())) {
            GTEST_SKIP() << "no oracle for " << function->group();
        }
        for (int draw = 0; draw < draws; ++draw) {
            JobSpec spec;
            spec.seed = seedOf(*function, draw);
            Random random(spec.seed);
            int count = random() % 8 ? 1 + int(random() % 9) : 10 + int(random() % 30);
            spec.sizes = equalSizes(*function, drawSize(*function, random), count);
            drawPatterns(spec, *function, drawStyle(random), random);
            spec.values = drawValues(random);
            if (!report(Job(*function, spec).check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Results, testing::ValuesIn(declaredGroups()), groupName);

}  // namespace
