// The bytes of an input, one choice after the other. Behind the end all choices are 0, the plainest, so inputs may be short.
#pragma once
#include <cstddef>
#include <cstdint>

namespace fuzz {

class Choices {
public:
    Choices(const uint8_t* data, size_t size) : next(data), end(data + size) {}
    int byte() { return next == end ? 0 : *next++; }
    int below(int n) { return byte() % n; }
    bool oneIn(int n) { return below(n) == n - 1; }
    uint32_t word()
    {
        uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            value = value << 8 | uint32_t(byte());
        }
        return value;
    }
    template <class T, size_t n> T of(const T (&list)[n]) { return list[below(int(n))]; }

private:
    const uint8_t *next, *end;
};

}  // namespace fuzz
