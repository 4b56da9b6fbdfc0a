// Points at infinity and around it, the merged status, and destinations on the sources.
#include <cfloat>
#include <cmath>

#include "harness/groups.h"
#include "harness/patterns.h"

using namespace harness;

namespace {

const Function& affine() { return functionNamed("vokmAffineTransform3DH_mva_32f"); }

JobPlan planOf(int count, int unit)
{
    JobPlan plan;
    plan.sizes = {{"count", count}};
    plan.patterns[""].unit = unit;
    plan.gap = 4096;
    return plan;
}

// Row 3 becomes (0, 0, 1, 0): the third coordinate of a point is its w.
void makeDepthTheDivisor(Job& job)
{
    for (int c = 0; c < 4; ++c) {
        job.put<float>("src1", 0, 3, c, c == 2 ? 1.0f : 0.0f);
    }
}

TEST(AffineTransform, SmallDivisors)
{
    const float smallest = FLT_MIN;
    const std::pair<float, bool> cases[] = {{smallest, false}, {-smallest, false}, {std::nextafter(smallest, 1.0f), true},
        {-std::nextafter(smallest, 1.0f), true}, {FLT_TRUE_MIN, false}, {0.0f, false}, {-0.0f, false}, {NAN, false},
        {INFINITY, true}, {-INFINITY, true}, {-2.0f, true}, {FLT_MAX, true}};
    for (auto [count, unit] : {std::pair(3, 1), {3, 2}, {40, 1}}) {
        for (auto [w, accepted] : cases) {
            Job job(affine(), planOf(count, unit));
            makeDepthTheDivisor(job);
            job.put<float>("src2", count / 2, 0, 2, w);
            std::set<int32_t> status;
            EXPECT_EQ(job.runModel(status), accepted ? 0 : -10) << w;
            job.arena.copyToModel();
            EXPECT_EQ(job.check(), "") << "w " << w;
        }
    }
}

// A bad point anywhere, in one share or in several, is the status of the call; every other point is transformed.
TEST(AffineTransform, OneBadPointAmongShares)
{
    for (int unit : {1, 2}) {
        for (int bad : {0, 165, 166, 499, -1}) {
            JobPlan plan = planOf(500, unit);
            plan.threads = 3;
            Job job(affine(), plan);
            makeDepthTheDivisor(job);
            if (bad >= 0) {
                job.put<float>("src2", bad, 0, 2, 0.0f);
                job.put<float>("src2", (bad + 200) % 500, 0, 2, 1e-40f);
            }
            EXPECT_EQ(job.check(), "") << "bad point " << bad;
        }
    }
}

TEST(AffineTransform, OverlappingPoints)
{
    for (int unit : {1, 2}) {
        for (int64_t shift : {0, 1, -1}) {  // in points; the dense kernel has read the next point before it stores this one
            JobPlan plan = planOf(9, unit);
            plan.overlay["dst"] = {"src2", shift * 12 * unit};
            EXPECT_EQ(Job(affine(), plan).check(), "") << "shifted by " << shift << " points";
        }
        JobPlan plan = planOf(9, unit);
        plan.overlay["dst"] = {"src1", 0};
        EXPECT_EQ(Job(affine(), plan).check(), "") << "over the matrix";
    }
}

}  // namespace
