#include "threads.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>

namespace {
std::atomic<int> firstAnswer{1}, laterAnswer{1}, questions{0}, cacheBytes{0}, cacheAsked{0}, regions{0};
std::atomic<void*> lastBody{nullptr};

template <class F> F next(const char* name) { return reinterpret_cast<F>(dlsym(RTLD_NEXT, name)); }
}  // namespace

extern "C" __attribute__((visibility("default"))) int32_t ownGetNumThreads(void) {
    return questions++ == 0 ? firstAnswer : laterAnswer;
}

extern "C" __attribute__((visibility("default"))) int32_t vokGetMaxCacheSizeB(int32_t* bytes) {
    ++cacheAsked;
    *bytes = cacheBytes;
    return 0;
}

// What the code of g++ and of clang++ call to open a parallel region: the program's own come first and hand on.
extern "C" __attribute__((visibility("default"))) void GOMP_parallel(
    void (*body)(void*), void* data, unsigned threads, unsigned flags)
{
    static const auto open = next<void (*)(void (*)(void*), void*, unsigned, unsigned)>("GOMP_parallel");
    ++regions;
    lastBody = reinterpret_cast<void*>(body);
    open(body, data, threads, flags);
}

extern "C" __attribute__((visibility("default"))) void __kmpc_fork_call(void* where, int32_t count, void* body, ...)
{
    static const auto open = next<void (*)(void*, int32_t, void*, ...)>("__kmpc_fork_call");
    ++regions;
    lastBody = body;
    void* a[8] = {};
    va_list list;
    va_start(list, body);
    for (int i = 0; i < count && i < 8; ++i) a[i] = va_arg(list, void*);
    va_end(list);
    if (count > 8) __builtin_trap();
    open(where, count, body, a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7]);
}

namespace harness {

int regionsOpened() { return regions; }
void* lastRegion() { return lastBody; }

void setThreads(int first, int second) {
    firstAnswer = first;
    laterAnswer = second < 0 ? first : second;
    questions = 0;
}

int threadQuestions() { return questions; }

void setCacheBytes(int bytes) {
    cacheBytes = bytes;
    cacheAsked = 0;
}

int cacheQuestions() { return cacheAsked; }

}  // namespace harness
