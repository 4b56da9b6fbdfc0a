#include <stddef.h>
#include <stdio.h>
#include <vokm>

/* S: the matrices stand in structs, among other things. stride0 is the size of the struct. */
struct body {
    int id;
    float inertia[3][3];
};
static vokStatus of_bodies(const struct body* body, int32_t count, float* det)
{
    float buffer[3 * 3 + 3];
    return vokmDet_ma_32f(body->inertia[0], sizeof(struct body), 3 * sizeof(float), sizeof(float), 3, buffer, det, count);
}

/* P: symmetric matrices as six planes, one for each different element. The table names some of them twice. */
static vokStatus of_planes(float* const plane[6], int32_t count, float* det)
{
    const float *xx = plane[0], *xy = plane[1], *xz = plane[2], *yy = plane[3], *yz = plane[4], *zz = plane[5];
    const float* table[9] = {xx, xy, xz, xy, yy, yz, xz, yz, zz};
    float buffer[3 * 3 + 3];
    return vokmDet_ma_32f_P(table, 0, sizeof(float), 3, buffer, det, count);
}

/* L: some bodies, wherever they are. */
static vokStatus of_chosen(const float* const* inertia, int32_t count, float* det)
{
    float buffer[3 * 3 + 3];
    return vokmDet_ma_32f_L(inertia, 0, 3 * sizeof(float), sizeof(float), 3, buffer, det, count);
}

int main(void)
{
    static struct body body[100];
    static float planes[6][100], from_bodies[100], from_planes[100], from_list[50];
    const float* odd[50];
    float* plane[6];
    for (int k = 0; k < 6; ++k) plane[k] = planes[k];
    for (int i = 0; i < 100; ++i) {
        const float six[6] = {2 + (float)i, 1, 0, 3, 1, 4};
        const int where[9] = {0, 1, 2, 1, 3, 4, 2, 4, 5};
        body[i].id = i;
        for (int k = 0; k < 6; ++k) planes[k][i] = six[k];
        for (int k = 0; k < 9; ++k) body[i].inertia[k / 3][k % 3] = six[where[k]];
        if (i % 2 == 1) odd[i / 2] = body[i].inertia[0];
    }
    if (of_bodies(body, 100, from_bodies) || of_planes(plane, 100, from_planes) || of_chosen(odd, 50, from_list)) return 1;
    for (int i = 0; i < 100; ++i) {
        const float exact = (2 + (float)i) * 11 - 4; /* small integers: no rounding */
        if (from_bodies[i] != exact || from_planes[i] != exact || (i % 2 == 1 && from_list[i / 2] != exact)) return 2;
    }
    printf("three layouts, the same determinants\n");
    return 0;
}
