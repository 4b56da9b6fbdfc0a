// The version record: the library's only global.
#include <vokm>

static const LibVersion s_libVer = {6, 1, 137, 778, {'m', '7', 0, 0}, "libvokmm7.so.6.1", "6.1 build 137.56", "Mar 17 2010"};

extern "C" const LibVersion* vokmGetLibVersion(void) { return &s_libVer; }
