#include "signature.h"

#include <dlfcn.h>
#include <ffi.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace harness {
namespace {

std::string readWithoutComments(const std::string& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    std::stringstream content;
    content << file.rdbuf();
    std::string text = content.str(), code;
    for (size_t from = 0; from < text.size();) {
        size_t start = std::min(text.find("/*", from), text.size());
        code += text.substr(from, start - from) + " ";
        size_t end = text.find("*/", start);
        from = end == std::string::npos ? text.size() : end + 2;
    }
    return std::regex_replace(code, std::regex("//[^\n]*"), " ");
}

Param parseParam(const std::string& text)
{
    static const std::regex shape("^\\s*(.*[\\s*])(\\w+)\\s*$");
    std::smatch match;
    if (!std::regex_match(text, match, shape)) {
        throw std::runtime_error("parameter not understood: " + text);
    }
    std::string type = match[1];
    auto holds = [&](const char* word) { return type.find(word) != std::string::npos; };
    if (holds("*")) {
        return {match[2], ParamClass::pointer};
    }
    if (holds("int32_t") || holds("int")) {
        return {match[2], ParamClass::integer};
    }
    return {match[2], holds("float") ? ParamClass::single : ParamClass::real};
}

std::map<std::string, Signature> parseHeaders()
{
    std::string root = VOKM_INCLUDE_DIR;
    std::string chief = readWithoutComments(root + "/vokm");
    std::string text = chief;
    static const std::regex include("#\\s*include\\s*\"([^\"]+)\"");
    for (std::sregex_iterator it(chief.begin(), chief.end(), include), end; it != end; ++it) {
        text += readWithoutComments(root + "/" + (*it)[1].str());
    }
    std::map<std::string, Signature> found;
    static const std::regex prototype("vokStatus\\s+(vokm\\w+)\\s*\\(([^)]*)\\)\\s*;");
    for (std::sregex_iterator it(text.begin(), text.end(), prototype), end; it != end; ++it) {
        std::stringstream list((*it)[2].str());
        Signature signature;
        for (std::string one; std::getline(list, one, ',');) {
            signature.push_back(parseParam(one));
        }
        found[(*it)[1]] = signature;
    }
    return found;
}

struct Callable {
    void* address = nullptr;
    ffi_cif interface;
    std::vector<ffi_type*> types;
};

Callable& callable(const std::string& function)
{
    static std::map<std::string, Callable> known;
    Callable& entry = known[function];
    if (entry.address) {
        return entry;
    }
    for (const Param& param : declaredFunctions().at(function)) {
        entry.types.push_back(param.kind == ParamClass::pointer   ? &ffi_type_pointer
                              : param.kind == ParamClass::integer ? &ffi_type_sint32
                              : param.kind == ParamClass::single  ? &ffi_type_float
                                                                  : &ffi_type_double);
    }
    if (ffi_prep_cif(&entry.interface, FFI_DEFAULT_ABI, entry.types.size(), &ffi_type_sint32, entry.types.data()) != FFI_OK) {
        throw std::runtime_error("no call interface for " + function);
    }
    void* address = dlsym(RTLD_DEFAULT, function.c_str());
    if (!address) {
        throw std::runtime_error("the library does not export " + function);
    }
    entry.address = address;
    return entry;
}

union Slot {
    void* pointer;
    int32_t integer;
    float single;
    double real;
};

}  // namespace

const std::map<std::string, Signature>& declaredFunctions()
{
    static const std::map<std::string, Signature> functions = parseHeaders();
    return functions;
}

bool isDeclared(const std::string& name) { return declaredFunctions().count(name) != 0; }

int32_t call(const std::string& function, const Arguments& arguments)
{
    Callable& target = callable(function);
    const Signature& signature = declaredFunctions().at(function);
    std::vector<Slot> slots(signature.size());
    std::vector<void*> places;
    for (size_t i = 0; i < signature.size(); ++i) {
        const std::string& name = signature[i].name;
        try {
            switch (signature[i].kind) {
            case ParamClass::pointer: slots[i].pointer = arguments.pointers.at(name); break;
            case ParamClass::integer: slots[i].integer = arguments.integers.at(name); break;
            case ParamClass::single: slots[i].single = float(arguments.reals.at(name)); break;
            case ParamClass::real: slots[i].real = arguments.reals.at(name); break;
            }
        } catch (const std::out_of_range&) {
            throw std::runtime_error(function + ": argument " + name + " is not set");
        }
        places.push_back(&slots[i]);
    }
    ffi_arg status = 0;
    ffi_call(&target.interface, FFI_FN(target.address), &status, places.data());
    return int32_t(status);
}

}  // namespace harness
