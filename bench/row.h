// A row of the benchmark: one function of the library, its operands as letters, and where it is measured.
#pragma once

#include <cstddef>
#include <tuple>
#include <utility>
#include <vector>

namespace bench {

// The letters of an argument list, in its order:
//   V M    array of vectors, of matrices       v m    single vector, single matrix     h    single 4x4 transform
//   R D Y  array of matrices that are regular, positive definite, symmetric
//   S W I  packed array of elements, of n elements an object, of n 32-bit integers an object
//   b      scratch     n # s    the size, the count, a scalar     >    what follows is a result
template <std::size_t length> struct Letters {
    char text[length];
    consteval Letters(const char (&letters)[length]) {
        for (std::size_t i = 0; i < length; ++i) text[i] = letters[i];
    }
};

constexpr bool isIn(const char* set, char letter) {
    for (; *set; ++set)
        if (*set == letter) return true;
    return false;
}
constexpr bool isMatrix(char letter) { return isIn("MmRDY", letter); }
constexpr bool isSingle(char letter) { return isIn("vmh", letter); }
constexpr bool isPacked(char letter) { return isIn("SWI", letter); }
constexpr bool isOperand(char letter) { return isMatrix(letter) || isPacked(letter) || isIn("Vvh", letter); }

// An operand as the library sees it: pointer, table or list, and the strides and shifts behind it.
struct Placed {
    const void* base;
    int numbers[3];
};

struct Site {
    std::vector<Placed> operands;
    int n, count;
    void* scratch;
};

template <class T, bool table, char letter> auto argument(const Site& site, std::size_t& next) {
    if constexpr (isOperand(letter)) {
        const Placed& o = site.operands[next++];
        constexpr int numbers = isPacked(letter) ? 0 : (isMatrix(letter) && !table ? 3 : 2) - isSingle(letter) + (letter == 'h');
        if constexpr (numbers == 0) return std::tuple{o.base};
        else if constexpr (numbers == 1) return std::tuple{o.base, o.numbers[0]};
        else if constexpr (numbers == 2) return std::tuple{o.base, o.numbers[0], o.numbers[1]};
        else return std::tuple{o.base, o.numbers[0], o.numbers[1], o.numbers[2]};
    } else if constexpr (letter == 'n') return std::tuple{site.n};
    else if constexpr (letter == '#') return std::tuple{site.count};
    else if constexpr (letter == 's') return std::tuple{T(0.75)};
    else if constexpr (letter == 'b') return std::tuple{site.scratch};
    else return std::tuple<>{};
}

using Function = int (*)(void* function, const Site& site, long repeats);

// Calls the library's function `repeats` times with the arguments that the letters spell, and returns the last status. The
// function is found by its name while the program runs, so that the benchmark builds beside any state of the library; the
// comparison of the results is what proves an argument list right.
template <Letters letters, class T, bool table> int call(void* function, const Site& site, long repeats) {
    std::size_t next = 0;
    auto list = [&]<std::size_t... i>(std::index_sequence<i...>) {
        std::tuple parts{argument<T, table, letters.text[i]>(site, next)...}; // braces: from left to right
        return std::apply([](auto... part) { return std::tuple_cat(part...); }, parts);
    }(std::make_index_sequence<sizeof(letters.text) - 1>{});
    return std::apply(
        [&](auto... arguments) {
            const auto f = reinterpret_cast<int (*)(decltype(arguments)...)>(function);
            int status = 0;
            for (; repeats > 0; --repeats) status = f(arguments...);
            return status;
        },
        list);
}

// What has to agree between two contenders, where the bare results need not.
enum class Same { results, logicalRows, lowerFactor, upperMagnitudes, sorted, pairs, vectors, vectorPairs };

enum Where : unsigned { cache = 1, streams = 2, oneCall = 4, whole = 8 };

struct Row {
    const char* name;
    const char* letters;
    unsigned where;
    std::vector<int> sizes;
    const char* types;
    Same same;
    const char* prepare; // the row whose results are the first operands of this one
    Function call[2][2]; // by type, and by "is a pointer table"
};

const std::vector<Row>& rows();
const Row* findRow(const char* name);

} // namespace bench
