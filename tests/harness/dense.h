// Calls without strides to think of: every operand of a function in a dense array of its own, for tests of properties.
#pragma once
#include <map>
#include <string>
#include <vector>

#include "expression.h"
#include "forms.h"

namespace harness {

template <class T> class Dense {
public:
    static constexpr int untouched = 77;  // what memory holds before

    Dense(const std::string& name, std::map<std::string, int32_t> sizes)
        : function(functionNamed(name)), integers(std::move(sizes))
    {
        int objects = function.array ? integers.at("count") : 1;
        for (const ArgRecord& arg : function.args) {
            if (arg.kind == ArgKind::integer || arg.kind == ArgKind::real) {
                continue;
            }
            bool shared = arg.kind == ArgKind::indices && function.form == "mva";
            bool many = arg.array && arg.kind != ArgKind::scratch && !shared;
            int rows = extent(arg.rows), cols = extent(arg.cols);
            perObject[arg.name] = many ? rows * cols : 0;
            integers[arg.prefix + "Stride2"] = sizeof(T);
            integers[arg.prefix + "Stride1"] = int32_t(sizeof(T)) * cols;
            integers[arg.prefix + "Stride0"] = int32_t(sizeof(T)) * cols * rows;
            size_t length = size_t(rows) * cols * (many ? objects : 1);
            if (arg.kind == ArgKind::indices) {
                indices[arg.name].assign(length, untouched);
            } else {
                elements[arg.name].assign(length, T(untouched));
            }
        }
    }

    std::vector<T>& operator[](const std::string& operand) { return elements.at(operand); }
    std::vector<int32_t>& pivots() { return indices.at("pivot"); }
    int size(const std::string& operand) const { return perObject.at(operand); }
    T* object(const std::string& operand, int i) { return elements.at(operand).data() + size_t(perObject.at(operand)) * i; }

    int32_t run() { return run(0, function.array ? integers.at("count") : 1); }
    int32_t run(int first, int count)
    {
        Arguments arguments;
        arguments.integers = integers;
        if (function.array) {
            arguments.integers["count"] = count;
        }
        for (auto& [name, values] : elements) {
            arguments.pointers[name] = object(name, first);
        }
        for (auto& [name, values] : indices) {
            arguments.pointers[name] = values.data() + size_t(perObject.at(name)) * first;
        }
        return call(function.name, arguments);
    }

    const Function& function;
    std::map<std::string, std::vector<T>> elements;
    std::map<std::string, std::vector<int32_t>> indices;

private:
    int extent(const std::string& formula) const
    {
        return evaluate(formula, [this](const std::string& name) { return integers.at(name == "n" ? "widthHeight" : name); });
    }
    std::map<std::string, int32_t> integers;
    std::map<std::string, int> perObject;
};

template <class T> std::string named(const std::string& group) { return group + (sizeof(T) == 4 ? "_32f" : "_64f"); }

}  // namespace harness
