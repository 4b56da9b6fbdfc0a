// What all programs that turn a file into pictures have in common.
#pragma once

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

// NAME INPUT [DIRECTORY]: calls draw(input, directory); what it throws is told in a line, and gives the exit status 1.
template <class Draw> int runProgram(int argc, char** argv, const char* name, const char* input, Draw draw)
{
    if (argc < 2 || argc > 3 || argv[1][0] == '-') {
        std::fprintf(stderr, "usage: %s %s [DIRECTORY of the pictures, else here]\n", name, input);
        return 1;
    }
    try {
        draw(std::string(argv[1]), std::filesystem::path(argc == 3 ? argv[2] : "."));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s: %s\n", name, error.what());
        return 1;
    }
}

// The beginning of the pictures' names: in the directory, which is made if there is none, with the name of the input.
inline std::string stemFor(const std::string& input, const std::filesystem::path& directory)
{
    std::filesystem::create_directories(directory);
    return (directory / std::filesystem::path(input).stem()).string();
}
