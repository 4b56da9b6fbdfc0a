#include <math.h>
#include <stdio.h>
#include <vokm>

enum { row = 3 * sizeof(float), matrix = 3 * row, element = sizeof(float) };

/* Solves a[i] * x[i] = b[i] for symmetric positive definite a[i], in place: the factors replace the matrices, and the
   solutions the right-hand sides. */
static vokStatus solve(float a[][3][3], float b[][3], int32_t count)
{
    vokStatus status = vokmCholeskyDecomp_ma_32f(a[0][0], matrix, row, element, a[0][0], matrix, row, element, 3, count);
    if (status != vokStatusOk) return status;
    return vokmCholeskyBackSubst_mava_32f(a[0][0], matrix, row, element, b[0], row, element, b[0], row, element, 3, count);
}

/* A status does not tell which object failed, and objects behind a failing one may be left out. So the factors go elsewhere,
   and if the fast call fails, the matrices are taken one at a time. */
static int32_t factorise(float a[][3][3], float factor[][3][3], vokStatus status[], int32_t count)
{
    int32_t failed = 0;
    const vokStatus all = vokmCholeskyDecomp_ma_32f(a[0][0], matrix, row, element, factor[0][0], matrix, row, element, 3, count);
    for (int32_t i = 0; i < count; ++i) {
        status[i] = vokStatusOk;
        if (all != vokStatusOk) status[i] = vokmCholeskyDecomp_m_32f(a[i][0], row, element, factor[i][0], row, element, 3);
        if (status[i] != vokStatusOk) ++failed;
    }
    return failed;
}

int main(void)
{
    enum { count = 2000 };
    static float a[count][3][3], factor[count][3][3], b[count][3];
    static vokStatus status[count];
    for (int i = 0; i < count; ++i) {
        for (int k = 0; k < 3; ++k) {
            a[i][k][k] = 3 + (float)(i % 7);
            a[i][k][(k + 1) % 3] = a[i][(k + 1) % 3][k] = 1;
        }
        for (int k = 0; k < 3; ++k) b[i][k] = a[i][k][0] + 2 * a[i][k][1] + 3 * a[i][k][2]; /* so x is 1, 2, 3 */
    }
    a[700][1][1] = -1;
    a[1900][2][2] = -1;
    if (factorise(a, factor, status, count) != 2) return 1;
    if (status[700] != vokStatusNotPositiveDefinite || status[1900] != vokStatusNotPositiveDefinite || status[0]) return 2;
    a[700][1][1] = a[699][1][1];
    a[1900][2][2] = a[1900][1][1];
    for (int k = 0; k < 3; ++k) b[700][k] = a[700][k][0] + 2 * a[700][k][1] + 3 * a[700][k][2];
    if (solve(a, b, count) != vokStatusOk) return 3;
    for (int i = 0; i < count; ++i)
        for (int k = 0; k < 3; ++k)
            if (i != 700 && fabsf(b[i][k] - (float)(k + 1)) > 1e-5f) return 4;
    printf("%s\n", vokmStatusText(status[700]));
    return 0;
}
