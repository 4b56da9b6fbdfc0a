#include "fuzz_case.h"

#include <algorithm>
#include <memory>

#include "../harness/expression.h"
#include "../harness/faults.h"
#include "../harness/patterns.h"
#include "../harness/promises.h"
#include "../harness/threads.h"
#include "../oracle/grid.h"
#include "choices.h"

namespace fuzz {
namespace {

using namespace harness;

bool isIn(const ArgRecord& arg) { return arg.kind != ArgKind::real && arg.kind != ArgKind::integer; }

// Makes a job of choices, in the order of the input: function, sizes, threads, values, layout, overlap, single values, faults.
class Case {
public:
    explicit Case(Choices given) : choices(given), function(chooseFunction())
    {
        chooseSizes();
        chooseCount();
        const int kind = choices.below(8);
        plan.values = kind < 5 ? Values::ordinary : kind < 7 ? Values::special : Values::zeros;
        plan.seed = uint64_t(choices.byte());
        plan.gap = 640;
        choosePatterns();
        chooseOverlap();
        chooseGuard();
        job = std::make_unique<Job>(function, plan);
        if (mayOverlap && !overlapIsDefined(*job)) {
            plan.overlay.clear();
            for (auto& [name, pattern] : plan.patterns) {
                pattern.steps[0] = 0;
            }
            job = std::make_unique<Job>(function, plan);
        }
        function.isDouble ? chooseValues<double>() : chooseValues<float>();
        setCacheBytes(choices.of({0, 10, 4096, 100000, 1 << 30}));
    }

    std::string check()
    {
        std::string refused;
        if (choices.oneIn(4) && refuse(refused)) {
            return refused;
        }
        // Sizes that disagree by themselves.
        if (int32_t expected = expectedRefusal(function, job->arguments)) {
            return refusal(expected);
        }
        return job->check();
    }

    std::string describe() const
    {
        std::string text = job->describe();
        for (auto& [name, over] : plan.overlay) {
            text += " [" + name + " at " + over.first + " + " + std::to_string(over.second) + "]";
        }
        return text;
    }

private:
    const Function& chooseFunction()
    {
        const int high = choices.byte();
        return allFunctions()[size_t(high << 8 | choices.byte()) % allFunctions().size()];
    }

    bool isEigen() const { return function.family.find("Eigen") != std::string::npos; }
    bool hasMatrices() const
    {
        return std::any_of(
            function.args.begin(), function.args.end(), [](const ArgRecord& arg) { return arg.letter == 'm' || arg.letter == 't'; });
    }
    bool isCubic() const
    {
        static const std::set<std::string> linear = {"vokmTranspose", "vokmCopy", "vokmExtract", "vokmLoadIdentity"};
        return hasMatrices() && !linear.count(function.family);
    }

    int chooseSize()
    {
        const int small = choices.byte();
        if (small % 8 == 7 && !isCubic()) {
            return 1 + choices.byte() % 140;
        }
        return small % 8 == 6 ? 1 + small / 8 % (isEigen() ? 9 : 17) : 1 + small % 8 % 6;
    }

    void chooseSizes()
    {
        const int n = chooseSize(), way = choices.below(4);
        plan.sizes = equalSizes(function, n, 1);
        if (way == 3) {
            for (auto& [name, value] : plan.sizes) {
                value = name == "count" ? 1 : chooseSize();
            }
        } else if (way == 2) {
            Random random{uint64_t(choices.byte())};
            plan.sizes = drawAgreeingSizes(function, random);
            const int largest = isEigen() ? 9 : 24;
            for (auto& [name, value] : plan.sizes) {
                value = isCubic() ? (value - 1) % largest + 1 : value;
            }
        }
        if (function.form == "-") {
            plan.sizes["widthHeight"] = int32_t(choices.word());
        }
    }

    double largestSize() const
    {
        double largest = 1;
        for (auto& [name, value] : plan.sizes) {
            largest = name == "count" ? largest : std::max(largest, double(value));
        }
        return largest;
    }
    double elementsOfOne() const { return largestSize() * (hasMatrices() ? largestSize() : 1); }
    // About what the slow evaluation does for one object.
    double workOfOne() const { return elementsOfOne() * (isCubic() ? largestSize() : 1) * (isEigen() ? 3 : 1); }
    // The search for overlaps looks at pairs of elements.
    bool isSmall() const { return (function.array ? plan.sizes.at("count") : 1) * elementsOfOne() <= 1000; }

