#include "cloud_file.h"

#include "word_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>

namespace {

constexpr double maxPoints = 1 << 24;

// A number as the file has it, in the machine's own order of bytes: this is x86-64.
template <class T> double decode(const char* bytes)
{
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return static_cast<double>(value);
}

struct Type {
    size_t size;
    double (*read)(const char*);
};

const std::map<std::string, Type> types = {{"char", {1, decode<int8_t>}}, {"int8", {1, decode<int8_t>}},
    {"uchar", {1, decode<uint8_t>}}, {"uint8", {1, decode<uint8_t>}}, {"short", {2, decode<int16_t>}},
    {"int16", {2, decode<int16_t>}}, {"ushort", {2, decode<uint16_t>}}, {"uint16", {2, decode<uint16_t>}},
    {"int", {4, decode<int32_t>}}, {"int32", {4, decode<int32_t>}}, {"uint", {4, decode<uint32_t>}},
    {"uint32", {4, decode<uint32_t>}}, {"float", {4, decode<float>}}, {"float32", {4, decode<float>}},
    {"double", {8, decode<double>}}, {"float64", {8, decode<double>}}};

struct Property {
    std::string name;
    Type type;
    Type count;  // of a list; its size is 0 if this is none
};

struct Element {
    std::string name;
    double count;
    int line;
    std::vector<Property> properties;
};

class Ply {
public:
    explicit Ply(WordReader& reader) : in(reader) {}

    std::vector<Point> read()
    {
        readHead();
        for (const Element& element : elements) {
            if (element.name == "vertex") return readVertices(element);
            readElement(
                element, [](size_t, double) {}, [] {});
        }
        in.fail("the header has no \"vertex\" element");
    }

private:
    WordReader& in;
    std::vector<Element> elements;
    bool binary = false;
    int line = 0;  // of what is being read

    // The next word, which has to be in the same line.
    const std::string& more(const char* statement)
    {
        in.next();
        if (in.word.empty() || in.line != line) in.fail(std::string("\"") + statement + "\" is not complete", line);
        return in.word;
    }

    Type typeHere()
    {
        const auto found = types.find(in.word);
        if (found == types.end()) in.fail(in.quoted() + " is no type of numbers");
        return found->second;
    }

    void readHead()
    {
        bool format = false;
        for (in.next(); in.word != "end_header"; in.skipLine()) {
            line = in.line;
            if (in.word.empty()) in.fail("the file ends before \"end_header\"");
            if (in.word == "comment" || in.word == "obj_info") continue;
            if (in.word == "format") {
                format = true;
                binary = more("format") == "binary_little_endian";
                if (!binary && in.word != "ascii")
                    in.fail("the format is " + in.quoted() + ", and not ascii or binary_little_endian");
            } else if (in.word == "element") {
                const std::string name = more("element");
                more("element");
                elements.push_back({name, countHere(name == "vertex" ? maxPoints : 1e9), line, {}});
            } else if (in.word == "property") {
                if (elements.empty()) in.fail("a property of no element");
                Property property{"", {0, nullptr}, {0, nullptr}};
                if (more("property") == "list") {
                    more("property");
                    property.count = typeHere();
                    more("property");
                }
                property.type = typeHere();
                property.name = more("property");
                elements.back().properties.push_back(property);
            } else {
                in.fail(in.quoted() + " is no statement of a PLY header");
            }
        }
        if (!format) in.fail("the header has no \"format\"");
        line = in.line;
        if (binary)
            in.beginBytes();
        else
            in.next();
    }

    double countHere(double highest)
    {
        size_t digits = 0;
        while (digits < in.word.size() && in.word[digits] >= '0' && in.word[digits] <= '9') ++digits;
        if (digits < in.word.size()) in.fail(in.quoted() + " is no count");
        const double count = std::stod(in.word);
        if (count > highest) in.fail(in.quoted() + " is too large a count");
        return count;
    }

    std::vector<Point> readVertices(const Element& element)
    {
        size_t axis[3];
        for (int a = 0; a < 3; ++a) {
            const std::string name(1, static_cast<char>('x' + a));
            axis[a] = 0;
            while (axis[a] < element.properties.size() && element.properties[axis[a]].name != name) ++axis[a];
            if (axis[a] == element.properties.size()) in.fail("the vertices have no " + name, element.line);
            if (element.properties[axis[a]].count.size) in.fail(name + " is a list", element.line);
        }
        std::vector<Point> points;
        Point point;
        const auto take = [&](size_t property, double value) {
            for (int a = 0; a < 3; ++a)
                if (axis[a] == property) point[a] = value;
        };
        readElement(element, take, [&] { points.push_back(point); });
        return points;
    }

    // Gives each number to take(property, value), but for those of lists, and tells done() behind each object.
    template <class Take, class Done> void readElement(const Element& element, Take take, Done done)
    {
        if (element.properties.empty()) return;
        for (double index = 1; index <= element.count; ++index) {
            const auto name = [&] { return element.name + " " + std::to_string(static_cast<long>(index)); };
            if (!binary && in.line == line && !in.word.empty()) in.fail(in.quoted() + " stands before the line of " + name());
            line = binary ? element.line : in.line;
            for (size_t k = 0; k < element.properties.size(); ++k) {
                const Property& property = element.properties[k];
                double left = 1;
                if (property.count.size) left = readNumber(name, property, property.count);
                if (!(left >= 0) || left != std::floor(left))
                    in.fail(name() + ": a list of this length: " + std::to_string(left), line);
                for (; left > 0; --left) {
                    const double value = readNumber(name, property, property.type);
                    if (!property.count.size) take(k, value);
                }
            }
            done();
        }
    }

    template <class Name> double readNumber(const Name& name, const Property& property, const Type& type)
    {
        if (!binary) {
            if (in.line != line && !in.word.empty()) in.fail(name() + " has no " + property.name, line);
            return in.number([&] { return name() + ", " + property.name; });
        }
        char bytes[8];
        if (!in.bytes(bytes, type.size)) in.fail("the file ends before the end of " + name(), line);
        const double value = type.read(bytes);
        if (!(std::fabs(value) <= 1e30)) in.fail(name() + ": " + property.name + " is out of range", line);
        return value;
    }
};

std::vector<Point> readXyz(WordReader& in)
{
    std::vector<Point> points;
    while (!in.word.empty()) {
        const int line = in.line;
        if (in.word[0] == '#' || in.word.substr(0, 2) == "//") {
            in.skipLine();
            continue;
        }
        Point point;
        for (int a = 0; a < 3; ++a) {
            if (in.word.empty() || in.line != line) in.fail("a point has three numbers: x y z", line);
            point[a] = in.number([&] { return std::string(1, static_cast<char>('x' + a)) + " of a point"; });
        }
        if (!in.word.empty() && in.line == line) in.skipLine();
        if (static_cast<double>(points.size()) == maxPoints) in.fail("more than 16777216 points", line);
        points.push_back(point);
    }
    return points;
}

}  // namespace

std::vector<Point> readCloud(const std::string& path)
{
    WordReader in(path, ",;");
    const std::vector<Point> points = in.word == "ply" ? Ply(in).read() : readXyz(in);
    if (points.size() < 4) in.fail("the cloud ends with " + std::to_string(points.size()) + " points: at least 4 make a surface");
    if (std::all_of(points.begin(), points.end(), [&](const Point& p) { return p == points[0]; }))
        in.fail("all points are in one place");
    return points;
}
