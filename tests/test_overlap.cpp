// Destinations that lie on a source, wherever the outcome is promised: in place, a single source read once or anew, and
// the element-by-element loops of long vectors.
#include "harness/groups.h"
#include "harness/patterns.h"
#include "harness/promises.h"

using namespace harness;

namespace {

// The forms of vectors; matrices keep other promises, in test_matrix.cpp.
std::vector<std::string> groupsOf(const std::set<std::string>& families)
{
    std::vector<std::string> found;
    for (const std::string& group : declaredGroups()) {
        size_t form = group.find('_');
        if (families.count(group.substr(0, form)) && group.find_first_of("mt", form) == std::string::npos) {
            found.push_back(group);
        }
    }
    return found;
}

bool sameKind(const ArgRecord& a, const ArgRecord& b)
{
    return a.kind == ArgKind::object && b.kind == ArgKind::object && a.array == b.array && a.letter == b.letter;
}

class Overlap : public GroupTest {};

TEST_P(Overlap, InPlace)
{
    for (const Function* function : functions()) {
        for (const ArgRecord& source : function->args) {
            if (source.written || !sameKind(source, function->arg("dst"))) {
                continue;
            }
            for (int draw = 0; draw < 300; ++draw) {
                JobPlan plan;
                plan.seed = seedOf(*function, draw);
                Random random(plan.seed);
                int n = draw % 4 ? 3 + int(random() % 4) : 1 + int(random() % 20);
                const bool longRun = draw % 30 == 0;
                plan.sizes = equalSizes(*function, n, longRun ? 200 + int(random() % 300) : 1 + int(random() % 9));
                plan.gap = 8192;
                drawPatterns(plan, *function, longRun ? Style::tight : drawStyle(random), random);
                Pattern& shared = plan.patterns[source.name];
                shared.sequence = 'a';
                plan.patterns["dst"] = shared;
                plan.overlay["dst"] = {source.name, 0};
                if (!report(Job(*function, plan).check())) {
                    return;
                }
            }
        }
    }
}

class AcrossArrays : public GroupTest {};

// Results that lie anywhere across a source, where that has one outcome: each object is finished before the next one is read.
TEST_P(AcrossArrays, ObjectsAreFinishedInTurn)
{
    for (const Function* function : functions()) {
        std::vector<const ArgRecord*> sources, results;
        for (const ArgRecord& arg : function->args) {
            if (arg.array && (arg.kind == ArgKind::object || arg.kind == ArgKind::scalars)) {
                (arg.written ? results : sources).push_back(&arg);
            }
        }
        for (int draw = 0; draw < 120 && !sources.empty() && !results.empty(); ++draw) {
            JobPlan plan;
            plan.seed = seedOf(*function, 11000 + draw);
            Random random(plan.seed);
            const int count = draw % 3 ? 4 + int(random() % 20) : 64 + int(random() % 40);
            plan.sizes = equalSizes(*function, 3 + int(random() % (draw % 4 ? 4 : 8)), count);
            drawPatterns(plan, *function, draw % 2 ? Style::tight : drawStyle(random), random);
            const std::string source = sources[random() % sources.size()]->name,
                              result = results[random() % results.size()]->name;
            if (draw / 2 % 2) {
                plan.patterns[source].sequence = 'a';
                plan.patterns[result] = plan.patterns[source];
            }
            const Operand under = Job(*function, plan).operands.at(source);
            const int object = int(random() % (draw / 4 % 2 ? 4 : count)), row = int(random() % under.logicalRows()),
                      col = int(random() % under.logicalCols());
            const bool whole = draw / 8 % 2;
            const int64_t place = whole ? under.offset(object, 0, 0) : under.offset(object, row, col);
            plan.overlay[result] = {source, place - under.base};
            Job job(*function, plan);
            if (overlapIsDefined(job) && !report(job.check())) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, AcrossArrays, testing::ValuesIn(declaredGroups()), groupName);

// The first result object lands on the single source: read once, the others still see its old value.
TEST_P(Overlap, SingleSourceUnderTheDestination)
{
    for (const Function* function : functions()) {
        for (const ArgRecord& source : function->args) {
            bool single = source.letter == 'v' && !source.array && !source.written && function->array;
            if (!single || function->form.find('c') != std::string::npos) {
                continue;
            }
            for (int draw = 0; draw < 60; ++draw) {
                JobPlan plan;
                plan.seed = seedOf(*function, draw);
                plan.sizes = equalSizes(*function, 1 + draw % 9, 3 + draw % 5);
                Pattern pattern;
                pattern.unit = 1 + draw / 9 % 2;
                pattern.pad = draw % 3;
                pattern.align = draw % 5 * function->elementSize();
                pattern.roundObject = draw % 2 * 16;
                plan.patterns[""] = pattern;
                plan.gap = 4096;
                plan.overlay["dst"] = {source.name, 0};
                if (!report(Job(*function, plan).check())) {
                    return;
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Overlap,
    testing::ValuesIn(groupsOf({"vokmAdd", "vokmSub", "vokmMul", "vokmSaxpy", "vokmLComb", "vokmCrossProduct"})), groupName);

// From 7 elements on, one vector that overlaps its source by any distance is done element by element, ascending.
void ascendAt(const Function& function, const ArgRecord& source, int64_t bytes)
{
    JobPlan plan;
    plan.seed = seedOf(function, bytes + 1000);
    plan.sizes = equalSizes(function, 7 + int(plan.seed % 18), 1);
    plan.patterns[""].align = int(plan.seed / 64 % 4) * function.elementSize();
    plan.gap = 4096;
    plan.overlay["dst"] = {source.name, bytes};
    EXPECT_EQ(Job(function, plan).check(), "") << "dst " << bytes << " bytes behind " << source.name;
}

class OverlappingVectors : public testing::TestWithParam<const char*> {
protected:
    void ascend(int64_t offset, int step)
    {  // in halves of an element
        for (const Function* function : functionsOf(GetParam())) {
            for (const ArgRecord& source : function->args) {
                for (int64_t half = -52 + offset; half <= 52 && source.letter == 'v' && !source.written; half += step) {
                    ascendAt(*function, source, half * function->elementSize() / 2);
                }
            }
        }
    }
};

TEST_P(OverlappingVectors, WholeElementsApart) { ascend(0, 2); }
TEST_P(OverlappingVectors, HalfElementsApart) { ascend(1, 2); }

INSTANTIATE_TEST_SUITE_P(Form, OverlappingVectors,
    testing::Values(
        "vokmAdd_vv", "vokmSub_vv", "vokmAdd_vc", "vokmSub_vc", "vokmSub_cv", "vokmMul_vc", "vokmSaxpy_vv", "vokmLComb_vv"),
    [](const testing::TestParamInfo<const char*>& form) { return std::string(form.param); });

// A vector that starts between two elements' addresses is summed one by one.
TEST(UnalignedVectors, AreSummedAscending)
{
    for (const char* group : {"vokmDotProduct_vv", "vokmL2Norm_v"}) {
        for (const Function* function : functionsOf(group)) {
            for (int align = 1; align < 16; ++align) {
                for (int length = 1; length < 40; ++length) {
                    JobPlan plan;
                    plan.seed = seedOf(*function, align * 64 + length);
                    plan.sizes = equalSizes(*function, length, 1);
                    plan.patterns[function->args[0].name].align = align;
                    plan.patterns["src2"].align = 16 - align;
                    EXPECT_EQ(Job(*function, plan).check(), "");
                }
            }
        }
    }
}

// Strided lists of vectors do what the kernel of one object does with each, also where a result lies across its sources.
TEST(StridedLists, AreSingleVectorsInTurn)
{
    constexpr int count = 3, places = 64;
    for (const char* name : {"vokmAdd_vav_32f_L", "vokmAdd_vava_32f_L", "vokmSub_vav_32f_L", "vokmSub_vava_32f_L"}) {
        const std::string list = name, single = list.substr(0, 8) + "vv_32f";
        const bool array = list.find("vava") != std::string::npos;
        for (int draw = 0; draw < 600 && isDeclared(list); ++draw) {
            Random random(draw + 1);
            float byList[places], oneByOne[places];
            for (int k = 0; k < places; ++k) {
                byList[k] = oneByOne[k] = float(random() % 1000);
            }
            size_t at[3][count];  // src1, src2, dst
            for (auto& operand : at) {
                for (size_t& start : operand) start = random() % (places - 6 * 3);
            }
            Arguments lists, one;
            one.integers = lists.integers = {{"src1Stride2", 8}, {"src2Stride2", 4 + 4 * int(random() % 3)},
                {"dstStride2", 4 + 4 * int(random() % 3)}, {"length", 2 + draw % 6}};
            lists.integers.insert({{"src1ObjShift", 0}, {"src2ObjShift", 0}, {"dstObjShift", 0}, {"count", count}});
            float* tables[3][count];
            for (int i = 0; i < count; ++i) {
                if (!array) at[1][i] = at[1][0];
                for (int k = 0; k < 3; ++k) tables[k][i] = byList + at[k][i];
                one.pointers = {{"src1", oneByOne + at[0][i]}, {"src2", oneByOne + at[1][i]}, {"dst", oneByOne + at[2][i]}};
                ASSERT_EQ(call(single, one), 0);
            }
            lists.pointers = {{"src1", tables[0]}, {"src2", tables[1]}, {"dst", tables[2]}};
            if (!array) lists.pointers["src2"] = tables[1][0];
            ASSERT_EQ(call(list, lists), 0);
            ASSERT_TRUE(std::equal(byList, byList + places, oneByOne)) << list << " draw " << draw;
        }
    }
}

}  // namespace
