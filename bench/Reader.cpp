#include "Reader.hpp"

namespace corvane::bench {

namespace {

std::vector<const Reader*>& list() {
    static std::vector<const Reader*> readers;
    return readers;
}

} // namespace

Reader::Reader(const char* libraryName, Read readText) : name_(libraryName), read_(readText) {
    list().push_back(this);
}

const std::vector<const Reader*>& Reader::all() {
    return list();
}

} // namespace corvane::bench
