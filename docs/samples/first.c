#include <stdio.h>
#include <vokm>

enum { count = 1000 };
int main(void)
{
    static float points[count][3], moved[count][3], distance[count];
    const float turn[4][4] = {{0, -1, 0, 5}, {1, 0, 0, 0}, {0, 0, 1, 2}, {0, 0, 0, 1}};
    for (int i = 0; i < count; ++i) points[i][0] = (float)i;

    /* Each operand: pointer, then byte strides from row to row or object to object, and from element to element. */
    vokStatus status = vokmAffineTransform3DH_mva_32f(turn[0], 16, 4, points[0], 12, 4, moved[0], 12, 4, count);
    if (status == vokStatusOk) status = vokmL2Norm_va_32f(moved[0], 12, 4, distance, 3, count);
    if (status != vokStatusOk) {
        fprintf(stderr, "%s\n", vokmStatusText(status));
        return 1;
    }
    printf("point 999 is at (%g, %g, %g), %g away\n", moved[999][0], moved[999][1], moved[999][2], distance[999]);
    return 0;
}
