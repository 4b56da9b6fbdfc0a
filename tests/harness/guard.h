// Pages that cannot be touched while the library runs, so that an access beyond an operand stops there and is told.
#pragma once
#include <cstdint>
#include <functional>

namespace harness {

constexpr int64_t pageBytes = 4096;
inline int64_t wholePages(int64_t bytes) { return (bytes + pageBytes - 1) / pageBytes * pageBytes; }

enum class Guard { none, before, behind };  // which end of each operand lies at a closed page

struct OpenPages {
    int64_t first, last;  // bytes from the start of the memory, multiples of a page
    bool written;
    // Pages for so many bytes behind `end` and a closed page, and where the bytes start in them.
    OpenPages(int64_t end, int64_t bytes, bool mayWrite)
        : first(wholePages(end) + pageBytes), last(first + wholePages(bytes)), written(mayWrite)
    {
    }
    int64_t startOf(int64_t bytes, Guard guard) const { return guard == Guard::behind ? last - bytes : first; }
};

// Runs `body` and answers with the address where it was stopped, or null.
char* stoppedAt(const std::function<void()>& body);

}  // namespace harness
