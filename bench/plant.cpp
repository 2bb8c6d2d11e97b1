#include "plant.hpp"

namespace corvane::bench {

std::string plantKey(std::int64_t number) {
    return "\"plant.g" + std::to_string(number / 100) + ".p" + std::to_string(number) + '"';
}

std::string plant(std::int64_t elements, bool withReferences) {
    std::string text = R"({"children": [{"group": {"name": "plant", "children": [)";
    for (std::int64_t number = 0; number < elements; ++number) {
        if (number % 100 == 0) {
            text += number == 0 ? "" : "]}},";
            text +=
                R"({"group": {"name": "g)" + std::to_string(number / 100) + R"(", "children": [)";
        } else {
            text += ',';
        }
        text += R"({"point": {"name": "p)" + std::to_string(number) + R"(", "limit": 5, "rows": [)";
        if (withReferences) {
            text += plantKey((number + 1) % elements) + ',' + plantKey((number + 7) % elements) +
                    ',' + plantKey((number + 100) % elements);
        }
        text += "]}}";
    }
    return text + "]}}]}}]}";
}

} // namespace corvane::bench
