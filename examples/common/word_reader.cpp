#include "word_reader.h"

#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstring>
#include <stdexcept>

constexpr std::size_t maxWord = 64;

WordReader::WordReader(const std::string& name, const std::string& separators)
    : path(name), between(separators), file(name, std::ios::binary)
{
    if (!file) throw std::runtime_error(path + ": cannot be opened: " + std::strerror(errno));
    if (file.peek() == EOF) throw std::runtime_error(path + ": is empty or no file");
    next();
}

void WordReader::next()
{
    std::streambuf& in = *file.rdbuf();
    word.clear();
    int c = in.sgetc();
    for (; c != EOF && isSpace(c); c = in.snextc()) ahead += c == '\n';
    if (c == EOF) return;  // the line stays that of the last word, where something is missing
    line = ahead;
    for (; c != EOF && !isSpace(c); c = in.snextc()) {
        if (word.size() == maxWord) fail(quoted() + "... is not a number");
        word += static_cast<char>(c);
    }
}

void WordReader::skipLine()
{
    std::streambuf& in = *file.rdbuf();
    for (int c = in.sgetc(); c != EOF && c != '\n'; c = in.snextc()) continue;
    next();
}

void WordReader::beginBytes()
{
    std::streambuf& in = *file.rdbuf();
    if (in.sgetc() == '\r') in.sbumpc();
    if (in.sgetc() == '\n') in.sbumpc();
}

WordReader::Fault WordReader::parse(double& value) const
{
    if (word.empty()) return Fault::missing;
    const char *begin = word.data() + (word[0] == '+'), *end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(begin, end, value);
    if (rest != end || error == std::errc::invalid_argument) return Fault::syntax;
    // A float holds every number that makes sense; this also turns away inf and nan.
    return error == std::errc() && std::fabs(value) <= 1e30 ? Fault::none : Fault::range;
}

void WordReader::failNumber(Fault fault, const std::string& what) const
{
    if (fault == Fault::missing) fail("the file ends before " + what);
    if (fault == Fault::syntax) fail(quoted() + " is not a number (" + what + ")");
    fail(word + " is out of range (" + what + ")");
}

void WordReader::fail(const std::string& what, int at) const
{
    throw std::runtime_error(path + ":" + std::to_string(at ? at : line) + ": " + what);
}

std::string WordReader::quoted() const
{
    std::string text = "\"";
    for (char c : word) text += c >= ' ' && c <= '~' ? c : '?';
    return text + "\"";
}
