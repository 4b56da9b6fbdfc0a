// One input of the fuzzer: bytes that choose a function and everything about one call of it.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

namespace fuzz {

// Makes the call and compares it with the slow evaluation. Empty if all agrees, else what differs.
std::string check(const uint8_t* data, size_t size);
// The call that an input stands for.
std::string describe(const uint8_t* data, size_t size);

}  // namespace fuzz
