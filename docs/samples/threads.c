#include <stdio.h>
#include <vokm>

/* At most two threads for this library, whatever OpenMP would use elsewhere in the program. */
static int asked;
int32_t ownGetNumThreads(void)
{
    ++asked;
    return 2;
}

int main(void)
{
    enum { count = 7000 };
    static float vector[count][3], norm[count];
    if (vokmL2Norm_va_32f(vector[0], 12, 4, norm, 3, 6666) != vokStatusOk || asked != 0) return 1; /* 19998: not above 20000 */
    if (vokmL2Norm_va_32f(vector[0], 12, 4, norm, 3, 6667) != vokStatusOk || asked != 2) return 2; /* 20001 */
    printf("asked twice, above the limit only\n");
    return 0;
}
