// Refused calls: the order of the checks, by every pair of simultaneous faults, and what a refusal must leave alone.
#include "harness/faults.h"
#include "harness/groups.h"

using namespace harness;

namespace {

bool endsIn(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

// A fault that the checks let pass may run only where it cannot leave the arena.
bool harmless(const Fault& fault, int count)
{
    return endsIn(fault.param, "ObjShift") || (endsIn(fault.param, "Stride0") && (count == 1 || fault.value > 0));
}

class Checks : public GroupTest {
protected:
    std::string refusal(Job& job, const std::vector<const Fault*>& faults, int count)
    {
        Arguments good = job.arguments;
        std::string what = job.function.name;
        bool runs = true;
        for (const Fault* fault : faults) {
            apply(*fault, job.arguments);
            what += " " + fault->param + "=" + (fault->null ? "null" : std::to_string(fault->value));
            runs = runs && harmless(*fault, count);
        }
        int32_t expected = expectedRefusal(job.function, job.arguments);
        std::string problem;
        if (expected != 0) {
            problem = checkRefusal(job, expected);
        } else if (runs) {
            int32_t status = job.runLibrary();
            problem = status == 0 || job.function.mergesStatus ? "" : "status " + std::to_string(status);
        }
        job.arguments = good;
        std::memcpy(job.arena.live(), job.arena.model(), job.arena.size());
        return problem.empty() ? "" : what + ": " + problem;
    }
};

TEST_P(Checks, EveryPairOfFaults)
{
    for (const Function* function : functions()) {
        for (int count : {2, 1}) {
            JobPlan plan;
            plan.sizes = equalSizes(*function, 3, function->array ? count : 1);
            Job job(*function, plan);
            std::vector<Fault> faults = faultsOf(*function, job);
            for (size_t a = 0; a < faults.size(); ++a) {
                for (size_t b = a; b < faults.size(); ++b) {
                    if ((a == b || faults[a].param != faults[b].param) &&
                        !report(refusal(job, {&faults[a], &faults[b]}, count))) {
                        return;
                    }
                }
            }
        }
    }
}

// Big enough for threads if only it were accepted.
TEST_P(Checks, RefusedJobAsksForNoThreads)
{
    for (const Function* function : functions()) {
        if (function->work.empty()) {
            continue;
        }
        JobPlan plan;
        plan.threads = 3;
        plan.sizes = equalSizes(*function, 3, 1);
        while (!wantsThreads(*function, plan.sizes) && plan.sizes["count"] < 50000) {
            plan.sizes["count"] *= 2;
        }
        Job job(*function, plan);
        for (const Fault& fault : faultsOf(*function, job)) {
            if (!harmless(fault, 2) && !report(refusal(job, {&fault}, 2))) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Checks, testing::ValuesIn(declaredGroups()), groupName);

TEST(Signatures, ArgumentListsFollowTheForms)
{
    for (auto& [name, declared] : declaredFunctions()) {
        const Function* known = nullptr;
        for (const Function& function : allFunctions()) {
            known = function.name == name ? &function : known;
        }
        ASSERT_NE(known, nullptr) << name << " is declared but no form of the library";
        std::vector<Param> expected = known->params();
        ASSERT_EQ(declared.size(), expected.size()) << name;
        for (size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(declared[i].name, expected[i].name) << name << ", argument " << i;
            EXPECT_EQ(declared[i].kind, expected[i].kind) << name << ", argument " << i;
        }
    }
}

// A family is declared with all its forms, types and layouts or not at all.
TEST(Signatures, GroupsAreWhole)
{
    for (const std::string& group : declaredGroups()) {
        for (const Function& function : allFunctions()) {
            if (function.group() == group) {
                EXPECT_TRUE(isDeclared(function.name)) << function.name << " is not declared";
            }
        }
    }
    EXPECT_EQ(allFunctions().size() + 1, 788u);  // the version query is not in the table
}

}  // namespace
