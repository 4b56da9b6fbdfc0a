// Small formulas kept as text in the tables: work values, agreement of sizes, shapes of operands, orders of sums.
#pragma once
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace harness {

using Lookup = std::function<int32_t(const std::string&)>;

// Integers with + - * ( ), and == <= && for conditions. Arithmetic is 32-bit and wraps, as the library's work values do.
int32_t evaluate(const std::string& formula, const Lookup& value);

// A sum written out, such as "((3+0)+1)+2": digits are terms, + is one rounded addition, left before right.
template <class T> T sumAsWritten(const char*& text, const std::vector<T>& terms)
{
    auto operand = [&]() -> T {
        if (*text != '(') {
            return terms.at(*text++ - '0');
        }
        ++text;
        T inner = sumAsWritten(text, terms);
        ++text;  // the closing bracket
        return inner;
    };
    T sum = operand();
    while (*text == '+') {
        ++text;
        T right = operand();
        sum = sum + right;
    }
    return sum;
}

}  // namespace harness
