#include "promises.h"

#include <algorithm>

namespace harness {

bool matrixMayBeInPlace(const Function& function, const std::string& kernel, const ArgRecord& source, int n)
{
    if (function.family != "vokmMul" || function.form.find('c') != std::string::npos) {
        return source.letter == 'm' && source.array == function.array;
    }
    if (function.form.find('v') != std::string::npos) {
        return false;
    }
    auto among = [n](const char* sizes) { return n < 10 && std::string(sizes).find(char('0' + n)) != std::string::npos; };
    if (kernel == "_P" && source.array == function.array) {
        static const std::set<std::string> threes = {"mam", "mat", "tam"};
        return among(!function.isDouble && threes.count(function.form) ? "3" : "3456");
    }
    static const std::set<std::string> byRows = {"mm", "mam", "mma", "mama"};
    bool dense = kernel == "" && !function.isDouble && byRows.count(function.form);
    return dense && among(source.name == "src1" ? "345" : "34");
}

namespace {

struct Element {
    int64_t at;
    const Operand* operand;
    int object, row, col;
};

class Overlaps {
public:
    explicit Overlaps(const Job& laidOut) : job(laidOut), function(laidOut.function) {}

    bool allDefined()
    {
        collect();
        const int size = function.elementSize();
        for (size_t i = 0; i < elements.size(); ++i) {
            for (size_t j = i + 1; j < elements.size() && elements[j].at < elements[i].at + size; ++j) {
                const Element &a = elements[i], &b = elements[j];
                if (written(a) ? !defined(a, b) : written(b) && !defined(b, a)) {
                    return false;
                }
            }
        }
        return true;
    }

private:
    void collect()
    {
        for (auto& [name, operand] : job.operands) {
            for (int i = 0; i < operand.shape.objects; ++i) {
                for (int r = 0; r < operand.logicalRows(); ++r) {
                    for (int c = 0; c < operand.logicalCols(); ++c) {
                        elements.push_back({operand.offset(i, r, c), &operand, i, r, c});
                    }
                }
            }
        }
        std::sort(elements.begin(), elements.end(), [](const Element& a, const Element& b) { return a.at < b.at; });
    }

    static bool written(const Element& element) { return element.operand->arg.written; }
    bool isOf(std::initializer_list<const char*> families) const
    {
        return std::find(families.begin(), families.end(), function.family) != families.end();
    }

    bool defined(const Element& result, const Element& other) const
    {
        const ArgRecord &to = result.operand->arg, &from = other.operand->arg;
        if (to.kind == ArgKind::scratch || to.kind == ArgKind::indices || from.kind == ArgKind::scratch ||
            from.kind == ArgKind::indices || (written(other) && result.operand != other.operand)) {
            return false;
        }
        const bool bothArrays = function.array && (from.array || written(other));
        if (bothArrays && result.object != other.object) {
            return inTurn(result, other) && !job.goesParallel();
        }
        if (isOf({"vokmCopy", "vokmLoadIdentity"})) {
            return true;  // element by element throughout
        }
        if (written(other)) {
            return false;
        }
        const bool withConstant = function.form.find('c') != std::string::npos;
        const bool same = result.at == other.at && result.row == other.row && result.col == other.col;
        if (function.array && !from.array && to.array && result.operand->shape.objects > 1) {
            const bool readInTurn = withConstant ? !isStraight() && job.kernel != "_L" : !isStraight() || job.kernel != "_LS2";
            return isVectors() && !job.goesParallel() && readInTurn && inTurn(result, other);
        }
        if (isVectors()) {
            if (from.letter == 'c') {
                return false;  // it may be read for each element or once
            }
            const bool inBlocks = job.kernel == "_L" && withConstant;
            const bool elementwise = !isStraight() && !inBlocks && inTurn(result, other);
            return same || function.family == "vokmCrossProduct" || elementwise;
        }
        return same ? exact(from, result.operand->logicalCols()) : to.kind == ArgKind::scalars && !isOf({"vokmTrace"});
    }

    // Objects, and elements of long vectors, are finished one after the other. Parts of elements are left out: the bytes of a
    // not-a-number would be read as parts of others, and they are nobody's promise. Sums, scalings and products of matrices and the
    // general eigenproblems promise nothing, results held to a bound are compared with what the library left in memory, and
    // inverses of 4x4 may go in pairs.
    bool inTurn(const Element& result, const Element& other) const
    {
        const bool general = function.family.rfind("vokmEigenValues", 0) == 0 && function.family.find("Sym") == std::string::npos;
        const bool pairs = function.name == "vokmInvert_ma_32f" && result.operand->shape.cols == 4;
        const bool bounded = function.family == "vokmInvert" && (written(other) || pairs);
        const bool matrices = isOf({"vokmAdd", "vokmSub", "vokmMul", "vokmGaxpy"}) && !isVectors();
        return !general && !bounded && !matrices && (other.at - result.at) % function.elementSize() == 0;
    }

    bool isVectors() const
    {
        return isOf({"vokmAdd", "vokmSub", "vokmMul", "vokmSaxpy", "vokmLComb", "vokmCrossProduct"}) &&
               function.form.find_first_of("mt") == std::string::npos;
    }

    bool isStraight() const
    {
        int length = job.operands.at("dst").shape.cols;
        return length >= 3 && length <= 6;
    }

    bool exact(const ArgRecord& source, int n) const
    {
        const bool elementwise = isOf({"vokmAdd", "vokmSub"}) || function.form.find('c') != std::string::npos;
        for (auto& [name, value] : job.plan.sizes) {
            if (name != "count" && value != n && !elementwise) {
                return false;
            }
        }
        for (const InPlace& promise : solversInPlace) {
            if (function.group() == promise.group && source.name == promise.source) {
                return n >= promise.from && n <= promise.to;
            }
        }
        return isOf({"vokmAdd", "vokmSub", "vokmMul"}) && matrixMayBeInPlace(function, job.kernel, source, n);
    }

    const Job& job;
    const Function& function;
    std::vector<Element> elements;
};

}  // namespace

int64_t touchedBehind(const Function& function, const std::map<std::string, int32_t>& sizes, const Operand& operand)
{
    auto size = [&](const char* name) { return sizes.at(name); };
    const std::string& name = function.name;
    // Small sizes that come to 3 or 4 by OR go through the code of that size, by way of further entries of the tables.
    if (name == "vokmMul_mm_32f_P" || name == "vokmMul_tt_64f_P") {
        return int64_t(function.spareEntries) * operand.elementSize;
    }
    // 4x4 by 3 stored rows: the row behind src2 is multiplied too, into a fourth column.
    if (name == "vokmMul_mat_32f" && size("src1Width") == 4 && size("src1Height") == 4 && size("src2Height") == 3) {
        return operand.arg.name == "src2" ? operand.stride1 : operand.arg.name == "dst" ? operand.elementSize : 0;
    }
    // Rows on 16 bytes go two objects at a time, up to an even count.
    if (name == "vokmMul_tava_32f" && size("src1Width") == 3 && size("src1Height") == 3 && size("count") % 2) {
        return operand.stride0;
    }
    return 0;
}

bool overlapIsDefined(const Job& job) { return Overlaps(job).allDefined(); }

}  // namespace harness