    void chooseCount()
    {
        const int choice = choices.byte();
        plan.threads = 1 + choices.below(5);
        plan.laterThreads = choices.oneIn(8) ? 1 + choices.below(plan.threads) : -1;
        if (!function.array) {
            return;
        }
        const int most = std::max(1, int(60000 / workOfOne()));
        plan.sizes["count"] = std::min(most, 1 + choice % 32);
        if (choice >= 240 && function.wrapper) {
            int low = 0, high = 4096;  // serial at low, parallel at high
            while (high - low > 1) {
                plan.sizes["count"] = (low + high) / 2;
                (wantsThreads(function, plan.sizes) ? high : low) = plan.sizes["count"];
            }
            plan.sizes["count"] = std::min({4 * most, 3000, std::max(1, high + choice % 8 - 3)});
        }
    }

    Pattern choosePattern()
    {
        static const char* const nests[] = {"cro", "cro", "cor", "rco", "ocr", "orc", "roc"};
        Pattern p;
        const int shape = choices.byte(), place = choices.byte(), where = choices.byte();
        p.nest = nests[shape % 7];
        p.unit = shape / 7 % 4 == 3 ? 2 + shape / 28 % 2 : 1;
        p.pad = place % 4;
        p.roundObject = place / 4 % 4 == 3 ? 16 << place / 16 % 3 : 0;
        p.align = where % 16 * function.elementSize() % 64 + (place >= 240 ? 1 + where % (function.elementSize() - 1) : 0);
        p.shift = where / 16 % 4 == 3 ? 1001 : where / 16 % 4;
        p.sequence = "ars"[where / 64 % 3];
        return p;
    }

    void choosePatterns()
    {
        const Pattern common = choosePattern();
        for (const ArgRecord& arg : function.args) {
            if (!isIn(arg)) {
                continue;
            }
            const int departs = choices.byte();
            Pattern& own = plan.patterns[arg.name] = departs % 4 == 3 ? choosePattern() : common;
            if (departs % 4 == 2) {
                own.align = departs / 4 % (64 / function.elementSize()) * function.elementSize();
            }
            if (departs >= 240 && isSmall()) {
                mayOverlap = true;
                for (int& step : own.steps) {
                    step = 1 + choices.below(16);
                }
            }
        }
    }

    // A result on a source, or across it.
    void chooseOverlap()
    {
        const int choice = choices.byte();
        if (choice % 4 != 3) {
            return;
        }
        std::vector<const ArgRecord*> sources, results;
        for (const ArgRecord& arg : function.args) {
            if (arg.kind == ArgKind::object || arg.kind == ArgKind::scalars) {
                (arg.written ? results : sources).push_back(&arg);
            }
        }
        if (sources.empty() || results.empty() || !isSmall()) {
            return;
        }
        const ArgRecord& source = *sources[choice / 4 % sources.size()];
        const ArgRecord& result = *results[choice / 16 % results.size()];
        mayOverlap = true;
        plan.gap = 4096;
        const int how = choices.below(4), distance = choices.byte() - 128;
        if (how < 3) {
            plan.patterns[source.name].sequence = how == 2 ? plan.patterns[source.name].sequence : 'a';
            plan.patterns[result.name] = plan.patterns[source.name];
        }
        plan.overlay[result.name] = {source.name, how == 0 ? 0 : distance * (how == 3 ? 2 : function.elementSize())};
    }

    // A stop inside a thread could not be told.
    void chooseGuard()
    {
        const int choice = choices.below(8);
        if (choice >= 6 && !mayOverlap && plan.threads == 1) {
            plan.guard = choice == 6 ? Guard::before : Guard::behind;
            plan.beyond = [this](const Operand& operand) { return touchedBehind(function, plan.sizes, operand); };
        }
    }

    template <class T> T chooseValue(T before)
    {
        using Limits = std::numeric_limits<T>;
        const int kind = choices.byte();
        const T pool[] = {T(0), -T(0), T(1), T(-1), Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN(),
            Limits::denorm_min(), Limits::min(), Limits::max(), -Limits::max(), std::sqrt(Limits::max()), Limits::epsilon(),
            2 * Limits::epsilon(), T(1.1920928955078125e-07), Limits::min() * 4};
        switch (kind % 8) {
        case 0: return std::nextafter(before, kind & 128 ? Limits::infinity() : -Limits::infinity());
        case 1: return -before;
        case 2: return std::ldexp(before, kind / 8 * 8 - 128);
        case 3: return T(kind / 8 - 16);
        case 4: return std::ldexp(T(1), choices.byte() - 128) * (kind & 128 ? -1 : 1);
        case 5: {
            uint64_t bits = uint64_t(choices.word()) << 32 | (function.isDouble ? choices.word() : 0);
            T value;
            std::memcpy(&value, reinterpret_cast<char*>(&bits) + 8 - sizeof(T), sizeof(T));
            return value;
        }
        default: return pool[kind / 8 % 16];
        }
    }

