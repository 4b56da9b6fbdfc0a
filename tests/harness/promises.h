// Where a destination may lie on a source, and the memory that some kernels touch beside their operands.
#pragma once
#include "job.h"

namespace harness {

// A square of size n, object on object. Products: pointer kernels read an object whole before they store, and some dense kernels
// of 32f finish with a row of the first operand, or hold the second, before they store.
bool matrixMayBeInPlace(const Function& function, const std::string& kernel, const ArgRecord& source, int n);

struct InPlace {
    const char *group, *source;
    int from, to;  // sizes
};
inline const InPlace solversInPlace[] = {{"vokmLUDecomp_m", "src", 1, 12}, {"vokmLUDecomp_ma", "src", 1, 12},
    {"vokmLUBackSubst_mv", "src2", 3, 6}, {"vokmLUBackSubst_mva", "src2", 3, 6}, {"vokmLUBackSubst_mava", "src2", 3, 6},
    {"vokmInvert_m", "src", 3, 5}, {"vokmInvert_ma", "src", 3, 5}, {"vokmCholeskyDecomp_m", "src", 1, 12},
    {"vokmCholeskyDecomp_ma", "src", 1, 12}, {"vokmCholeskyBackSubst_mv", "src2", 1, 12},
    {"vokmCholeskyBackSubst_mava", "src2", 1, 12}, {"vokmQRBackSubst_mv", "src2", 1, 12}};

// Whether a job, laid out with results on sources or on each other, has one outcome. Most families finish their objects in turn,
// so that a later one reads what an earlier one wrote; reading and writing within one object needs a promise.
bool overlapIsDefined(const Job& job);

// What a kernel touches behind an operand, in bytes: these few, and on purpose.
int64_t touchedBehind(const Function& function, const std::map<std::string, int32_t>& sizes, const Operand& operand);

}  // namespace harness
