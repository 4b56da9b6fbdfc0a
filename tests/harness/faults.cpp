#include "faults.h"

#include "threads.h"

namespace harness {
namespace {

bool holds(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

}  // namespace

std::vector<Fault> faultsOf(const Function& function, const Job& job)
{
    std::vector<Fault> faults;
    int32_t size = function.elementSize();
    for (const Param& param : function.params()) {
        auto add = [&](std::initializer_list<int32_t> values) {
            for (int32_t value : values) {
                faults.push_back({param.name, false, value});
            }
        };
        if (param.kind == ParamClass::pointer) {
            faults.push_back({param.name, true, 0});
        } else if (holds(param.name, "Stride")) {
            add({0, -size, size + size / 2, size + 1});
        } else if (holds(param.name, "ObjShift")) {
            add({-size, size / 2, size + 1});
        } else if (param.kind == ParamClass::integer) {
            add({0, -1});
            if (param.name != "count") {
                add({job.arguments.integers.at(param.name) + 1});  // a mismatch, where sizes have to agree
            }
        }
    }
    return faults;
}

void apply(const Fault& fault, Arguments& arguments)
{
    if (fault.null) {
        arguments.pointers[fault.param] = nullptr;
    } else {
        arguments.integers[fault.param] = fault.value;
    }
}

std::string checkRefusal(Job& job, int32_t expected)
{
    int32_t status = job.runLibrary();
    if (status != expected) {
        return "status " + std::to_string(status) + " instead of " + std::to_string(expected);
    }
    if (threadQuestions() != 0) {
        return "asked for threads";
    }
    return std::memcmp(job.arena.live(), job.arena.model(), job.arena.size()) == 0 ? "" : "wrote to memory";
}

}  // namespace harness
