// The library's own bits, over a fixed set of calls: the same from every compiler, at every level of optimisation, in
// registers of every width, for orders of operations too that the documentation leaves free. bits.txt holds a hash a form of
// the operands, of the results on one thread, and of those in a team of four. VOKM_WRITE_BITS=1 writes it anew.
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "harness/groups.h"
#include "harness/patterns.h"

using namespace harness;

namespace {

struct Hash {
    uint64_t value = 1469598103934665603u;
    void add(uint64_t more)
    {
        value = (value ^ more) * 0x9E3779B97F4A7C15u;
        value ^= value >> 29;
    }
    template <class T> void addNumber(T number)
    {
        uint64_t bits = 0;
        if (number != number) number = T(77);  // a not-a-number of any sign and payload
        std::memcpy(&bits, &number, sizeof number);
        add(bits);
    }
    std::string text() const
    {
        std::ostringstream hex;
        hex << std::hex << value;
        return hex.str();
    }
};

void addElement(Hash& hash, const Operand& operand, const char* at, bool isDouble)
{
    if (operand.arg.kind == ArgKind::indices) {
        hash.add(uint32_t(load<int32_t>(at)));
    } else if (isDouble) {
        hash.addNumber(load<double>(at));
    } else {
        hash.addNumber(load<float>(at));
    }
}

void addOperands(Hash& hash, const Job& job, bool results)
{
    for (const std::string& name : job.laid) {
        const Operand& operand = job.operands.at(name);
        if (operand.arg.kind == ArgKind::scratch || (operand.arg.written && operand.arg.kind != ArgKind::indices) != results) {
            continue;
        }
        for (int i = 0; i < operand.shape.objects; ++i) {
            for (int e = 0; e < operand.shape.rows * operand.shape.cols; ++e) {
                const int64_t at = operand.storedOffset(i, e / operand.shape.cols, e % operand.shape.cols);
                addElement(hash, operand, job.arena.live() + at, job.function.isDouble);
            }
        }
    }
    if (!results) {
        for (auto& [name, value] : job.arguments.reals) hash.addNumber(value);
    }
}

// These kernels divide by way of the processor's own estimate of a reciprocal, so their last bits are the processor's.
bool takesEstimate(const Job& job)
{
    const int n = job.function.family == "vokmInvert" ? job.arguments.integers.at("widthHeight") : 0;
    return n >= 3 && n <= 6 && !job.function.isDouble && (job.kernel == "" || job.kernel == "_L");
}

JobPlan drawPlan(const Function& function, int draw)
{
    JobPlan plan;
    plan.seed = seedOf(function, 20000 + draw);
    Random random(plan.seed);
    plan.sizes = drawAgreeingSizes(function, random);
    Style style = drawStyle(random);
    if (function.array && draw % 8 == 0) {
        const int n = 1 + int(random() % 8);
        plan.sizes = equalSizes(function, n, 40 + int(random() % 100));
        style = draw % 16 ? Style::planes : style;
    }
    drawPatterns(plan, function, style, random);
    plan.values = draw % 5 ? Values::ordinary : draw % 2 ? Values::zeros : Values::special;
    return plan;
}

JobPlan drawTeam(const Function& function, int draw)
{
    JobPlan plan = drawPlan(function, 40000 + draw);
    plan.sizes = equalSizes(function, 3 + draw % 5, 8);
    while (plan.sizes["count"] < 60000 && workValue(function, plan.sizes) <= function.limitDense) {
        plan.sizes["count"] += 1 + plan.sizes["count"] / 10;
    }
    plan.threads = 4;
    return plan;
}

class Bits : public GroupTest {
protected:
    static void add(Hash& inputs, Hash& results, const Function& function, const JobPlan& plan)
    {
        Job job(function, plan);
        if (takesEstimate(job)) {
            return;
        }
        addOperands(inputs, job, false);
        const int32_t status = job.runLibrary();
        results.add(plan.threads == 1 ? uint32_t(status) : status == 0);  // in a team, the first failure to arrive wins
        addOperands(results, job, true);
        if (function.family == "vokmLUDecomp" || function.form == "-") {
            addOperands(results, job, false);  // pivots and sizes of buffers
        }
    }

