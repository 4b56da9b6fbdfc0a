// Arguments that a call has to refuse, and what a refused call must leave alone.
#pragma once
#include <string>
#include <vector>

#include "job.h"

namespace harness {

struct Fault {
    std::string param;
    bool null = false;
    int32_t value = 0;
};

// The faults that each argument can have by itself; `job` tells the good values.
std::vector<Fault> faultsOf(const Function& function, const Job& job);
void apply(const Fault& fault, Arguments& arguments);
// Runs a job whose arguments are at fault with `expected`: that status, no question for threads, no byte written.
std::string checkRefusal(Job& job, int32_t expected);

}  // namespace harness
