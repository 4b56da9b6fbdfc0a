// What the public header declares, and a call of any of its functions with arguments set by name.
#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace harness {

enum class ParamClass { pointer, integer, single, real };  // single: float, real: double

struct Param {
    std::string name;
    ParamClass kind;
};

using Signature = std::vector<Param>;

// Every status-returning function of include/vokm and of the family headers that it includes.
const std::map<std::string, Signature>& declaredFunctions();
bool isDeclared(const std::string& name);

struct Arguments {
    std::map<std::string, void*> pointers;
    std::map<std::string, int32_t> integers;
    std::map<std::string, double> reals;
};

// Throws if an argument of the signature is not set.
int32_t call(const std::string& function, const Arguments& arguments);

}  // namespace harness
