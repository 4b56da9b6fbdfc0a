#include "patterns.h"

namespace harness {
namespace {

template <class T, size_t n>
T oneOf(const T (&list)[n], Random& random) {
    return list[random() % n];
}

}  // namespace

Pattern drawPattern(Style style, int elementSize, Random& random) {
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

void drawPatterns(JobSpec& spec, const Function& function, Style style, Random& random) {
    for (const ArgSpec& arg : function.args) {
        if (arg.kind != ArgKind::real && arg.kind != ArgKind::integer) {
            spec.patterns[arg.name] = drawPattern(style, function.elementSize(), random);
        }
    }
}

Style drawStyle(Random& random) {
    return oneOf({Style::dense, Style::aligned, Style::aligned, Style::tight, Style::planes, Style::any, Style::any}, random);
}

}  // namespace harness
