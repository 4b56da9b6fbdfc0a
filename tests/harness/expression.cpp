#include "expression.h"

#include <cctype>
#include <stdexcept>

namespace harness {
namespace {

class Parser {
public:
    Parser(const std::string& formula, const Lookup& value) : text(formula), lookup(value) {}

    int32_t parse()
    {
        int32_t result = conjunction();
        if (at != text.size()) {
            throw std::runtime_error("formula not understood: " + text);
        }
        return result;
    }

private:
    bool accept(const std::string& token)
    {
        while (at < text.size() && text[at] == ' ') {
            ++at;
        }
        if (text.compare(at, token.size(), token) != 0) {
            return false;
        }
        at += token.size();
        return true;
    }

    int32_t conjunction()
    {
        int32_t result = comparison();
        while (accept("&&")) {
            int32_t right = comparison();
            result = result && right;
        }
        return result;
    }

    int32_t comparison()
    {
        int32_t left = sum();
        if (accept("==")) {
            return left == sum();
        }
        if (accept("<=")) {
            return left <= sum();
        }
        return left;
    }

    int32_t sum()
    {
        uint32_t result = product();
        while (true) {
            if (accept("+")) {
                result += uint32_t(product());
            } else if (accept("-")) {
                result -= uint32_t(product());
            } else {
                return int32_t(result);
            }
        }
    }

    int32_t product()
    {
        uint32_t result = factor();
        while (accept("*")) {
            result *= uint32_t(factor());
        }
        return int32_t(result);
    }

    int32_t factor()
    {
        if (accept("(")) {
            int32_t result = conjunction();
            accept(")");
            return result;
        }
        size_t end = at;
        while (end < text.size() && std::isalnum(static_cast<unsigned char>(text[end]))) {
            ++end;
        }
        std::string word = text.substr(at, end - at);
        at = end;
        if (word.empty()) {
            throw std::runtime_error("formula not understood: " + text);
        }
        return std::isdigit(static_cast<unsigned char>(word[0])) ? std::stoi(word) : lookup(word);
    }

    const std::string& text;
    const Lookup& lookup;
    size_t at = 0;
};

}  // namespace

int32_t evaluate(const std::string& formula, const Lookup& value) { return Parser(formula, value).parse(); }

}  // namespace harness
