#include "arena.h"

#include <sys/mman.h>

#include <algorithm>
#include <numeric>
#include <sstream>
#include <stdexcept>

namespace harness {

std::string Pattern::describe() const
{
    std::ostringstream text;
    text << nest << " unit " << unit << " pad " << pad << " align " << align << " shift " << shift << " seq " << sequence;
    if (roundObject) {
        text << " round0 " << roundObject;
    }
    if (steps[0]) {
        text << " steps " << steps[0] << " " << steps[1] << " " << steps[2];
    }
    return text.str();
}

int64_t Operand::storedOffset(int object, int row, int col) const
{
    if (isTable()) {
        return places[row * shape.cols + col] + object * stride0;
    }
    return (isList() ? places[object] : base + object * stride0) + row * stride1 + col * stride2;
}

int64_t Operand::offset(int object, int row, int col) const
{
    return shape.transposed ? storedOffset(object, col, row) : storedOffset(object, row, col);
}

int64_t Operand::lay(const Pattern& pattern, Random&)
{
    bool dense = arg.kind != ArgKind::object;  // results without strides
    int64_t step = dense ? elementSize : int64_t(pattern.unit) * elementSize;
    for (char loop : dense ? std::string("cro") : pattern.nest) {
        int64_t extent = loop == 'o' ? shape.objects : loop == 'r' ? shape.rows : shape.cols;
        int64_t& stride = loop == 'o' ? stride0 : loop == 'r' ? stride1 : stride2;
        if (loop == 'o' && pattern.roundObject && !dense) {
            step = (step + pattern.roundObject - 1) / pattern.roundObject * pattern.roundObject;
        }
        stride = step;
        if (extent > 1 || loop != 'r') {  // a vector has no rows to pad
            step = step * extent + (dense ? 0 : int64_t(pattern.pad) * elementSize);
        }
    }
    if (pattern.steps[0] && !dense) {
        stride0 = int64_t(pattern.steps[0]) * elementSize;
        stride1 = int64_t(pattern.steps[1]) * elementSize;
        stride2 = int64_t(pattern.steps[2]) * elementSize;
    }
    return (shape.objects - 1) * stride0 + (shape.rows - 1) * stride1 + (shape.cols - 1) * stride2 + elementSize;
}

void Operand::place(int64_t start, const Pattern& pattern, Random& random)
{
    base = start;
    shift = arg.kind == ArgKind::object ? int64_t(pattern.shift) * elementSize : 0;
    int entriesCount = isTable() ? shape.rows * shape.cols : isList() ? shape.objects : 0;
    places.assign(entriesCount, 0);
    std::vector<int> order(entriesCount);
    std::iota(order.begin(), order.end(), 0);
    if (pattern.sequence == 'r') {
        std::reverse(order.begin(), order.end());
    } else if (pattern.sequence == 's') {
        std::shuffle(order.begin(), order.end(), random);
    }
    for (int i = 0; i < entriesCount; ++i) {
        int n = order[i];
        places[i] = base + (isList() ? n * stride0 : (n / shape.cols) * stride1 + (n % shape.cols) * stride2);
    }
    for (int i = 0; i < spareEntries && isTable(); ++i) {
        places.push_back(base + (shape.rows - 1) * stride1 + (shape.cols - 1) * stride2 + (i + 1) * elementSize);
    }
}

void Operand::bind(char* live, Arguments& arguments)
{
    if (isTable() || isList()) {
        entries.clear();
        for (int64_t place : places) {
            entries.push_back(live + place - shift);
        }
        entriesBefore = entries;
        arguments.pointers[arg.name] = entries.data();
    } else {
        arguments.pointers[arg.name] = live + base;
    }
    std::map<std::string, int32_t> values = {{"Stride0", int32_t(stride0)}, {"Stride1", int32_t(stride1)},
        {"Stride2", int32_t(stride2)}, {"ObjShift", int32_t(shift)}};
    for (auto& [name, value] : values) {
        arguments.integers[arg.prefix + name] = value;
    }
}

void Arena::allocate(size_t wanted)
{
    bytes = wanted;
    for (int image : {0, 1}) {
        constexpr uintptr_t page = pageBytes;
        memory[image].reset(new char[bytes + page]);
        uintptr_t address = reinterpret_cast<uintptr_t>(memory[image].get());
        start[image] = memory[image].get() + ((page - address % page) % page);
    }
}

void Arena::close(const std::vector<OpenPages>& allBut)
{
    int64_t end = 0;
    const auto protect = [this](int64_t from, int64_t to, int rights) {
        if (from < to && mprotect(live() + from, size_t(to - from), rights) != 0) {
            throw std::runtime_error("pages cannot be closed");
        }
    };
    for (const OpenPages& pages : allBut) {
        protect(end, pages.first, PROT_NONE);
        if (!pages.written) {
            protect(pages.first, pages.last, PROT_READ);
        }
        end = pages.last;
    }
    protect(end, int64_t(bytes) / pageBytes * pageBytes, PROT_NONE);
}

void Arena::open() { mprotect(live(), bytes / pageBytes * pageBytes, PROT_READ | PROT_WRITE); }

}  // namespace harness
