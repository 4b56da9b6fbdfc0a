#include "job.h"

#include <cmath>
#include <limits>
#include <sstream>

#include "expression.h"
#include "threads.h"

namespace harness {
namespace {

std::map<std::string, const Oracle*>& oracles()
{
    static std::map<std::string, const Oracle*> known;
    return known;
}

int count(const JobPlan& plan)
{
    auto found = plan.sizes.find("count");
    return found == plan.sizes.end() ? 1 : found->second;
}

template <class T> T ordinaryValue(Random& random)
{
    // Full mantissas and mixed exponents: a sum in another order nearly always has other bits.
    std::uniform_real_distribution<double> mantissa(1.0, 2.0);
    const int exponent = int(random() % 7) - 3;  // compilers differ in which argument of a call is drawn first
    const double value = std::ldexp(mantissa(random), exponent);
    return T(random() % 2 ? value : -value);
}

template <class T> T specialValue(Random& random)
{
    using Limits = std::numeric_limits<T>;
    const T pool[] = {T(0), -T(0), T(1), T(-1), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
        Limits::denorm_min(), Limits::min(), Limits::max(), -Limits::max(), std::sqrt(Limits::max()), std::sqrt(Limits::min()),
        Limits::min() / 8};
    return random() % 3 ? ordinaryValue<T>(random) : pool[random() % (sizeof pool / sizeof pool[0])];
}

template <class T> T someValue(Values kind, Random& random)
{
    switch (kind) {
    case Values::special: return specialValue<T>(random);
    case Values::zeros: return random() % 3 ? (random() % 2 ? T(0) : -T(0)) : ordinaryValue<T>(random);
    default: return ordinaryValue<T>(random);
    }
}

}  // namespace

Oracle::Oracle(const std::vector<std::string>& groups, Single f, Double d, Prepare p) : single(f), real(d), prepare(p)
{
    for (const std::string& group : groups) {
        oracles()[group] = this;
    }
}

const Oracle* Oracle::find(const std::string& group)
{
    auto found = oracles().find(group);
    return found == oracles().end() ? nullptr : found->second;
}

Job::Job(const Function& described, const JobPlan& wanted) : function(described), plan(wanted)
{
    Random random(plan.seed * 0x9E3779B97F4A7C15u + 1);
    arguments.integers = plan.sizes;
    layOut(random);
    fill(random);
    char layout = function.layout();
    bool dense = function.kernels == "one" || isDense(function, arguments.integers);
    kernel = layout == 'P' ? "_P" : layout == 'L' ? (dense ? "_L" : "_LS2") : (dense ? "" : "_S2");
}

void Job::layOut(Random& random)
{
    const int64_t gap = plan.gap;
    int64_t end = gap;
    auto size = [this](const std::string& name) { return arguments.integers.at(name == "n" ? "widthHeight" : name); };
    for (const ArgRecord& arg : function.args) {
        if (arg.kind == ArgKind::real || arg.kind == ArgKind::integer) {
            continue;
        }
        Operand operand;
        operand.arg = arg;
        operand.elementSize = arg.kind == ArgKind::indices ? 4 : function.elementSize();
        operand.shape = {arg.array && arg.kind != ArgKind::scratch ? count(plan) : 1, evaluate(arg.rows, size),
            evaluate(arg.cols, size), arg.letter == 't'};
        if (arg.letter == 't' && !arg.storedShape) {
            std::swap(operand.shape.rows, operand.shape.cols);
        }
        auto chosen = plan.patterns.find(arg.name);
        const Pattern pattern = chosen == plan.patterns.end() ? plan.patterns[""] : chosen->second;
        int64_t extent = operand.lay(pattern, random);
        int64_t start = (end + 63) / 64 * 64 + pattern.align;
        if (plan.guard != Guard::none) {
            extent += plan.beyond ? plan.beyond(operand) : 0;
            pages.emplace_back(end, extent, arg.written);
            start = pages.back().startOf(extent, plan.guard);
            extent = pages.back().last - start;
        }
        if (auto over = plan.overlay.find(arg.name); over != plan.overlay.end()) {
            start = operands.at(over->second.first).base + over->second.second;
        }
        operand.spareEntries = function.spareEntries;
        operand.place(start, pattern, random);
        end = std::max(end, start + extent + gap);
        operands[arg.name] = operand;
        laid.push_back(arg.name);
    }
    arena.allocate(plan.guard == Guard::none ? end : wholePages(end) + pageBytes);
    for (const std::string& name : laid) {
        operands[name].bind(arena.live(), arguments);
    }
    if (plan.guard != Guard::none) {
        fenceTables();
    }
    std::map<std::string, int32_t> declared;
    for (const Param& param : function.params()) {
        if (param.kind == ParamClass::integer) {
            declared[param.name] = arguments.integers.at(param.name);
        }
    }
    arguments.integers = declared;
}

void Job::fenceTables()
{
    int64_t end = 0;
    std::map<std::string, int64_t> start;
    for (const std::string& name : laid) {
        const int64_t bytes = int64_t(operands.at(name).entries.size() * sizeof(char*));
        if (bytes > 0) {
            tablePages.emplace_back(end, bytes, false);
            start[name] = tablePages.back().startOf(bytes, plan.guard);
            end = tablePages.back().last;
        }
    }
    tables.allocate(end + pageBytes);
    for (auto [name, at] : start) {
        const std::vector<char*>& entries = operands.at(name).entries;
        std::memcpy(tables.live() + at, entries.data(), entries.size() * sizeof(char*));
        arguments.pointers[name] = tables.live() + at;
    }
}

void Job::fill(Random& random)
{
    if (function.isDouble) {
        fillAs<double>(random);
    } else {
        fillAs<float>(random);
    }
    arena.copyToModel();
    const Oracle* oracle = Oracle::find(function.group());
    if (oracle && oracle->prepare) {
        oracle->prepare(*this, random);
    }
}

template <class T> void Job::fillAs(Random& random)
{
    for (size_t i = 0; i < arena.size(); ++i) {
        arena.live()[i] = char(0xA0 + i % 61);
    }
    for (const std::string& name : laid) {
        const Operand& operand = operands.at(name);
        if (operand.arg.kind != ArgKind::object || operand.arg.written) {
            continue;
        }
        for (int i = 0; i < operand.shape.objects; ++i) {
            for (int r = 0; r < operand.shape.rows; ++r) {
                for (int c = 0; c < operand.shape.cols; ++c) {
                    store<T>(arena.live() + operand.storedOffset(i, r, c), someValue<T>(plan.values, random));
                }
            }
        }
    }
    for (const ArgRecord& arg : function.args) {
        if (arg.kind == ArgKind::real) {
            arguments.reals[arg.name] = someValue<T>(plan.values, random);
        }
    }
}

bool Job::goesParallel() const
{
    return wantsThreads(function, arguments.integers) && plan.threads > 1 && count(plan) >= plan.threads;
}

int Job::expectedQuestions() const { return !wantsThreads(function, arguments.integers) ? 0 : goesParallel() ? 2 : 1; }

int32_t Job::runLibrary()
{
    setThreads(plan.threads, plan.laterThreads);
    if (plan.guard == Guard::none) {
        return call(function.name, arguments);
    }
    int32_t status = 0;
    arena.close(pages);
    tables.close(tablePages);
    const char* address = stoppedAt([&] { status = call(function.name, arguments); });
    tables.open();
    arena.open();
    stopped = address ? stoppedNear(address) : "";
    return status;
}

std::string Job::stoppedNear(const char* address) const
{
    std::ostringstream text;
    for (size_t i = 0; i < laid.size(); ++i) {
        const Operand& operand = operands.at(laid[i]);
        const int64_t at = address - arena.live();
        if (at >= pages[i].first - pageBytes && at < pages[i].last + pageBytes) {
            text << "stopped at " << laid[i] << ", " << at - operand.base << " bytes from its start; ";
        }
    }
    return text.str().empty() ? "stopped at a table or list" : text.str();
}

// Adds each status that the call may return; the return value is that of the only or first share that failed.
int32_t Job::runModel(std::set<int32_t>& acceptable)
{
    const Oracle* oracle = Oracle::find(function.group());
    if (!oracle) {
        throw std::runtime_error("no oracle for " + function.group());
    }
    int wanted = plan.laterThreads < 0 ? plan.threads : plan.laterThreads;
    int team = goesParallel() ? wanted : 1;
    int share = count(plan) / team, rest = count(plan) % team, start = 0;
    for (int t = 0; t < team; ++t) {
        int n = share + (t < rest);
        int32_t status =
            function.isDouble ? oracle->real(Model<double>(*this), start, n) : oracle->single(Model<float>(*this), start, n);
        start += n;
        if (status != 0 && (function.mergesStatus || team == 1)) {
            acceptable.insert(status);
        }
    }
    if (acceptable.empty()) {
        acceptable.insert(0);
    }
    return *acceptable.begin();
}

std::string Job::check()
{
    std::ostringstream problem;
    int32_t status = runLibrary();
    int questions = threadQuestions();
    if (!stopped.empty()) {
        return describe() + ": " + stopped;
    }
    std::set<int32_t> acceptable;
    runModel(acceptable);
    if (!acceptable.count(status)) {
        problem << "status " << status << " instead of " << *acceptable.begin() << "; ";
    }
    if (questions != expectedQuestions()) {
        problem << questions << " questions for threads instead of " << expectedQuestions() << "; ";
    }
    problem << differences();
    return problem.str().empty() ? "" : describe() + ": " + problem.str();
}

std::string Job::describe() const
{
    std::ostringstream text;
    text << function.name << " kernel" << (kernel.empty() ? " plain" : " " + kernel) << " (";
    for (auto& [name, value] : plan.sizes) {
        text << name << " " << value << ", ";
    }
    text << (plan.guard == Guard::none ? "" : plan.guard == Guard::before ? "closed before, " : "closed behind, ");
    text << "threads " << plan.threads << ", seed " << plan.seed << ", values " << int(plan.values) << ")";
    for (auto& [name, pattern] : plan.patterns) {
        text << " [" << (name.empty() ? "all" : name) << ": " << pattern.describe() << "]";
    }
    return text.str();
}

std::string Job::differences()
{
    for (const std::string& name : laid) {
        const Operand& operand = operands.at(name);
        if (operand.entries != operand.entriesBefore) {
            return "the table of " + name + " was changed";
        }
    }
    return function.isDouble ? differencesAs<double>() : differencesAs<float>();
}

// Not-a-numbers of any payload count as equal, in elements that are results; scratch is free.
template <class T> void Job::forgiveNaN()
{
    for (const std::string& name : laid) {
        const Operand& operand = operands.at(name);
        if (!operand.arg.written || operand.arg.kind == ArgKind::indices) {
            continue;
        }
        for (int i = 0; i < operand.shape.objects; ++i) {
            for (int e = 0; e < operand.shape.rows * operand.shape.cols; ++e) {
                int64_t at = operand.storedOffset(i, e / operand.shape.cols, e % operand.shape.cols);
                T got = load<T>(arena.live() + at), wanted = load<T>(arena.model() + at);
                if (operand.arg.kind == ArgKind::scratch || sameBits(got, wanted)) {
                    store<T>(arena.model() + at, got);
                }
            }
        }
    }
}

template <class T> std::string Job::differencesAs()
{
    forgiveNaN<T>();
    if (std::memcmp(arena.live(), arena.model(), arena.size()) == 0) {
        return "";
    }
    int64_t at = 0;
    while (arena.live()[at] == arena.model()[at]) {
        ++at;
    }
    std::ostringstream text;
    text << std::hexfloat << owner(at);
    int64_t element = at / int64_t(sizeof(T)) * int64_t(sizeof(T));
    if (element + int64_t(sizeof(T)) <= int64_t(arena.size())) {
        text << " is " << load<T>(arena.live() + element) << " instead of " << load<T>(arena.model() + element);
    }
    return text.str();
}

std::string Job::owner(int64_t offset) const
{
    std::ostringstream text;
    for (const std::string& name : laid) {
        const Operand& operand = operands.at(name);
        for (int i = 0; i < operand.shape.objects; ++i) {
            for (int r = 0; r < operand.shape.rows; ++r) {
                for (int c = 0; c < operand.shape.cols; ++c) {
                    int64_t from = operand.storedOffset(i, r, c);
                    if (offset >= from && offset < from + operand.elementSize) {
                        text << name << " object " << i << " stored (" << r << "," << c << ")";
                        return text.str();
                    }
                }
            }
        }
    }
    text << "memory outside all operands, at byte " << offset << " of the arena";
    return text.str();
}

std::map<std::string, int32_t> equalSizes(const Function& function, int n, int count)
{
    std::map<std::string, int32_t> sizes;
    for (const ArgRecord& arg : function.args) {
        if (arg.kind == ArgKind::integer) {
            sizes[arg.name] = arg.name == "count" ? count : n;
        }
    }
    return sizes;
}

}  // namespace harness
