#include "threads.h"

#include <atomic>
#include <cstdint>

namespace {
std::atomic<int> firstAnswer{1}, laterAnswer{1}, questions{0}, cacheBytes{0}, cacheAsked{0};
}

extern "C" __attribute__((visibility("default"))) int32_t ownGetNumThreads(void) {
    return questions++ == 0 ? firstAnswer : laterAnswer;
}

extern "C" __attribute__((visibility("default"))) int32_t vokGetMaxCacheSizeB(int32_t* bytes) {
    ++cacheAsked;
    *bytes = cacheBytes;
    return 0;
}

namespace harness {

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
