// The library as a file: what it exports, which functions of its inner layers exist, its version record, its inline text.
#include <gtest/gtest.h>
#include <dlfcn.h>

#include <cstdio>
#include <set>
#include <sstream>

#include "harness/job.h"
#include "harness/threads.h"
#include "vokm"

using namespace harness;

namespace {

std::set<std::string> symbols(const std::string& options, const std::string& prefix)
{
    std::set<std::string> found;
    FILE* pipe = popen(("nm --defined-only " + options + " '" VOKM_LIBRARY "'").c_str(), "r");
    char line[1024];
    while (pipe && std::fgets(line, sizeof line, pipe)) {
        std::istringstream fields(line);
        std::string address, kind, name;
        fields >> address >> kind >> name;
        if (kind != "A" && name.rfind(prefix, 0) == 0 && name.find('.') == std::string::npos) {
            found.insert(name.substr(0, name.find('@')));
        }
    }
    if (pipe) {
        pclose(pipe);
    }
    return found;
}

std::string join(const std::set<std::string>& names)
{
    std::string text;
    for (const std::string& name : names) {
        text += " " + name;
    }
    return text;
}

std::string difference(const std::set<std::string>& has, const std::set<std::string>& wanted)
{
    std::set<std::string> missing, extra;
    for (auto& name : wanted) {
        if (!has.count(name)) {
            missing.insert(name);
        }
    }
    for (auto& name : has) {
        if (!wanted.count(name)) {
            extra.insert(name);
        }
    }
    return (missing.empty() ? "" : "missing:" + join(missing)) + (extra.empty() ? "" : " not expected:" + join(extra));
}

TEST(Library, ExportsWhatTheHeaderDeclares)
{
    std::set<std::string> declared = {"vokmGetLibVersion"};
    for (auto& [name, signature] : declaredFunctions()) {
        declared.insert(name);
    }
    EXPECT_EQ(declared.size(), 788u);
    EXPECT_EQ(difference(symbols("-D", ""), declared), "");
}

class InnerNames : public testing::Test {
protected:
    void SetUp() override
    {
        if (symbols("", "own").empty()) {
            GTEST_SKIP() << "the library is stripped";
        }
    }
};

TEST_F(InnerNames, Wrappers)
{
    std::set<std::string> wrappers;
    for (const Function& function : allFunctions()) {
        if (function.wrapper) {
            wrappers.insert("ownOMP_" + function.name);
        }
    }
    EXPECT_EQ(wrappers.size(), 527u);
    EXPECT_EQ(difference(symbols("", "ownOMP_"), wrappers), "");
}

TEST_F(InnerNames, Kernels)
{
    std::set<std::string> kernels;
    for (const Function& function : allFunctions()) {
        if (function.kernels == "none") {
            continue;
        }
        kernels.insert("own" + function.name);
        if (function.kernels == "usual" && function.layout() != 'P') {
            bool list = function.layout() == 'L';
            kernels.insert("own" + (list ? function.name.substr(0, function.name.size() - 2) + "_LS2" : function.name + "_S2"));
        }
    }
    for (const char* type : {"32f", "64f"}) {  // the routines for one matrix, of one size or of any
        for (const char* suffix : {"_S_com", "_S2_com", "_P_com"}) {
            kernels.insert(std::string("ownvokmLUDecomp_m_") + type + suffix);
        }
        for (const char* suffix : {"_com", "_S2_com", "_P_com", "_3x3", "_4x4"}) {
            kernels.insert(std::string("ownvokmInvert_m_") + type + suffix);
        }
    }
    for (const char* routine : {"32f_5x5", "32f_6x6", "32f_4x4_loop2", "64f_5x5_PX", "64f_6x6_PX"}) {
        kernels.insert(std::string("ownvokmInvert_m_") + routine);
    }
    EXPECT_EQ(difference(symbols("", "ownvokm"), kernels), "");
}

TEST_F(InnerNames, BlockedTransposes)
{
    std::set<std::string> routines = symbols("", "ownm_");
    routines.merge(symbols("", "owni"));
    const std::set<std::string> known = {
        "ownm_Transpose_32s", "ownm_iTranspose_16u_C4R_M7", "owniTranspose_32s_asm", "owniTranspose_32s_NT"};
    EXPECT_EQ(difference(routines, known), "");
}

// A call with enough objects for a team of two, and the body of the region that it opened.
void* regionOf(const Function& function, bool dense)
{
    JobPlan plan;
    plan.sizes = equalSizes(function, 3, 2);
    plan.patterns[""].unit = dense ? 1 : 2;
    const int limit = dense ? function.limitDense : function.limitStrided;
    while (plan.sizes["count"] < 1 << 20 && workValue(function, plan.sizes) <= limit) {
        plan.sizes["count"] += 1 + plan.sizes["count"] / 16;
    }
    plan.threads = 2;
    Job job(function, plan);
    const int before = regionsOpened();
    job.runLibrary();
    EXPECT_EQ(regionsOpened(), before + 1) << function.name;
    return lastRegion();
}

// A wrapper has a region for contiguous rows and one for any stride2, unless one kernel serves both.
TEST(Wrappers, HaveOneRegionAKernel)
{
    int two = 0, one = 0;
    std::set<void*> bodies;
    for (const Function& function : allFunctions()) {
        if (!function.wrapper) {
            continue;
        }
        std::set<void*> regions = {regionOf(function, true)};
        if (function.layout() != 'P') {
            regions.insert(regionOf(function, false));
        }
        ++(regions.size() == 2 ? two : one);
        EXPECT_EQ(regions.size(), function.kernels == "usual" && function.layout() != 'P' ? 2u : 1u) << function.name;
        bodies.merge(regions);
    }
    EXPECT_EQ(two, 337);
    EXPECT_EQ(one, 190);
    EXPECT_EQ(bodies.size(), 2u * 337 + 190);  // no region serves two wrappers
}

TEST(Library, VersionRecord)
{
    const LibVersion* version = vokmGetLibVersion();
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version, vokmGetLibVersion());
    EXPECT_EQ(version->major, 6);
    EXPECT_EQ(version->minor, 1);
    EXPECT_EQ(version->majorBuild, 137);
    EXPECT_EQ(version->build, 778);
    EXPECT_EQ(std::memcmp(version->targetCpu, "m7\0\0", 4), 0);
    EXPECT_STREQ(version->name, "libvokmm7.so.6.1");
    EXPECT_STREQ(version->version, "6.1 build 137.56");
    EXPECT_STREQ(version->buildDate, "Mar 17 2010");
    EXPECT_EQ(offsetof(LibVersion, targetCpu), 16u);
    EXPECT_EQ(offsetof(LibVersion, name), 24u);
}

