#include "forms.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <sstream>
#include <stdexcept>

#include "expression.h"

namespace harness {

extern const char* const formsTable;

namespace {

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::stringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        part.erase(0, part.find_first_not_of(' '));
        part.erase(part.find_last_not_of(' ') + 1);
        parts.push_back(part);
    }
    return parts;
}

std::vector<std::string> words(const std::string& text)
{
    std::stringstream stream(text);
    std::vector<std::string> found;
    for (std::string word; stream >> word;) {
        found.push_back(word);
    }
    return found;
}

std::vector<std::string> codesOf(const std::string& form)
{
    std::vector<std::string> codes;
    for (char letter : form) {
        if (letter == 'a') {
            codes.back() += 'a';
        } else if (letter != '-') {
            codes.push_back(std::string(1, letter));
        }
    }
    return codes;
}

ArgRecord parseArg(const std::string& token, const std::vector<std::string>& codes, bool array)
{
    ArgRecord arg;
    size_t end = token.find_first_of("=:[{");
    arg.name = arg.prefix = token.substr(0, end);
    if (size_t slash = arg.name.find('/'); slash != std::string::npos) {
        arg.prefix = arg.name.substr(slash + 1);
        arg.name = arg.name.substr(0, slash);
    }
    if (end == std::string::npos) {
        return arg;
    }
    char code = token[end + 1];
    arg.written = arg.name.rfind("dst", 0) == 0 || code == 'b' || code == 'i';
    arg.array = array;
    if (token[end] == '=') {
        const std::string& letters = codes.at(code - '1');
        arg.letter = letters[0];
        arg.array = letters.size() > 1;
        arg.kind = letters == "c" ? ArgKind::real : ArgKind::object;
    } else {
        static const std::map<char, ArgKind> kinds = {{'v', ArgKind::object}, {'m', ArgKind::object}, {'s', ArgKind::scalars},
            {'n', ArgKind::packed}, {'i', ArgKind::indices}, {'b', ArgKind::scratch}, {'r', ArgKind::real}};
        arg.letter = code;
        arg.kind = kinds.at(code);
    }
    size_t open = token.find_first_of("[{");
    if (open != std::string::npos && arg.letter != 'c') {
        arg.storedShape = token[open] == '{';
        std::vector<std::string> shape = split(token.substr(open + 1, token.size() - open - 2), ',');
        arg.cols = shape.back();
        arg.rows = shape.size() > 1 ? shape[0] : "1";
    }
    return arg;
}

struct Table {
    std::map<std::string, std::string> shorthands;
    std::vector<Function> functions;
    std::map<std::string, size_t> index;

    Table()
    {
        for (const std::string& line : split(formsTable, '\n')) {
            if (line.empty()) {
                continue;
            }
            if (line[0] == '@') {
                size_t equals = line.find(" = ");
                shorthands[words(line)[0]] = line.substr(equals + 3);
            } else if (line[0] == '!') {
                depart(words(line.substr(1)));
            } else {
                addRow(split(line, '|'));
            }
        }
    }

    std::string expand(const std::string& arguments) const
    {
        std::string result;
        for (const std::string& word : words(arguments)) {
            result += (word[0] == '@' ? expand(shorthands.at(word)) : word) + " ";
        }
        return result;
    }

    void addRow(std::vector<std::string> cells)
    {
        cells.resize(7);
        for (const std::string& family : words(cells[0])) {
            for (const std::string& form : words(cells[1])) {
                for (const std::string& order : words(cells[3])) {
                    for (const char* type : {"32f", "64f"}) {
                        std::vector<std::string> traits = words(cells[6]);
                        if (type[0] == '3' || std::count(traits.begin(), traits.end(), "32f") == 0) {
                            addFunction(family, form, type, order, cells);
                        }
                    }
                }
            }
        }
    }

