// The meeting place of the harness and the peers: plain function pointers and nothing else, because each peer lives in a
// shared object of its own, built with its own flags.
#pragma once

namespace bench {

// The operands of one call, dense in memory: sources and results in the order of the library's argument list. `extra` has
// room for a second matrix an object, for a peer that has to carry more from a factorisation to its solution.
struct Operands {
    const void* in[4];
    void* out[3];
    void* extra;
    long count;
};

struct Formulation {
    const char* row; // the library's function without prefix and type, as "Add_vava"
    char type;       // 'f' or 'd'
    int n;
    const char* how;
    void (*run)(const Operands&);
    bool columns = false; // wants its matrices stored by columns, and leaves its results so
    bool aside = false;   // shown, but no part of the comparison, because it computes less or less exactly
};

using Add = void (*)(const Formulation&);

void loop(const void* a, long ra, const void* b, long rb, void* d, long w, long blocks);

// d[i] = the sum of element i of `count` planes, each `pitch` elements behind the last, or the root of the sum: what a reduction
// over planes cannot be faster than.
void bare(const float* planes, long count, long pitch, bool root, float* d, long n);
void bare(const double* planes, long count, long pitch, bool root, double* d, long n);

} // namespace bench

extern "C" {
void benchEigenSse3(bench::Add);
void benchEigenNative(bench::Add);
void benchPlain(bench::Add);
void benchLapack(bench::Add);
void benchXsmm(bench::Add);
void benchGlm(bench::Add);
}
