// A program that knows nothing but the installed package.
#include <corvane/workbench/json/Value.hpp>

#include <cstdio>

int main() {
    namespace json = corvane::workbench::json;
    const auto value = json::Value::fromString(R"({"speed": 12, "unit": "rpm"})", {});
    if (!value) {
        return 1;
    }
    const auto text = value->toString(corvane::utils::json::encoder::Document::Format::Compact);
    std::puts(text.c_str());
    return text == R"({"speed":12,"unit":"rpm"})" ? 0 : 1;
}