    std::string line() const
    {
        Hash inputs, alone, team;
        for (const Function* function : functions()) {
            for (int draw = 0; draw < 100; ++draw) {
                add(inputs, alone, *function, drawPlan(*function, draw));
            }
            for (int draw = 0; draw < 5 && function->wrapper; ++draw) {
                add(inputs, team, *function, drawTeam(*function, draw));
            }
        }
        return inputs.text() + " " + alone.text() + " " + team.text();
    }
};

TEST_P(Bits, AreThoseOfEveryBuild)
{
    const bool write = std::getenv("VOKM_WRITE_BITS") != nullptr;
    if (write) {
        std::ofstream(VOKM_BITS, std::ios::app) << GetParam() << " " << line() << "\n";
        GTEST_SKIP() << "written";
    }
    std::ifstream file(VOKM_BITS);
    std::string name, expected;
    while (file >> name && std::getline(file >> std::ws, expected) && name != GetParam()) {
    }
    ASSERT_EQ(name, GetParam()) << "not in " VOKM_BITS;
    EXPECT_EQ(line(), expected) << "operands, alone, in a team";
}

// The arguments of a call for one object.
Arguments only(const Job& job, std::map<std::string, std::vector<char*>>& lists, int i)
{
    Arguments one = job.arguments;
    one.integers["count"] = 1;
    for (const std::string& name : job.laid) {
        const Operand& operand = job.operands.at(name);
        const bool shared = operand.arg.kind == ArgKind::indices && job.function.form == "mva";  // pivots of the one factor
        if (!operand.arg.array || operand.arg.kind == ArgKind::scratch || shared) {
            continue;
        }
        if (operand.isList()) {
            lists[name] = {operand.entries[i]};
            one.pointers[name] = lists[name].data();
        } else if (operand.isTable()) {
            one.integers[operand.arg.prefix + "ObjShift"] += int32_t(i * operand.stride0);
        } else {
            one.pointers[name] = static_cast<char*>(one.pointers[name]) + i * operand.stride0;
        }
    }
    return one;
}

// Whether the place of an object in its array decides an order of sums, or what a failure leaves behind.
bool placeCounts(const Job& job)
{
    const std::string& name = job.function.name;
    auto size = [&](const char* which) { return job.arguments.integers.at(which); };
    return (name == "vokmDotProduct_vava_32f" && size("length") == 3) ||                      // four at a time
           (name.rfind("vokmL2Norm_va_32f", 0) == 0 && size("length") == 5) ||                // likewise
           (name == "vokmMul_tava_32f" && size("src1Width") == 3 && size("src1Height") == 3) ||  // two at a time
           (name == "vokmInvert_ma_32f" && size("widthHeight") == 4);                         // both of two, or none
}

TEST_P(Bits, ArraysAreTheirObjectsInTurn)
{
    for (const Function* function : functions()) {
        for (int draw = 0; draw < 120 && function->array && function->kernels != "none"; ++draw) {
            const JobPlan plan = drawPlan(*function, 60000 + draw);
            Job array(*function, plan), inTurn(*function, plan);
            if (placeCounts(array)) {
                continue;
            }
            const int32_t status = array.runLibrary();
            int32_t first = 0;
            std::map<std::string, std::vector<char*>> lists;
            for (int i = 0; i < plan.sizes.at("count") && (first == 0 || function->family == "vokmAffineTransform3DH"); ++i) {
                const int32_t one = call(function->name, only(inTurn, lists, i));
                first = first ? first : one;
            }
            std::memcpy(array.arena.model(), inTurn.arena.live(), array.arena.size());
            const std::string different = status == first ? array.differences() : "status";
            if (!report(different.empty() ? "" : array.describe() + ": " + different)) {
                return;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Form, Bits, testing::ValuesIn(declaredGroups()), groupName);

}  // namespace
