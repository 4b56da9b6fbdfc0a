// General eigenvalues and the sizes of the buffers.
#include "eigen_general.h"

namespace {

using namespace harness;

template <class T> int32_t eigenValues(const Model<T>& m, int first, int n)
{
    for (int i = first; i < first + n; ++i) {
        Schur<T> schur(Grid<T>(m.view("src"), i), false);
        int32_t status = schur.run();
        schur.storeValues(m, i);
        if (status != 0) {
            return status;
        }
    }
    return 0;
}

template <class T> int32_t bufferSize(const Model<T>& m, int first, int)
{
    uint64_t n = uint64_t(m.size("widthHeight")), areas = m.function().family == "vokmEigenValuesGetBufSize" ? 1 : 3;
    m.indices("bufSize").set(first, 0, int32_t((areas * n + 5) * n * sizeof(T)));
    return 0;
}

const Oracle values({"vokmEigenValues_m", "vokmEigenValues_ma"}, &eigenValues<float>, &eigenValues<double>, &prepareGeneral);
const Oracle sizes(
    {"vokmEigenValuesGetBufSize_-", "vokmEigenValuesVectorsGetBufSize_-"}, &bufferSize<float>, &bufferSize<double>);

}  // namespace
