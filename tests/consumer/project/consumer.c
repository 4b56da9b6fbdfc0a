#include <vokm>

#include <stdio.h>
#include <string.h>

int main(void)
{
    const float a[2][3] = {{1, 0, 0}, {0, 2, 0}}, b[2][3] = {{0, 1, 0}, {0, 0, 3}};
    float c[2][3];
    vokStatus status = vokmCrossProduct_vava_32f(a[0], 12, 4, b[0], 12, 4, c[0], 12, 4, 2);
    if (status != vokStatusOk || c[0][2] != 1 || c[1][0] != 6 || c[1][1] != 0) return 1;
    if (strcmp(vokmGetLibVersion()->name, "libvokmm7.so.6.1") != 0) return 2;
    printf("from C: %s\n", vokmStatusText(status));
    return 0;
}
