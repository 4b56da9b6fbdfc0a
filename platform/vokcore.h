/* The core library's two questions. Internal: it is not installed, and users of the library never call these.
 * Both are ordinary symbols of a shared library of its own, so a program that defines them itself wins over ours. */
#ifndef VOKCORE_H
#define VOKCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* How many threads a parallel region opened here, now, would get. */
int32_t ownGetNumThreads(void);

/* Stores the size in bytes of the largest data cache, or 0 if the system does not tell. Returns 0. */
int32_t vokGetMaxCacheSizeB(int32_t* bytes);

#ifdef __cplusplus
}
#endif

#endif
