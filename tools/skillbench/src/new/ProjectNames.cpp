#include "ProjectNames.hpp"

#include "../Failure.hpp"
#include "../text.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace corvane::skillbench {

namespace {

// A namespace is written in lower case, as these are.
constexpr std::array<std::string_view, 84> kKeywords{
    "alignas",   "alignof",   "and",        "and_eq",       "asm",      "auto",      "bitand",
    "bitor",     "bool",      "break",      "case",         "catch",    "char",      "class",
    "co_await",  "co_return", "co_yield",   "compl",        "concept",  "const",     "consteval",
    "constexpr", "constinit", "const_cast", "continue",     "corvane",  "decltype",  "default",
    "delete",    "do",        "double",     "dynamic_cast", "else",     "enum",      "explicit",
    "export",    "extern",    "false",      "float",        "for",      "friend",    "goto",
    "if",        "inline",    "int",        "long",         "mutable",  "namespace", "new",
    "noexcept",  "not",       "not_eq",     "nullptr",      "operator", "or",        "or_eq",
    "private",   "protected", "public",     "register",     "requires", "return",    "short",
    "signed",    "sizeof",    "static",     "std",          "struct",   "switch",    "template",
    "testing",   "this",      "throw",      "true",         "try",      "typedef",   "typename",
    "union",     "unsigned",  "using",      "virtual",      "void",     "while"};

bool isLower(char character) {
    return character >= 'a' && character <= 'z';
}

bool isUpper(char character) {
    return character >= 'A' && character <= 'Z';
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

char upper(char character) {
    return isLower(character) ? static_cast<char>(character - 'a' + 'A') : character;
}

char lower(char character) {
    return isUpper(character) ? static_cast<char>(character - 'A' + 'a') : character;
}

void checkName(const std::string& name) {
    const auto fits = [](char character) {
        return isLower(character) || isUpper(character) || isDigit(character) || character == '-' ||
               character == '_';
    };
    if (name.empty() || !(isLower(name.front()) || isUpper(name.front())) ||
        !std::ranges::all_of(name, fits)) {
        throw UsageFailure(inQuotes(name) +
                           " cannot be the name of a project: it is made of letters, digits, “-” "
                           "and “_”, and begins with a letter");
    }
}

void checkElementClass(const std::string& elementClass) {
    const auto fits = [](char character) {
        return isLower(character) || isUpper(character) || isDigit(character);
    };
    if (elementClass.empty() || !isUpper(elementClass.front()) ||
        !std::ranges::all_of(elementClass, fits)) {
        throw UsageFailure(inQuotes(elementClass) +
                           " cannot be the name of an element class: it is made of letters and "
                           "digits, and begins with a capital letter");
    }
    if (elementClass == "Input") {
        throw UsageFailure("“Input” is the class of the rows; choose another name with --class");
    }
}

void checkNamespace(const std::string& nameSpace) {
    const auto fits = [](char character) {
        return isLower(character) || isDigit(character) || character == '_';
    };
    if (nameSpace.empty() || !isLower(nameSpace.front()) || !std::ranges::all_of(nameSpace, fits)) {
        throw UsageFailure(inQuotes(nameSpace) +
                           " cannot be the name of a namespace: it is made of lower-case letters, "
                           "digits and “_”, and begins with a letter");
    }
    if (std::ranges::find(kKeywords, nameSpace) != kKeywords.end()) {
        throw UsageFailure(inQuotes(nameSpace) +
                           " means something else in C++; choose another name with --namespace");
    }
}

std::string camelCase(std::string_view name) {
    std::string result;
    bool begins = true;
    for (const char character : name) {
        if (character == '-' || character == '_') {
            begins = true;
        } else {
            result += begins ? upper(character) : character;
            begins = false;
        }
    }
    return result;
}

std::string snakeCase(std::string_view name) {
    std::string result;
    bool mayBegin = false; // a word, with a capital letter
    for (const char character : name) {
        if (character == '-' || character == '_') {
            result += '_';
            mayBegin = false;
            continue;
        }
        if (isUpper(character) && mayBegin) {
            result += '_';
        }
        result += lower(character);
        mayBegin = !isUpper(character);
    }
    return result;
}

} // namespace

ProjectNames projectNames(const std::string& name, const std::optional<std::string>& elementClass,
                          const std::optional<std::string>& nameSpace) {
    checkName(name);
    ProjectNames names{.name = name,
                       .id = camelCase(name),
                       .elementClass = elementClass.value_or(camelCase(name)),
                       .nameSpace = nameSpace.value_or(snakeCase(name))};
    checkElementClass(names.elementClass);
    checkNamespace(names.nameSpace);
    return names;
}

} // namespace corvane::skillbench
