// Calls into the library, each with its status looked at, its time taken and its objects counted.
#pragma once

#include <chrono>
#include <cstdio>
#include <map>
#include <stdexcept>
#include <string>
#include <tuple>

#include <vokm>

class Ledger {
public:
    // A tuple among the arguments stands for its elements: a pointer and its strides travel together.
    template <class... Parameters, class... Arguments>
    vokStatus attempt(const char* name, int objects, vokStatus (*function)(Parameters...), Arguments... arguments)
    {
        const auto flat = std::tuple_cat(flatten(arguments)...);
        const auto start = std::chrono::steady_clock::now();
        const vokStatus status = std::apply(function, flat);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        entries[name].objects += status == vokStatusOk ? objects : 0;
        entries[name].seconds += time.count();
        return status;
    }

    template <class... Arguments> void call(const char* name, Arguments... arguments)
    {
        const vokStatus status = attempt(name, arguments...);
        if (status != vokStatusOk) throw std::runtime_error(std::string(name) + ": " + vokmStatusText(status));
    }

    void print() const
    {
        Entry sum;
        for (const auto& [name, entry] : entries) {
            line(name, entry);
            sum.objects += entry.objects;
            sum.seconds += entry.seconds;
        }
        line("through the library", sum);
    }

private:
    struct Entry {
        double objects = 0, seconds = 0;
    };

    template <class T> static auto flatten(const T& argument) { return std::tuple(argument); }
    template <class... T> static auto flatten(const std::tuple<T...>& arguments) { return arguments; }

    static void line(const std::string& name, const Entry& entry)
    {
        std::printf("%-32s %12.0f objects %9.2f ms %8.1f million objects per second\n", name.c_str(), entry.objects,
            1e3 * entry.seconds, 1e-6 * entry.objects / entry.seconds);
    }

    std::map<std::string, Entry> entries;
};

#define LEDGER_CALL(ledger, objects, function, ...) (ledger).call(#function, objects, function, __VA_ARGS__, objects)
#define LEDGER_ATTEMPT(ledger, objects, function, ...) (ledger).attempt(#function, objects, function, __VA_ARGS__, objects)
