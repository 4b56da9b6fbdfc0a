// The test program answers the library's two questions to the core library itself, and so decides the size of teams.
#pragma once

namespace harness {

void setThreads(int first, int second = -1);  // the answers to the first and the later questions; resets the counter
int threadQuestions();                        // how often the library has asked since
void setCacheBytes(int bytes);  // resets the counter
int cacheQuestions();

// The parallel regions that the library has opened so far, through either OpenMP runtime, and the body of the last one.
int regionsOpened();
void* lastRegion();

}  // namespace harness
