// The library as a file: what it exports, which functions of its inner layers exist, its version record, its inline text.
#include <gtest/gtest.h>
#include <dlfcn.h>

#include <cstdio>
#include <set>
#include <sstream>

#include "harness/job.h"
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
    EXPECT_EQ(difference(symbols("-D", ""), declared), "");
}

TEST(Library, HasTheWrappers)
{
    std::set<std::string> wrappers, all = symbols("", "ownOMP_");
    if (symbols("", "own").empty()) {
        GTEST_SKIP() << "the library is stripped";
    }
    for (const Function& function : allFunctions()) {
        if (function.wrapper && isDeclared(function.name)) {
            wrappers.insert("ownOMP_" + function.name);
        }
    }
    EXPECT_EQ(difference(all, wrappers), "");
}

TEST(Library, HasTheKernels)
{
    std::set<std::string> kernels, all = symbols("", "ownvokm");
    if (symbols("", "own").empty()) {
        GTEST_SKIP() << "the library is stripped";
    }
    for (const Function& function : allFunctions()) {
        if (function.kernels == "none" || !isDeclared(function.name)) {
            continue;
        }
        kernels.insert("own" + function.name);
        if (function.kernels == "usual" && function.layout() != 'P') {
            bool list = function.layout() == 'L';
            kernels.insert("own" + (list ? function.name.substr(0, function.name.size() - 2) + "_LS2" : function.name + "_S2"));
        }
    }
    for (auto name = all.begin(); name != all.end();) {  // the inner routines of inverse and LU have names of their own
        bool inner = name->find("_com") != std::string::npos || name->find("x", name->size() - 8) != std::string::npos ||
                     name->find("_PX") != std::string::npos || name->find("_loop2") != std::string::npos;
        name = inner && !kernels.count(*name) ? all.erase(name) : std::next(name);
    }
    EXPECT_EQ(difference(all, kernels), "");
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
        JobSpec spec;
        spec.sizes = {{"length", 3}, {"count", 3}};
        Job job(functionNamed(name), spec);
        Operand& src = job.operands.at("src");
        for (char*& entry : src.entries) {
            entry += 13;
        }
        src.entriesBefore = src.entries;
        job.arguments.integers["srcObjShift"] = -13;
        EXPECT_EQ(job.check(), "");
    }
    JobSpec spec;
    spec.sizes = {{"length", 4}, {"count", 5}};
    Job job(functionNamed("vokmAdd_vaca_32f_P"), spec);
    job.operands.at("src").stride0 = job.arguments.integers["srcStride0"] = 6;
    EXPECT_EQ(job.check(), "");
}

}  // namespace
