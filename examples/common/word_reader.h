// Words and numbers of a text file, and the lines that they stand in for what is wrong with them.
#pragma once

#include <cstddef>
#include <fstream>
#include <string>

// All members throw std::runtime_error with one line "file:line: what is wrong".
class WordReader {
public:
    // `separators` stand between words as blanks do.
    explicit WordReader(const std::string& path, const std::string& separators = "");

    // The word at hand (empty at the end of the file) and the line it stands in.
    std::string word;
    int line = 1;

    void next();
    void skipLine();  // to the first word behind this line

    // The number at hand. what() tells what it is.
    template <class What> double number(const What& what)
    {
        double value = 0;
        const Fault fault = parse(value);
        if (fault != Fault::none) failNumber(fault, what());
        next();
        return value;
    }

    // The bytes behind the word at hand and its end of line, for files that are text only in their head.
    void beginBytes();
    bool bytes(char* to, std::size_t n) { return file.read(to, static_cast<std::streamsize>(n)).good(); }

    [[noreturn]] void fail(const std::string& what, int at = 0) const;
    std::string quoted() const;

private:
    enum class Fault { none, missing, syntax, range };
    Fault parse(double& value) const;
    [[noreturn]] void failNumber(Fault fault, const std::string& what) const;
    bool isSpace(int c) const
    {
        return c == ' ' || (c >= '\t' && c <= '\r') || between.find(static_cast<char>(c)) != std::string::npos;
    }

    std::string path, between;
    std::ifstream file;
    int ahead = 1;
};
