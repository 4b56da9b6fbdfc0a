// Inputs of the fuzzer without the fuzzer: those that it kept, each behind its length in a byte, and some
// drawn at random.
//   vokm_fuzz_replay CORPUS COUNT [SEED]      runs the corpus and COUNT inputs drawn at random; part of the tests
//   vokm_fuzz_replay --input FILE...          runs single inputs, such as the fuzzer leaves behind, and describes them
//   vokm_fuzz_replay --line HEX...            the same for inputs in hexadecimal, as they are told
//   vokm_fuzz_replay --unpack CORPUS DIR      one file an input, as the fuzzer reads them
//   vokm_fuzz_replay --pack DIR               the reverse, to the standard output
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "fuzz_case.h"

namespace {

using Input = std::vector<uint8_t>;

Input fromLine(const std::string& line)
{
    Input input;
    for (size_t at = 0; at + 1 < line.size(); at += 2) {
        input.push_back(uint8_t(std::stoi(line.substr(at, 2), nullptr, 16)));
    }
    return input;
}

std::string toLine(const Input& input)
{
    static const char digits[] = "0123456789abcdef";
    std::string line;
    for (uint8_t byte : input) {
        line += {digits[byte / 16], digits[byte % 16]};
    }
    return line;
}

std::vector<Input> readCorpus(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    std::vector<Input> inputs;
    for (int length; (length = file.get()) >= 0;) {
        inputs.emplace_back(length);
        file.read(reinterpret_cast<char*>(inputs.back().data()), length);
    }
    return inputs;
}

Input readFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return Input(std::istreambuf_iterator<char>(file), {});
}

class Runs {
public:
    void run(const Input& input, bool describe = false)
    {
        const std::string problem = fuzz::check(input.data(), input.size());
        ++inputs;
        problems += !problem.empty();
        if (describe || (!problem.empty() && problems <= 20)) {
            std::cout << toLine(input) << '\n' << fuzz::describe(input.data(), input.size()) << '\n'
                      << (problem.empty() ? "agrees" : problem) << std::endl;
        }
    }
    void runDrawn(int count, unsigned seed)
    {
        std::mt19937 random(seed);
        for (int i = 0; i < count; ++i) {
            Input input(20 + random() % 80);
            for (uint8_t& byte : input) {
                byte = uint8_t(random());
            }
            run(input);
        }
    }
    int report() const
    {
        std::cout << inputs << " inputs, " << problems << " problems\n";
        return problems != 0;
    }

private:
    int inputs = 0, problems = 0;
};

void unpack(const std::string& corpus, const std::filesystem::path& directory)
{
    std::filesystem::create_directories(directory);
    int number = 0;
    for (const Input& input : readCorpus(corpus)) {
        std::ofstream(directory / std::to_string(number++), std::ios::binary)
            .write(reinterpret_cast<const char*>(input.data()), std::streamsize(input.size()));
    }
}

// Zeros at the end say nothing, and in the order of their bytes the same inputs are always the same file.
void pack(const std::string& directory)
{
    std::set<std::string> inputs;
    for (auto& entry : std::filesystem::directory_iterator(directory)) {
        Input input = readFile(entry.path());
        while (!input.empty() && input.back() == 0) {
            input.pop_back();
        }
        inputs.emplace(input.begin(), input.end());
    }
    for (const std::string& input : inputs) {
        std::cout << char(input.size()) << input;
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 2 && arguments[0] == "--pack") {
        pack(arguments[1]);
        return 0;
    }
    if (arguments.size() == 3 && arguments[0] == "--unpack") {
        unpack(arguments[1], arguments[2]);
        return 0;
    }
    Runs runs;
    if (arguments.size() > 1 && (arguments[0] == "--input" || arguments[0] == "--line")) {
        for (size_t i = 1; i < arguments.size(); ++i) {
            runs.run(arguments[0] == "--input" ? readFile(arguments[i]) : fromLine(arguments[i]), true);
        }
        return runs.report();
    }
    if (arguments.size() != 2 && arguments.size() != 3) {
        std::cerr << "usage: " << argv[0]
                  << " CORPUS COUNT [SEED] | --input FILE... | --line HEX... | --unpack CORPUS DIR | --pack DIR\n";
        return 2;
    }
    for (const Input& input : readCorpus(arguments[0])) {
        runs.run(input);
    }
    runs.runDrawn(std::stoi(arguments[1]), arguments.size() > 2 ? unsigned(std::stoul(arguments[2])) : 1);
    return runs.report();
}