    // A few elements in place of what was drawn; whole matrices become awkward.
    template <class T> void chooseValues()
    {
        std::vector<std::string> names;
        for (const ArgRecord& arg : function.args) {
            if (arg.kind == ArgKind::object && !arg.written) {
                names.push_back(arg.name);
            }
            if (arg.kind == ArgKind::real && choices.oneIn(4)) {
                job->arguments.reals[arg.name] = double(chooseValue(T(job->arguments.reals[arg.name])));
            }
        }
        for (int left = names.empty() ? 0 : choices.below(16); left > 0; --left) {
            const int choice = choices.byte();
            Source<T> source(*job, names[choice % names.size()]);
            const int object = choices.byte() % source.objects, where = choices.byte();
            const int row = where % source.rows, col = where / source.rows % source.cols;
            if (choice >= 192 && source.rows == source.cols) {
                Random random{uint64_t(where)};
                source.spoil(object, "iezdsnutcrj"[choice % 11], random);
            } else if (choice >= 128) {  // as another element
                const int other = choices.byte();
                source.put(object, row, col, source.get(object, other % source.rows, other / source.rows % source.cols));
            } else {
                source.put(object, row, col, chooseValue(source.get(object, row, col)));
            }
        }
    }

    std::string refusal(int32_t expected)
    {
        std::string problem = checkRefusal(*job, expected);
        return problem.empty() ? "" : describe() + ": refused call: " + problem;
    }

    // Spoils some arguments. False if the call is accepted all the same; then the arguments are good for a run.
    bool refuse(std::string& problem)
    {
        const Arguments good = job->arguments;
        const std::vector<Fault> faults = faultsOf(function, *job);
        std::string what;
        for (int left = 1 + choices.below(3); left > 0; --left) {
            Fault fault = faults[size_t(choices.byte()) % faults.size()];
            if (!fault.null && choices.oneIn(4)) {
                fault.value = int32_t(choices.word());
            }
            apply(fault, job->arguments);
            what += " " + fault.param + "=" + (fault.null ? "null" : std::to_string(fault.value));
        }
        if (int32_t expected = expectedRefusal(function, job->arguments)) {
            problem = refusal(expected);
            problem += problem.empty() ? "" : what;
            return true;
        }
        Arguments odd = job->arguments;
        job->arguments = good;
        keepHarmless(odd);
        return false;
    }

    // Of arguments that are accepted although they look bad, those that reach the same memory stay: a shift with its table turned
    // back by as much, the distance to a next object where there is none.
    void keepHarmless(const Arguments& odd)
    {
        if (plan.guard != Guard::none) {
            return;  // the tables in use stand elsewhere
        }
        for (auto& [name, operand] : job->operands) {
            const std::string shift = operand.arg.prefix + "ObjShift", stride0 = operand.arg.prefix + "Stride0";
            auto& integers = job->arguments.integers;
            if (integers.count(shift)) {
                for (char*& entry : operand.entries) {
                    entry = reinterpret_cast<char*>(reinterpret_cast<intptr_t>(entry) + integers[shift] - odd.integers.at(shift));
                }
                operand.entriesBefore = operand.entries;
                integers[shift] = odd.integers.at(shift);
            }
            const bool free = function.family == "vokmCopy" || function.family == "vokmLoadIdentity";
            if (free && integers.count(stride0) && operand.shape.objects == 1) {
                integers[stride0] = odd.integers.at(stride0);
            }
        }
    }

    Choices choices;
    const Function& function;
    JobPlan plan;
    bool mayOverlap = false;
    std::unique_ptr<Job> job;
};

}  // namespace

std::string check(const uint8_t* data, size_t size) { return Case(Choices(data, size)).check(); }

std::string describe(const uint8_t* data, size_t size) { return Case(Choices(data, size)).describe(); }

}  // namespace fuzz