    void addFunction(const std::string& family, const std::string& form, const std::string& type, const std::string& order,
        const std::vector<std::string>& cells)
    {
        Function f;
        f.family = family;
        f.form = form;
        f.isDouble = type == "64f";
        size_t colon = order.find(':');
        std::string layouts = order.substr(0, colon);
        f.order = order.substr(colon + 1);
        f.suffix = layouts == "S" ? "" : layouts;
        f.name = family + (form == "-" ? "" : "_" + form) + "_" + type + (f.suffix.empty() ? "" : "_" + f.suffix);
        std::vector<std::string> codes = codesOf(form);
        f.array = std::any_of(codes.begin(), codes.end(), [](auto& code) { return code.size() > 1; });
        for (const std::string& token : words(expand(cells[2]))) {
            if (token != "count" || f.array) {
                f.args.push_back(parseArg(token, codes, f.array));
                ArgRecord& arg = f.args.back();
                arg.layout = layouts[arg.written ? layouts.size() - 1 : 0];
            }
        }
        setLimits(f, cells[4], cells[5]);
        setTraits(f, cells[6]);
        index[f.name] = functions.size();
        functions.push_back(f);
    }

    static void setLimits(Function& f, const std::string& work, const std::string& limits)
    {
        if (work.empty()) {
            return;
        }
        f.work = work;
        f.wrapper = true;
        std::string cell = words(limits).at(std::string("SPL").find(f.layout()));
        std::vector<std::string> byType = split(cell, ';');
        std::vector<std::string> byStride = split(f.isDouble ? byType.back() : byType.front(), '/');
        f.limitDense = std::stoi(byStride.front());
        f.limitStrided = std::stoi(byStride.back());
    }

    static void setTraits(Function& f, const std::string& traits)
    {
        f.kernels = "usual";
        std::vector<std::string> list = words(traits);
        for (size_t i = 0; i < list.size(); ++i) {
            if (list[i] == ">=") {
                f.parallelAtLimit = true;
            } else if (list[i] == "merge") {
                f.mergesStatus = true;
            } else if (list[i] == "M") {
                f.match = list[++i];
            } else if (list[i] == "one" || list[i] == "none") {
                f.kernels = list[i];
            }
        }
    }

    void depart(const std::vector<std::string>& departure)
    {
        Function& f = functions.at(index.at(departure.at(0)));
        if (departure[1] == "order") {
            f.order = departure.at(2);
        } else if (departure[1] == "untested") {
            f.untested.push_back(departure.at(2));
        } else if (departure[1] == "spare") {
            f.spareEntries = std::stoi(departure.at(2));
        } else if (departure[1] == "serial") {
            f.wrapper = false;
        }
    }
};

const Table& table()
{
    static const Table built;
    return built;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

Lookup lookupIn(const std::map<std::string, int32_t>& integers)
{
    return [&integers](const std::string& name) {
        static const std::map<std::string, std::string> shortNames = {
            {"n", "widthHeight"}, {"w1", "src1Width"}, {"h1", "src1Height"}, {"w2", "src2Width"}, {"h2", "src2Height"}};
        auto known = shortNames.find(name);
        return integers.at(known == shortNames.end() ? name : known->second);
    };
}

// The tests of one step, over the arguments that it concerns.
class Checks {
public:
    Checks(const Function& f, const Arguments& a) : function(f), arguments(a) {}

    int32_t firstFault() const
    {
        for (size_t i = 0; i < function.order.size(); ++i) {
            char part = i + 1 < function.order.size() && std::isdigit(function.order[i + 1]) ? function.order[i + 1] : '0';
            if (std::isdigit(function.order[i])) {
                continue;
            }
            if (int32_t status = fault(function.order[i], part)) {
                return status;
            }
        }
        return 0;
    }

private:
    int32_t fault(char step, char part) const
    {
        switch (step) {
        case 'N': return anyNull() ? -8 : 0;
        case 'C': return arguments.integers.at("count") < 1 ? -203 : 0;
        case 'Z': return anyInteger(part, &Checks::isSize, [](int32_t v) { return v < 1; }) ? -6 : 0;
        case 'M': return evaluate(function.match, lookupIn(arguments.integers)) ? 0 : -204;
        case 'S': return anyInteger(part, &Checks::isStride, strideTest()) ? -182 : 0;
        case 's': return arguments.integers.at("count") > 1 && anyInteger(part, &Checks::isStride0, strideTest()) ? -182 : 0;
        case 'O': return anyInteger(part, &Checks::isShift, shiftTest()) ? -202 : 0;
        }
        throw std::runtime_error("unknown step in " + function.order);
    }

    bool anyNull() const
    {
        return std::any_of(arguments.pointers.begin(), arguments.pointers.end(), [](auto& p) { return p.second == nullptr; });
    }

    template <class Test> bool anyInteger(char part, bool (Checks::*concerns)(const std::string&) const, Test bad) const
    {
        return std::any_of(arguments.integers.begin(), arguments.integers.end(), [&](auto& entry) {
            bool ofSource = entry.first.rfind("src", 0) == 0;
            bool inPart = part == '0' || ofSource == (part == '1');
            return inPart && (this->*concerns)(entry.first) && bad(entry.second);
        });
    }

    std::function<bool(int32_t)> strideTest() const
    {
        int32_t size = function.elementSize();
        return [size](int32_t v) { return v % size != 0 || v < 1; };
    }
    std::function<bool(int32_t)> shiftTest() const
    {
        int32_t size = function.elementSize();
        return [size](int32_t v) { return v % size != 0 || v < 0; };
    }

    bool isStride0(const std::string& name) const { return endsWith(name, "Stride0"); }
    bool isStride(const std::string& name) const
    {
        bool testedLater = function.order.find('s') != std::string::npos && isStride0(name);
        bool left = std::count(function.untested.begin(), function.untested.end(), name) != 0;
        return name.find("Stride") != std::string::npos && !testedLater && !left;
    }
    bool isShift(const std::string& name) const { return endsWith(name, "ObjShift"); }
    bool isSize(const std::string& name) const
    {
        return name.find("Stride") == std::string::npos && !isShift(name) && name != "count";
    }

    const Function& function;
    const Arguments& arguments;
};

}  // namespace

