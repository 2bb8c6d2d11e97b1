// Key splitting against a plain splitting of its own, on any bytes.
#include "../tests/model/internal/naiveKeys.hpp"
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>
#include <corvane/workbench/model/internal/keys.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

namespace keys = corvane::workbench::model::internal;

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

void walk(std::string_view key) {
    auto start = key.begin();
    for (const std::string& component : corvane::tests::naiveComponents(key)) {
        const auto end = keys::parseKeyComponent(key, start);
        require(std::string_view(start, end) == component);
        start = end == key.end() ? end : end + 1;
    }
    require(start == key.end());
}

void split(std::string_view key) {
    const auto [element, member] = corvane::tests::naiveSplit(key);
    const auto views = keys::splitMemberKey(key);
    require(views.first == element && views.second == member);
    const auto strings = keys::splitMemberKey(std::string(key));
    require(strings.first == element && strings.second == member);
}

void parseImport(std::string_view text) {
    const auto key = keys::ElementReferenceData::parseImportReference(text);
    require(key.has_value() == (text.substr(0, 8) == ".import:"));
    require(!key || *key == text.substr(8));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    walk(text);
    split(text);
    parseImport(text);
    return 0;
}
