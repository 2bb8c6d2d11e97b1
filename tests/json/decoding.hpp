#pragma once

// Opens a decoder document over a text for the length of one call.

#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Value.hpp>

#include <gtest/gtest.h>

#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::workbench::json::test {

/// Calls `use` with the root value of the text.
template <class Use>
void withRoot(std::string_view text, const Use& use) {
    utils::io::MemoryInputStream<char> stream(text);
    utils::json::decoder::Document document(stream);
    use(document.root());
}

struct LocatedError {
    std::string text;
    std::uint64_t line;
    std::uint64_t column;

    friend bool operator==(const LocatedError&, const LocatedError&) = default;
    friend void PrintTo(const LocatedError& error, std::ostream* out) {
        *out << error.text << " at " << error.line << ":" << error.column;
    }
};

/// The decoder's located exception of the given standard kind that `act` throws.
template <class Kind, class Act>
std::optional<LocatedError> locatedErrorOf(const Act& act) {
    try {
        act();
    } catch (const utils::json::decoder::Exception& error) {
        const auto* const standard = dynamic_cast<const Kind*>(&error);
        EXPECT_NE(standard, nullptr) << "the exception is of another kind";
        if (standard == nullptr) {
            return std::nullopt;
        }
        return LocatedError{standard->what(), error.location().line(), error.location().column()};
    }
    ADD_FAILURE() << "no exception";
    return std::nullopt;
}

} // namespace corvane::workbench::json::test