const ArgRecord& Function::arg(const std::string& argName) const
{
    return *std::find_if(args.begin(), args.end(), [&](const ArgRecord& a) { return a.name == argName; });
}

std::vector<Param> Function::params() const
{
    std::vector<Param> list;
    ParamClass real = isDouble ? ParamClass::real : ParamClass::single;
    for (const ArgRecord& arg : args) {
        bool integer = arg.kind == ArgKind::integer;
        list.push_back({arg.name, arg.kind == ArgKind::real ? real : integer ? ParamClass::integer : ParamClass::pointer});
        if (arg.kind != ArgKind::object) {
            continue;
        }
        auto add = [&](bool wanted, const char* what) {
            if (wanted) {
                list.push_back({arg.prefix + what, ParamClass::integer});
            }
        };
        char layout = arg.layout == 'L' && !arg.array ? 'S' : arg.layout;
        bool table = layout == 'P' && arg.letter != 'c';
        add(table || layout == 'L', "ObjShift");
        add(arg.array && layout != 'L', "Stride0");
        add(!table && (arg.letter == 'm' || arg.letter == 't'), "Stride1");
        add(!table && arg.letter != 'c', "Stride2");
    }
    return list;
}

const std::vector<Function>& allFunctions() { return table().functions; }

std::vector<std::string> declaredGroups()
{
    std::vector<std::string> groups;
    std::set<std::string> seen;
    for (const Function& f : allFunctions()) {
        if (isDeclared(f.name) && seen.insert(f.group()).second) {
            groups.push_back(f.group());
        }
    }
    return groups;
}

std::vector<const Function*> functionsOf(const std::string& group)
{
    std::vector<const Function*> found;
    for (const Function& f : allFunctions()) {
        if (f.group() == group && isDeclared(f.name)) {
            found.push_back(&f);
        }
    }
    return found;
}

const Function& functionNamed(const std::string& name) { return table().functions.at(table().index.at(name)); }

int32_t expectedRefusal(const Function& function, const Arguments& arguments) { return Checks(function, arguments).firstFault(); }

int32_t workValue(const Function& function, const std::map<std::string, int32_t>& integers)
{
    return evaluate(function.work, lookupIn(integers));
}

bool isDense(const Function& function, const std::map<std::string, int32_t>& integers)
{
    return std::all_of(integers.begin(), integers.end(),
        [&](auto& entry) { return !endsWith(entry.first, "Stride2") || entry.second == function.elementSize(); });
}

bool wantsThreads(const Function& function, const std::map<std::string, int32_t>& integers)
{
    if (!function.wrapper) {
        return false;
    }
    int32_t limit = isDense(function, integers) ? function.limitDense : function.limitStrided;
    int32_t work = workValue(function, integers);
    return function.parallelAtLimit ? work >= limit : work > limit;
}

}  // namespace harness