TEST(Library, EveryStatusHasItsSentence)
{
    const std::pair<int, vokStatus> codes[] = {{0, vokStatusOk}, {-2, vokStatusFailure}, {-6, vokStatusBadSize},
        {-8, vokStatusNullPointer}, {-10, vokStatusDivideByZero}, {-179, vokStatusNotPositiveDefinite},
        {-182, vokStatusBadStride}, {-195, vokStatusSingular}, {-202, vokStatusBadObjShift}, {-203, vokStatusBadCount},
        {-204, vokStatusSizeMismatch}, {-205, vokStatusNoConvergence}};
    std::set<std::string> sentences = {vokmStatusText(1), vokmStatusText(-1)};
    EXPECT_EQ(sentences.size(), 1u);
    for (auto [value, code] : codes) {
        EXPECT_EQ(value, code);
        EXPECT_TRUE(sentences.insert(vokmStatusText(code)).second) << value;
    }
}

// Two functions take any shift and one takes any stride0 of its source; what they then read lies where these say.
TEST(UntestedArguments, AreUsedAsTheyAre)
{
    for (const char* name : {"vokmAdd_vca_64f_P", "vokmSub_cav_32f_P"}) {
        JobPlan plan;
        plan.sizes = {{"length", 3}, {"count", 3}};
        Job job(functionNamed(name), plan);
        Operand& src = job.operands.at("src");
        for (char*& entry : src.entries) {
            entry += 13;
        }
        src.entriesBefore = src.entries;
        job.arguments.integers["srcObjShift"] = -13;
        EXPECT_EQ(job.check(), "");
    }
    JobPlan plan;
    plan.sizes = {{"length", 4}, {"count", 5}};
    Job job(functionNamed("vokmAdd_vaca_32f_P"), plan);
    job.operands.at("src").stride0 = job.arguments.integers["srcStride0"] = 6;
    EXPECT_EQ(job.check(), "");
}

}  // namespace
