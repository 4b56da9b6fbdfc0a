// Tells how far long work is, on a terminal only: in a log it would be noise.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>
#include <utility>

#include <unistd.h>

class Progress {
public:
    explicit Progress(std::string task) : what(std::move(task)) {}
    ~Progress()
    {
        if (shown) std::fprintf(stderr, "\r\033[K");
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void at(double done, double whole)
    {
        const auto now = std::chrono::steady_clock::now();
        if (!terminal || now - last < std::chrono::milliseconds(200)) return;
        std::fprintf(stderr, "\r%s: %.0f %%", what.c_str(), 100 * done / whole);
        last = now;
        shown = true;
    }

private:
    std::string what;
    const bool terminal = isatty(STDERR_FILENO) != 0;
    bool shown = false;
    std::chrono::steady_clock::time_point last = std::chrono::steady_clock::now();
};
