// Decodes any text. What is refused must be refused with a place in the text; what is accepted
// must be found at its place and must survive being encoded and decoded again.
#include "promise.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/io/OutputStream.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace {

namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;
using corvane::fuzz::promise;

class TextStream : public corvane::utils::io::OutputStream<char> {
public:
    [[nodiscard]] std::string description() const override { return "text"; }

    std::string text;

private:
    void flushBuffer() override {
        text.append(bufferBegin(), bufferPosition());
        setBuffer(buffer_.data(), buffer_.data(), buffer_.data() + buffer_.size());
    }

    std::array<char, 64> buffer_{};
};

/// The character at a place of the text, found the slow way.
char characterAt(std::string_view text, const decoder::Location& location) {
    for (std::uint64_t line = 1; line != location.line(); ++line) {
        const std::size_t end = text.find('\n');
        promise(end != std::string_view::npos, "the line exists");
        text.remove_prefix(end + 1);
    }
    promise(location.column() != 0 && location.column() <= text.size(), "the column exists");
    return text[location.column() - 1];
}

void copyNumber(const decoder::Value& from, encoder::Value& to) {
    std::visit(
        [&to](auto number) {
            std::string text(corvane::utils::numeric::format(number).view());
            if constexpr (std::is_floating_point_v<decltype(number)>) {
                if (text.find_first_not_of("-0123456789") == std::string::npos) {
                    text += ".0"; // so that it stays a double
                }
            }
            to.writeNumber(text);
        },
        from.asNumber());
}

/// Writes a value anew. Places are checked for as long as there is a text to look at.
void copy(const decoder::Value& from, encoder::Value to, std::string_view text) {
    std::string_view first = "-0123456789";
    if (from.isObject()) {
        first = "{";
        auto members = from.asObject();
        auto object = to.writeObject();
        std::size_t count = 0;
        for (const auto [name, value] : members) {
            promise(text.empty() || characterAt(text, name.location()) == '"',
                    "a name is where it says");
            copy(value, object.addMember(name), text);
            ++count;
        }
        promise(count == members.memberCount(), "the members are counted");
    } else if (from.isArray()) {
        first = "[";
        auto elements = from.asArray();
        auto array = to.writeArray();
        std::size_t count = 0;
        for (const auto& value : elements) {
            copy(value, array.addElement(), text);
            ++count;
        }
        promise(count == elements.elementCount(), "the elements are counted");
    } else if (from.isString()) {
        first = "\"";
        to.writeString(from.asString().view());
    } else if (from.isBool()) {
        first = from.asBool() ? "t" : "f";
        to.writeBool(from.asBool());
    } else if (from.isNull()) {
        first = "n";
        to.writeNull();
    } else {
        copyNumber(from, to);
    }
    promise(text.empty() || first.find(characterAt(text, from.location())) != first.npos,
            "a value is where it says");
}

/// The text decoded and encoded, or nothing when it is refused.
std::optional<std::string> copied(std::string_view text, bool checksPlaces,
                                  encoder::Document::Format format) {
    try {
        corvane::utils::io::MemoryInputStream<char> input(text);
        decoder::Document document(input);
        document.finish();
        TextStream output;
        encoder::Document writer(output, format);
        copy(document.root(), writer.root(), checksPlaces ? text : std::string_view());
        writer.close();
        return output.text;
    } catch (const decoder::Exception& error) {
        promise(static_cast<bool>(error.location()), "an error has a place");
        const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
        promise(error.location().line() <= static_cast<std::uint64_t>(lines),
                "an error is on a line of the text");
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    using Format = encoder::Document::Format;
    // Finding places the slow way takes quadratic time.
    if (const auto compact = copied(text, size <= 4096, Format::Compact)) {
        const auto indented = copied(*compact, false, Format::Indented);
        promise(indented.has_value(), "what is written compactly can be read");
        const auto again = copied(*indented, false, Format::Compact);
        promise(again.has_value(), "what is written indented can be read");
        promise(*again == *compact, "writing and reading changes nothing");
    }
    return 0;
}
