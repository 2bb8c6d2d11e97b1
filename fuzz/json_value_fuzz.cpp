// Reads the input as JSON. What is read must be written and read back equal, and two independent
// libraries must agree about it.
#include "../tests/json/judges.hpp"
#include "promise.hpp"
#include <corvane/workbench/json/Value.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

using namespace corvane;
using fuzz::promise;
using workbench::json::DecodingOptions;
using workbench::json::Value;
using Format = utils::json::encoder::Document::Format;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const workbench::json::test::Judgement judgement = workbench::json::test::judge(text);
    promise(judgement.isUnanimous() || judgement.isRefusedOnPurpose(),
            "the libraries agree about the text");

    const auto value = Value::fromString(text);
    const auto tolerant = Value::fromString(text, {.allowDuplicateMembers = true});
    if (!value) {
        promise(!value.error().empty(), "a refusal has a message");
        return 0;
    }
    promise(tolerant == value, "tolerance changes nothing without duplicates");
    for (const Format format : {Format::Compact, Format::Indented}) {
        promise(Value::fromString(value->toString(format)) == value,
                "what is written is read back equal");
    }
    const Value copy = *value;
    promise(copy == *value, "a copy is equal");
    return 0;
}
