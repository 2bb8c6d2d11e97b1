// Reads the input as a duration. What is read must be written and read back equal.
#include "promise.hpp"
#include <corvane/workbench/chrono/Duration.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string_view>

using corvane::fuzz::promise;
using corvane::workbench::chrono::Duration;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::optional<Duration> duration = Duration::parse(text);
    if (!duration) {
        return 0;
    }
    promise(!text.empty() && text.front() != ' ' && text.back() != ' ', "no space at the ends");
    promise(!duration->toDisplayText().empty(), "there is a text for people");
    const std::optional<Duration> again = Duration::parse(duration->toString());
    promise(again == (duration->value() == 0.0 ? Duration() : *duration),
            "what is written is read back equal");
    try {
        const auto nanoseconds = duration->to<std::chrono::nanoseconds>();
        promise(Duration::from(nanoseconds).to<std::chrono::nanoseconds>() == nanoseconds ||
                    nanoseconds.count() > (std::int64_t{1} << 53) ||
                    nanoseconds.count() < -(std::int64_t{1} << 53),
                "a count that a double can hold goes both ways");
    } catch (const std::out_of_range&) {
        // Too long for the type.
    }
    return 0;
}
