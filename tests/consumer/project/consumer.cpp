#include <vokm.h>

#include <cstdio>
#include <vector>

// A program's own answer wins over the core library's.
static int asked = 0;
extern "C" int32_t ownGetNumThreads()
{
    ++asked;
    return 1;
}

int main()
{
    const int32_t few = 10, many = 100000;
    std::vector<double> vectors(3 * many, 2.0), norms(many);
    if (vokmL2Norm_va_64f(vectors.data(), 24, 8, norms.data(), 3, few) != vokStatusOk || asked != 0) return 1;
    if (vokmL2Norm_va_64f(vectors.data(), 24, 8, norms.data(), 3, many) != vokStatusOk || asked == 0) return 2;
    if (norms[0] != norms[many - 1] || norms[0] < 3.464 || norms[0] > 3.465) return 3;
    std::puts("from C++: the program's own number of threads was asked for");
}
