// The harness. Every row is one Google Benchmark: each iteration is a round in which all contenders of the row run a short
// burst, one after the other, so that whatever else the machine does meets all of them alike. The row reports, for each
// contender, the median over the rounds in nanoseconds an object.
#include "peer.h"
#include "row.h"
#include "same.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <deque>
#include <functional>
#include <map>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <sys/mman.h>

namespace bench {
namespace {

int rounds = 41;
double burst = 20e3; // nanoseconds
constexpr std::size_t cacheBytes = 22 << 10, streamBytes = 96 << 20;
constexpr int checked = 1000; // objects compared between contenders

struct Peer {
    std::string group;
    Formulation text;
};
std::vector<Peer> peers;
std::string group;

void gather(const char* name, void (*entry)(Add)) {
    group = name;
    entry([](const Formulation& f) { peers.push_back({group, f}); });
}

// A function built for wide registers may leave their upper halves in use, and then all narrow instructions that follow
// run at a fraction of their speed, whoever they belong to.
void clearUpperHalves() {
    static const bool wide = __builtin_cpu_supports("avx");
    if (wide) asm volatile("vzeroupper" ::: "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9", "xmm10",
                           "xmm11", "xmm12", "xmm13", "xmm14", "xmm15");
}

// Short bursts read the wall clock, which costs nothing, and the median drops those that the scheduler interrupts. Long ones
// are always interrupted on a busy machine, so they read the thread's own time.
double now(Where where) {
    timespec t;
    clock_gettime(where == cache ? CLOCK_MONOTONIC : CLOCK_THREAD_CPUTIME_ID, &t);
    return t.tv_sec * 1e9 + t.tv_nsec;
}

// One arena for all rows, emptied between them: a row's operands lie side by side, and the pages are touched once.
class Arena {
public:
    Arena() : base(static_cast<char*>(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0))) {}
    template <class T> T* take(std::size_t number) {
        const std::size_t bytes = number * sizeof(T);
        used = (used + 63) / 64 * 64;
        if (bytes >= 1 << 16) used += 1088; // large operands that start at one place of a page would compete
        if (used + bytes > size) std::abort();
        char* block = base + used;
        used += bytes;
        return reinterpret_cast<T*>(block);
    }
    void empty() { used = 0; }

private:
    static constexpr std::size_t size = std::size_t(2) << 30;
    char* base;
    std::size_t used = 0;
} arena;

enum class Arrangement { dense, list, planeTable, planeStrides };

template <class T> class Job {
public:
    struct Contender {
        std::string name;
        std::function<void(long)> run;
        long objects;
        long repeats = 1;
        std::vector<double> samples{};
    };
    std::vector<Contender> contenders;
    std::string fault;
    int count = 1;
    std::size_t bytes = 0;

    Job(const Row& row, int n, Where where) : row(row), n(n), where(where) {
        arena.empty();
        for (const char* l = row.letters; *l; ++l)
            if (isOperand(*l) && !isSingle(*l)) bytes += cells(*l) * unit(*l);
        if (where == cache) count = std::max<int>(8, cacheBytes / bytes / 8 * 8);
        if (where == streams) count = streamBytes / bytes / 16 * 16;
        first = row.prepare ? findRow(row.prepare) : nullptr;
        scratch = arena.take<double>((3 * n + 5) * n);
        if (first) sources.push_back(fill(first->letters[0]));
        for (const char* l = row.letters; *l && *l != '>'; ++l)
            if (isOperand(*l) && !(first && isIn("MI", *l))) sources.push_back(fill(*l));
        addOurs();
        addPeers();
        if (where == streams) addLoop();
        if (where == cache && isReduction()) addBare();
    }

private:
    const Row &row, *first = nullptr;
    const int n;
    const Where where;
    double* scratch;
    std::vector<T*> sources; // dense; with a preparation its source comes first, and what it makes is none
    // Apart from the planes: between them they would move one operand's planes against another's, so that stores and loads
    // meet at the same place of a page, in one of the two arrangements of planes alone.
    std::deque<std::vector<void*>> tables;
    std::vector<void*> peerResults;
    Numbers reference;
    std::string referenceName;

    int cells(char l) const { return isMatrix(l) || l == 'm' ? n * n : l == 'h' ? 16 : l == 'S' ? 1 : n; }
    static int unit(char l) { return l == 'I' ? 4 : sizeof(T); }
    int objects(char l) const { return isSingle(l) ? 1 : count; }
    int planeBytes() const { return ((count + 15) / 16 * 16 + 16) * int(sizeof(T)); }

    // ---- sources ----

    T* fill(char l) {
        std::mt19937 random(l * 100 + n);
        std::uniform_real_distribution<double> uniform(-1, 1);
        const int size = cells(l), objectCount = objects(l);
        T* data = arena.take<T>(std::size_t(size) * objectCount);
        const int fresh = std::min(objectCount, 4096);
        Numbers b(size);
        for (int i = 0; i < fresh; ++i) {
            T* a = data + std::size_t(i) * size;
            do {
                for (double& x : b) x = uniform(random);
                for (int e = 0; e < size; ++e) {
                    const int r = e / n, c = e % n;
                    double x = b[e];
                    if (l == 'Y') x = (b[e] + b[c * n + r]) / 2;
                    if (l == 'D') {
                        x = r == c ? 0.5 * n : 0;
                        for (int k = 0; k < n; ++k) x += b[r * n + k] * b[c * n + k];
                    }
                    if (l == 'h') x = e < 12 ? b[e] : e < 15 ? b[e] / 10 : 2; // keeps w away from 0
                    a[e] = T(x);
                }
            } while ((l == 'R' || l == 'Y') && smallestPivot(a) < 0.15);
        }
        for (std::size_t e = std::size_t(fresh) * size; e < std::size_t(objectCount) * size; ++e) data[e] = data[e % (std::size_t(fresh) * size)];
        return data;
    }

    double smallestPivot(const T* source) const {
        Numbers a(source, source + n * n);
        double smallest = HUGE_VAL;
        for (int k = 0; k < n; ++k) {
            int p = k;
            for (int r = k + 1; r < n; ++r)
                if (std::fabs(a[r * n + k]) > std::fabs(a[p * n + k])) p = r;
            for (int c = 0; c < n; ++c) std::swap(a[k * n + c], a[p * n + c]);
            smallest = std::min(smallest, std::fabs(a[k * n + k]));
            for (int r = k + 1; r < n; ++r)
                for (int c = n - 1; c >= k; --c) a[r * n + c] -= a[r * n + k] / a[k * n + k] * a[k * n + c];
        }
        return smallest;
    }

    // ---- arrangements ----

    struct Laid {
        Site site;
        std::vector<std::pair<char, void*>> results; // letter and first byte, in the arrangement
        std::vector<Placed> placedResults;
    };

    static bool planes(Arrangement a) { return a == Arrangement::planeTable || a == Arrangement::planeStrides; }

    // Lays an operand out in the arrangement; `dense` is null for a result. `data` gets its first byte.
    Placed place(char l, Arrangement arrangement, const T* dense, void*& data) {
        const int size = cells(l), e = sizeof(T), columns = l == 'h' ? 4 : n;
        const bool matrix = isMatrix(l) || l == 'h', single = isSingle(l);
        if (isPacked(l)) {
            data = dense ? const_cast<T*>(dense) : static_cast<void*>(arena.take<T>(std::size_t(size) * count));
            return {data, {}};
        }
        const bool inPlanes = planes(arrangement) && !single;
        const int step = inPlanes ? planeBytes() : e;
        data = const_cast<T*>(dense);
        if (inPlanes || !dense) {
            char* to = reinterpret_cast<char*>(arena.take<T>(inPlanes ? std::size_t(size) * step / e : std::size_t(size) * objects(l)));
            for (int i = 0; dense && i < count; ++i)
                for (int j = 0; j < size; ++j)
                    *reinterpret_cast<T*>(to + std::size_t(j) * step + std::size_t(i) * e) = dense[std::size_t(i) * size + j];
            data = to;
        }
        char* base = static_cast<char*>(data);
        const int between = inPlanes ? e : size * e;
        if (arrangement == Arrangement::planeTable) {
            void** table = tables.emplace_back(size).data();
            for (int j = 0; j < size; ++j) table[j] = base + std::size_t(j) * step;
            return {table, {0, between}};
        }
        const int row = columns * step;
        if (single) return {base, {matrix ? row : e, e}};
        if (arrangement == Arrangement::list) {
            void** list = arena.take<void*>(count);
            for (int i = 0; i < count; ++i) list[i] = base + std::size_t(i) * between;
            return {list, {0, matrix ? row : step, step}};
        }
        return {base, {between, matrix ? row : step, step}};
    }

    Laid lay(const Row& what, Arrangement arrangement, const Laid* prepared, std::size_t source) {
        Laid laid{{{}, n, count, scratch}, {}, {}};
        bool result = false;
        for (const char* l = what.letters; *l; ++l) {
            result |= *l == '>';
            if (!isOperand(*l)) continue;
            void* data;
            if (!result && prepared && isIn("MI", *l)) {
                for (std::size_t i = 0; i < prepared->results.size(); ++i)
                    if (prepared->results[i].first == *l) laid.site.operands.push_back(prepared->placedResults[i]);
                continue;
            }
            laid.site.operands.push_back(place(*l, arrangement, result ? nullptr : sources[source++], data));
            if (result) {
                laid.results.push_back({*l, data});
                laid.placedResults.push_back(laid.site.operands.back());
            }
        }
        return laid;
    }

    // ---- comparison ----

    std::vector<Numbers> dense(const std::vector<std::pair<char, void*>>& results, bool inPlanes, bool columns, int number) const {
        std::vector<Numbers> out;
        for (auto [l, data] : results) {
            const int size = cells(l);
            Numbers values;
            for (int i = 0; i < std::min(number, objects(l)); ++i)
                for (int e = 0; e < size; ++e) {
                    const int j = columns && (isMatrix(l)) ? e % n * n + e / n : e;
                    const char* at = static_cast<char*>(data);
                    at += inPlanes && !isPacked(l) ? std::size_t(j) * planeBytes() + i * sizeof(T) : (std::size_t(i) * size + j) * unit(l);
                    values.push_back(l == 'I' ? double(*reinterpret_cast<const std::int32_t*>(at)) : double(*reinterpret_cast<const T*>(at)));
                }
            out.push_back(std::move(values));
        }
        return out;
    }

    void compare(const std::string& name, const std::vector<std::pair<char, void*>>& results, bool inPlanes, bool columns, bool ours, int number) {
        const int seen = std::min(number, checked);
        const char source = first ? first->letters[0] : row.letters[0];
        Numbers from;
        if (row.same != Same::results) from.assign(sources[0], sources[0] + std::size_t(cells(source)) * seen);
        const Numbers values = comparable(row.same, n, seen, from, dense(results, inPlanes, columns, seen), ours);
        if (reference.empty()) {
            reference = values;
            referenceName = name;
        }
        const double tolerance = sizeof(T) == 4 ? 2e-3 : 1e-10;
        const std::size_t chunk = std::max<std::size_t>(1, values.size() / seen);
        for (std::size_t start = 0; start < values.size(); start += chunk) {
            double largest = 1e-3;
            const std::size_t end = std::min(start + chunk, values.size());
            for (std::size_t e = start; e < end; ++e) largest = std::max(largest, std::fabs(reference[e]));
            for (std::size_t e = start; e < end; ++e)
                if (!(std::fabs(values[e] - reference[e]) <= tolerance * largest)) {
                    fault += name + " differs from " + referenceName + " at object " + std::to_string(start / chunk) + ": " +
                             std::to_string(values[e]) + " for " + std::to_string(reference[e]) + "; ";
                    return;
                }
        }
    }

    // ---- contenders ----

    void addOurs() {
        const std::string type = sizeof(T) == 4 ? "_32f" : "_64f", name = row.name;
        struct Kind {
            const char* name;
            Arrangement arrangement;
            const char* suffix;
        };
        for (const Kind& kind : {Kind{"ours", Arrangement::dense, ""}, Kind{"list", Arrangement::list, "_L"},
                                 Kind{"planesP", Arrangement::planeTable, "_P"}, Kind{"planesS", Arrangement::planeStrides, ""}}) {
            if (where != cache && kind.arrangement != Arrangement::dense) continue;
            const auto find = [&](const Row& r) { return dlsym(RTLD_DEFAULT, ("vokm" + std::string(r.name) + type + kind.suffix).c_str()); };
            const bool table = kind.arrangement == Arrangement::planeTable;
            const auto function = [&](const Row& r) { return r.call[sizeof(T) == 8][table]; };
            Laid prepared;
            if (first) {
                if (!find(*first)) continue;
                prepared = lay(*first, kind.arrangement, nullptr, 0);
                accept(kind.name, function(*first)(find(*first), prepared.site, 1));
            }
            void* f = find(row);
            if (!f) continue;
            const Laid laid = lay(row, kind.arrangement, first ? &prepared : nullptr, first ? 1 : 0);
            accept(kind.name, function(row)(f, laid.site, 1));
            compare(kind.name, laid.results, planes(kind.arrangement), false, true, count);
            const auto contend = [&](const char* as, int number) {
                Site site = laid.site;
                site.count = number;
                contenders.push_back({as, [call = function(row), f, site](long repeats) { call(f, site, repeats); }, number});
            };
            contend(kind.name, count);
            if (kind.arrangement == Arrangement::dense && where == cache && row.where & oneCall) contend("one", 1);
        }
    }

    void accept(const char* name, int status) {
        if (status) fault += std::string(name) + " returns " + std::to_string(status) + "; ";
    }

    const T* byColumns(const T* dense, char l) {
        const int size = cells(l);
        T* out = arena.take<T>(std::size_t(size) * objects(l));
        for (int i = 0; i < objects(l); ++i)
            for (int e = 0; e < size; ++e) out[std::size_t(i) * size + e] = dense[std::size_t(i) * size + e % n * n + e / n];
        return out;
    }

    std::vector<std::pair<char, void*>> results(const Row& what) {
        std::vector<std::pair<char, void*>> out;
        for (const char* l = std::strchr(what.letters, '>'); *l; ++l)
            if (isOperand(*l)) out.push_back({*l, arena.take<double>(std::size_t(cells(*l)) * objects(*l) * sizeof(T) / 8 + 8)});
        return out;
    }

    void addPeers() {
        const char type = sizeof(T) == 4 ? 'f' : 'd';
        const auto shared = results(row);
        for (const auto& r : shared) peerResults.push_back(r.second);
        std::map<std::pair<const T*, bool>, const T*> byColumn;
        for (const Peer& peer : peers) {
            const Formulation& f = peer.text;
            if (std::strcmp(f.row, row.name) || f.type != type || (f.n && f.n != n) || (f.columns && where == streams)) continue;
            const auto stored = [&](const T* dense, char l) {
                if (!f.columns || !isMatrix(l)) return dense;
                const T*& copy = byColumn[{dense, true}];
                return copy ? copy : copy = byColumns(dense, l);
            };
            Operands o{{}, {}, nullptr, count};
            std::size_t source = 0, in = 0;
            std::vector<std::pair<char, void*>> made;
            if (where != whole) o.extra = where == cache ? arena.take<T>(std::size_t(n) * n * count) : nullptr;
            if (first) {
                const auto maker = std::find_if(peers.begin(), peers.end(), [&](const Peer& p) {
                    return p.group == peer.group && !std::strcmp(p.text.row, first->name) && p.text.type == type && p.text.n == f.n &&
                           p.text.columns == f.columns;
                });
                if (maker == peers.end()) {
                    fault += peer.group + " has no preparation; ";
                    continue;
                }
                made = results(*first);
                Operands make = o;
                make.in[0] = stored(sources[source++], first->letters[0]);
                for (std::size_t i = 0; i < made.size(); ++i) make.out[i] = made[i].second;
                maker->text.run(make);
            }
            for (const char* l = row.letters; *l != '>'; ++l) {
                if (!isOperand(*l)) continue;
                const auto ready = std::find_if(made.begin(), made.end(), [&](const auto& m) { return m.first == *l; });
                o.in[in++] = ready != made.end() ? ready->second : stored(sources[source++], *l);
            }
            for (std::size_t i = 0; i < shared.size(); ++i) {
                o.out[i] = shared[i].second;
                std::memset(o.out[i], 0, std::size_t(cells(shared[i].first)) * std::min(objects(shared[i].first), checked) * unit(shared[i].first));
            }
            const std::string name = peer.group + ":" + (f.aside ? "(aside) " : "") + f.how;
            f.run(o);
            compare(name, shared, false, f.columns, false, count);
            contenders.push_back({name, [run = f.run, o](long repeats) {
                                      for (; repeats > 0; --repeats) run(o);
                                  }, count});
        }
    }

    bool isReduction() const { return std::string(row.letters) == "VV>Sn#" || std::string(row.letters) == "V>Sn#"; }

    void addBare() {
        const long inPlanes = long(sources.size()) * n, pitch = planeBytes() / long(sizeof(T));
        T* planes = arena.take<T>(std::size_t(inPlanes) * pitch);
        for (long k = 0; k < inPlanes; ++k)
            for (int i = 0; i < count; ++i) planes[k * pitch + i] = std::fabs(sources[k / n][std::size_t(i) * n + k % n]);
        contenders.push_back({"bare", [=, this, d = static_cast<T*>(peerResults[0])](long repeats) {
                                  for (; repeats > 0; --repeats) bare(planes, inPlanes, pitch, sources.size() == 1, d, count);
                              }, count});
    }

    void addLoop() {
        std::vector<std::pair<const T*, long>> in;
        long w = 0;
        std::size_t source = 0;
        bool result = false;
        for (const char* l = row.letters; *l; ++l) {
            result |= *l == '>';
            if (!isOperand(*l)) continue;
            if (result) w = cells(*l);
            else {
                if (!isSingle(*l)) in.push_back({sources[source], cells(*l)});
                ++source;
            }
        }
        in.resize(2);
        const long common = std::gcd(std::gcd(in[0].second, in[1].second), w);
        const long blocks = long(count) * sizeof(T) / 16 * common;
        contenders.push_back({"loop", [in, w, common, blocks, d = peerResults[0]](long repeats) {
                                  for (; repeats > 0; --repeats)
                                      loop(in[0].first, in[0].second / common, in[1].first, in[1].second / common, d, w / common, blocks);
                              }, count});
    }
};

template <class T> void measure(benchmark::State& state, const Row& row, int n, Where where) {
    Job<T> job(row, n, where);
    if (!job.fault.empty()) return state.SkipWithError(job.fault.c_str());
    if (job.contenders.empty()) return state.SkipWithError("no contender");
    const auto timed = [where](auto& contender) {
        const double start = now(where);
        contender.run(contender.repeats);
        const double time = now(where) - start;
        clearUpperHalves();
        return time;
    };
    for (auto& contender : job.contenders) {
        if (where != cache) continue;
        while (timed(contender) < burst / 4) contender.repeats *= 2;
        double best = HUGE_VAL;
        for (int i = 0; i < 3; ++i) best = std::min(best, timed(contender));
        contender.repeats = std::max(1L, std::lround(contender.repeats * burst / best));
    }
    std::size_t start = 0;
    for (auto _ : state) {
        double total = 0;
        for (std::size_t k = 0; k < job.contenders.size(); ++k) {
            auto& contender = job.contenders[(start + k) % job.contenders.size()];
            if (where == cache) { // brings the operands into the cache
                contender.run(1);
                clearUpperHalves();
            }
            const double time = timed(contender);
            total += time;
            contender.samples.push_back(time / contender.repeats / contender.objects);
        }
        state.SetIterationTime(total * 1e-9);
        ++start;
    }
    for (auto& contender : job.contenders) {
        const auto middle = contender.samples.begin() + contender.samples.size() / 2;
        std::nth_element(contender.samples.begin(), middle, contender.samples.end());
        state.counters[contender.name] = *middle;
    }
    state.counters["count"] = job.count;
    state.counters["bytes"] = double(job.bytes);
}

void registerRows() {
    for (const Row& row : rows())
        for (const char* type = row.types; *type; ++type)
            for (int n : row.sizes)
                for (Where where : {cache, streams, whole}) {
                    if (!(row.where & where)) continue;
                    const char* place = where == cache ? "cache" : where == streams ? "stream" : "whole";
                    const std::string name = std::string(row.name) + (*type == 'f' ? "/32f/" : "/64f/") + std::to_string(n) + "/" + place;
                    benchmark::RegisterBenchmark(name.c_str(), [&row, n, where, f = *type == 'f' ? measure<float> : measure<double>](
                                                                   benchmark::State& state) { f(state, row, n, where); })
                        ->Iterations(where == cache ? rounds : std::max(7, rounds / 3))
                        ->UseManualTime();
                }
}

} // namespace
} // namespace bench

int main(int argc, char** argv) {
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (!std::strncmp(argv[i], "--rounds=", 9)) bench::rounds = std::max(1, std::atoi(argv[i] + 9));
        else if (!std::strncmp(argv[i], "--burst_us=", 11)) bench::burst = 1e3 * std::atof(argv[i] + 11);
        else argv[kept++] = argv[i];
    }
    argc = kept;
    bench::gather("eigen", benchEigenSse3);
    bench::gather("native", benchEigenNative);
    bench::gather("loop", benchPlain);
#ifdef BENCH_LAPACK
    bench::gather("lapack", benchLapack);
#endif
#ifdef BENCH_XSMM
    bench::gather("xsmm", benchXsmm);
#endif
#ifdef BENCH_GLM
    bench::gather("glm", benchGlm);
#endif
    bench::registerRows();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
