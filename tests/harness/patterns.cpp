#include "patterns.h"

#include <algorithm>

#include "expression.h"

namespace harness {
namespace {

template <class T, size_t n> T oneOf(const T (&list)[n], Random& random) { return list[random() % n]; }

int drawSize(bool single, Random& random)
{
    switch (random() % 8) {
    case 0: return 1 + int(random() % 20);
    case 1: return single ? 7 + int(random() % 60) : 1 + int(random() % 9);
    case 2: return single ? 7 + int(random() % 14) : 7 + int(random() % 3);
    default: return 3 + int(random() % 4);
    }
}

}  // namespace

Pattern drawPattern(Style style, int elementSize, Random& random)
{
    Pattern p;
    p.align = int(random() % (64 / elementSize)) * elementSize;
    p.shift = oneOf({0, 1, 4, 1001}, random);
    p.sequence = oneOf({'a', 'r', 's'}, random);
    p.pad = oneOf({0, 0, 1, 2, 3}, random);
    switch (style) {
    case Style::dense:
        p.nest = oneOf({"cro", "cro", "cor"}, random);
        p.roundObject = oneOf({0, 0, 16, 64}, random);
        break;
    case Style::aligned:
        p.align = p.align / 16 * 16;
        p.pad = 0;
        p.roundObject = 16;
        p.shift = oneOf({0, 4}, random);
        break;
    case Style::tight: p.pad = 0; break;
    case Style::planes:
        p.nest = oneOf({"ocr", "orc"}, random);
        p.align = oneOf({0, 16, p.align}, random);
        break;
    case Style::any:
        p.nest = oneOf({"cro", "rco", "ocr", "cor", "orc", "roc"}, random);
        p.unit = oneOf({1, 1, 2, 3}, random);
        break;
    }
    return p;
}

void drawPatterns(JobPlan& plan, const Function& function, Style style, Random& random)
{
    for (const ArgRecord& arg : function.args) {
        if (arg.kind != ArgKind::real && arg.kind != ArgKind::integer) {
            plan.patterns[arg.name] = drawPattern(style, function.elementSize(), random);
        }
    }
}

std::map<std::string, int32_t> drawAgreeingSizes(const Function& function, Random& random)
{
    bool matrices = std::any_of(
        function.args.begin(), function.args.end(), [](const ArgRecord& arg) { return arg.letter == 'm' || arg.letter == 't'; });
    int n = drawSize(!function.array && !matrices, random);
    int count = n > 9 && matrices ? 1 + int(random() % 3) : random() % 8 ? 1 + int(random() % 9) : 10 + int(random() % 30);
    std::map<std::string, int32_t> equal = equalSizes(function, n, count), sizes = equal;
    bool unequal = equal.size() > 2 && n <= 9 && random() % 8 < 5;
    for (int attempt = 0; unequal && attempt < 500; ++attempt) {
        for (auto& [name, value] : sizes) {
            value = name == "count" ? count : 1 + int(random() % 8);
        }
        if (evaluate(function.match, [&](const std::string& name) { return sizes.at(name); })) {
            return sizes;
        }
    }
    return equal;
}

Style drawStyle(Random& random)
{
    return oneOf({Style::dense, Style::aligned, Style::aligned, Style::tight, Style::planes, Style::any, Style::any}, random);
}

}  // namespace harness
