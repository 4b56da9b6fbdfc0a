// The library's functions as the tests know them: one record a function, expanded from the table in forms_table.cpp.
// Nothing here is shared with the library, so that a slip on either side shows up as a difference.
#pragma once
#include <map>
#include <string>
#include <vector>

#include "signature.h"

namespace harness {

enum class ArgKind {
    object,   // vector or matrix (or array of them), or an array of constants
    scalars,  // one number an object, dense
    packed,   // several numbers an object, dense
    indices,  // several 32-bit integers an object, dense
    scratch,  // the caller's working memory
    real,     // a number by value
    integer   // a size or the count
};

struct ArgRecord {
    std::string name;
    std::string prefix;  // of its strides and shift; differs from the name in a few eigenproblem forms
    ArgKind kind = ArgKind::integer;
    char letter = 0;  // v m t c
    char layout = 'S';
    bool array = false;
    bool written = false;
    bool storedShape = false;  // rows and cols are those in memory, also for a transposed operand
    std::string rows = "1", cols = "1";
};

struct Function {
    std::string name, family, form, suffix;
    bool isDouble = false;
    bool array = false;
    std::vector<ArgRecord> args;
    std::string order;                  // steps of the checks, see below
    std::vector<std::string> untested;  // strides that the stride step leaves out
    int spareEntries = 0;               // of each table, behind its end, for kernels that go there
    std::string match = "1";            // sizes that have to agree
    std::string work;                   // empty: never parallel
    bool parallelAtLimit = false;
    int limitDense = 0, limitStrided = 0;
    bool wrapper = false;
    bool mergesStatus = false;
    std::string kernels;  // "usual", "one" (any stride2), "none"

    int elementSize() const { return isDouble ? 8 : 4; }
    const char* type() const { return isDouble ? "64f" : "32f"; }
    char layout() const { return suffix.empty() ? 'S' : suffix.back(); }
    std::string group() const { return family + "_" + form; }
    std::vector<Param> params() const;  // the argument list that follows from the record
    const ArgRecord& arg(const std::string& argName) const;
};

const std::vector<Function>& allFunctions();
std::vector<std::string> declaredGroups();                           // "vokmAdd_vav", those in the header, in table order
std::vector<const Function*> functionsOf(const std::string& group);  // those in the header
const Function& functionNamed(const std::string& name);

// The status that the checks give, 0 if all pass. A null pointer in `arguments` is a null argument.
int32_t expectedRefusal(const Function& function, const Arguments& arguments);
int32_t workValue(const Function& function, const std::map<std::string, int32_t>& integers);
bool isDense(const Function& function, const std::map<std::string, int32_t>& integers);  // every stride2 is one element
bool wantsThreads(const Function& function, const std::map<std::string, int32_t>& integers);

}  // namespace harness
