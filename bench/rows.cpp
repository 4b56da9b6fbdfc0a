#include "row.h"

#include <cstring>

namespace bench {

namespace {

template <Letters letters>
Row row(const char* name, unsigned where, std::vector<int> sizes = {3, 4, 5, 6}, Same same = Same::results,
        const char* prepare = nullptr, const char* types = "fd") {
    static constexpr auto kept = letters;
    return {name, kept.text, where, std::move(sizes), types, same, prepare,
            {{call<letters, float, false>, call<letters, float, true>}, {call<letters, double, false>, call<letters, double, true>}}};
}

} // namespace

const std::vector<Row>& rows() {
    constexpr unsigned all = cache | streams | oneCall;
    static const std::vector<int> small{3, 4, 5, 6}, three{3};
    static const std::vector<Row> table{
        row<"VV>Vn#">("Add_vava", all),
        row<"Vv>Vn#">("Add_vav", all),
        row<"VV>Vn#s">("Saxpy_vava", all),
        row<"VV>V#">("CrossProduct_vava", all, three),
        row<"VV>Sn#">("DotProduct_vava", all),
        row<"V>Sn#">("L2Norm_va", all),
        row<"hV>V#">("AffineTransform3DH_mva", all, three, Same::results, nullptr, "f"),

        row<"MM>Mnn#">("Add_mama", all),
        row<"MnnMnn>M#">("Mul_mama", all),
        row<"Mnnmnn>M#">("Mul_mam", cache),
        row<"mnnMnn>M#">("Mul_mma", cache),
        row<"MnnMnn>M#">("Mul_mata", cache),
        row<"MnnVn>V#">("Mul_mava", cache),
        row<"mnnVn>V#">("Mul_mva", cache),
        row<"Mnnvn>V#">("Mul_mav", cache),
        row<"mnnVnVn>V#">("Gaxpy_mva", cache),
        row<"Mnn>M#">("Transpose_ma", all),
        row<"Mn>S#">("Trace_ma", cache),
        row<"Mnn>S#">("FrobNorm_ma", cache),
        row<"mnn>m">("Transpose_m", whole, {4096}),
        row<"mnnmnn>m">("Mul_mm", whole, {512}),

        row<"R>IMn#">("LUDecomp_ma", cache, small, Same::logicalRows),
        row<"MIV>Vn#">("LUBackSubst_mava", cache, small, Same::results, "LUDecomp_ma"),
        row<"D>Mn#">("CholeskyDecomp_ma", cache, small, Same::lowerFactor),
        row<"MV>Vn#">("CholeskyBackSubst_mava", cache, small, Same::results, "CholeskyDecomp_ma"),
        row<"Rb>Mnn#">("QRDecomp_ma", cache, small, Same::upperMagnitudes),
        row<"MbV>Vnn#">("QRBackSubst_mava", cache, small, Same::results, "QRDecomp_ma"),
        row<"Rnb>S#">("Det_ma", cache),
        row<"Rb>Mn#">("Invert_ma", cache),

        row<"Yb>Wn#">("EigenValuesSym_ma", cache, small, Same::sorted),
        row<"Yb>MWn#">("EigenValuesVectorsSym_ma", cache, small, Same::vectors),
        row<"R>WWn#b">("EigenValues_ma", cache, small, Same::pairs),
        row<"R>MWWn#b">("EigenValuesVectorsRight_ma", cache, small, Same::vectorPairs),
    };
    return table;
}

const Row* findRow(const char* name) {
    for (const Row& row : rows())
        if (!std::strcmp(row.name, name)) return &row;
    return nullptr;
}

} // namespace bench
