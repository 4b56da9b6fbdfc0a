#include <cstdio>
#include <vector>
#include <vokm>

struct Matrix4 {
    float at[4][4];  // row by row
};

// camera * place, for every place.
std::vector<Matrix4> composed(const Matrix4& camera, const std::vector<Matrix4>& places)
{
    std::vector<Matrix4> result(places.size());
    if (places.empty()) return result;  // a count of 0 is refused
    constexpr int element = sizeof(float), row = 4 * element, whole = sizeof(Matrix4);
    const vokStatus status = vokmMul_mma_32f(camera.at[0], row, element, 4, 4,  //
        places[0].at[0], whole, row, element, 4, 4,                             //
        result[0].at[0], whole, row, element, static_cast<int32_t>(places.size()));
    if (status != vokStatusOk) std::fprintf(stderr, "%s\n", vokmStatusText(status));
    return result;
}

// The same with matrices stored column by column: the operation sees each of them transposed, and a product of transposed
// matrices is the transpose of the product in the other order.
std::vector<Matrix4> composedByColumns(const Matrix4& camera, const std::vector<Matrix4>& places)
{
    std::vector<Matrix4> result(places.size());
    if (places.empty()) return result;
    constexpr int element = sizeof(float), column = 4 * element, whole = sizeof(Matrix4);
    const vokStatus status = vokmMul_mam_32f(places[0].at[0], whole, column, element, 4, 4,  //
        camera.at[0], column, element, 4, 4,                                                 //
        result[0].at[0], whole, column, element, static_cast<int32_t>(places.size()));
    if (status != vokStatusOk) std::fprintf(stderr, "%s\n", vokmStatusText(status));
    return result;
}

int main()
{
    const Matrix4 turn = {{{0, -1, 0, 1}, {1, 0, 0, 2}, {0, 0, 1, 3}, {0, 0, 0, 1}}};
    Matrix4 turnByColumns;
    std::vector<Matrix4> places(1000), byColumns(1000);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) turnByColumns.at[c][r] = turn.at[r][c];
    for (int i = 0; i < 1000; ++i) {
        places[i] = {{{1, 0, 0, float(i)}, {0, 1, 0, 7}, {0, 0, 1, 8}, {0, 0, 0, 1}}};
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4; ++c) byColumns[i].at[c][r] = places[i].at[r][c];
    }
    const auto seen = composed(turn, places), seenByColumns = composedByColumns(turnByColumns, byColumns);
    for (int i = 0; i < 1000; ++i) {
        const float expected[4][4] = {{0, -1, 0, 1 - 7.0f}, {1, 0, 0, 2 + float(i)}, {0, 0, 1, 3 + 8.0f}, {0, 0, 0, 1}};
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4; ++c)
                if (seen[i].at[r][c] != expected[r][c] || seenByColumns[i].at[c][r] != expected[r][c]) return 1;
    }
    if (!composed(turn, {}).empty()) return 2;
    std::puts("a thousand places, seen by the camera");
}
