// Two independent JSON libraries judge documents that were damaged at random. They must accept
// and refuse the same documents as we do and find the same values in them. Known differences:
//
// - A byte order mark: both skip it, we refuse it.
// - A null character: nlohmann-json takes it for the end of the text.
// - An integer above 64 bits: simdjson refuses it, with one of two errors; we and nlohmann-json
//   give a double.
// - A number so small that only zero is left of it: both give zero, we refuse it.
// - "-0": both give the integer 0, we give a double; zeros are compared as one value.
//
// Duplicate members are no difference, for nlohmann-json is asked for its events and simdjson's
// objects keep them. Depth is none either: no document here is nested deeply.
#include "utils/json/decoder/ParsedText.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace {

using corvane::tests::decoderError;
using corvane::tests::ParsedText;
using corvane::utils::json::decoder::Value;

/// Writes down the values of a document, in one notation for all libraries.
class Record {
public:
    void begin(char bracket) { text_ += bracket; }
    void end(char bracket) { text_ += bracket; }
    void name(std::string_view name) {
        string(name);
        text_ += ':';
    }
    void string(std::string_view text) {
        text_.append("s").append(std::to_string(text.size())).append("\"").append(text);
    }
    template <class Integer>
    void integer(Integer number) {
        text_.append(number == 0 ? "zero" : "i" + std::to_string(number)).append(" ");
    }
    void real(double number) {
        text_
            .append(number == 0 ? "zero"
                                : "d" + std::to_string(std::bit_cast<std::uint64_t>(number)))
            .append(" ");
    }
    void boolean(bool value) { text_ += value ? 'T' : 'F'; }
    void null() { text_ += 'N'; }

    [[nodiscard]] const std::string& text() const { return text_; }

private:
    std::string text_;
};

void record(const Value& value, Record& to) {
    if (value.isObject()) {
        to.begin('{');
        auto object = value.asObject();
        for (const auto [name, member] : object) {
            to.name(name);
            record(member, to);
        }
        to.end('}');
    } else if (value.isArray()) {
        to.begin('[');
        auto array = value.asArray();
        for (const Value& element : array) {
            record(element, to);
        }
        to.end(']');
    } else if (value.isString()) {
        to.string(value.asString().view());
    } else if (value.isBool()) {
        to.boolean(value.asBool());
    } else if (value.isNull()) {
        to.null();
    } else {
        const auto number = value.asNumber();
        if (const auto* const integer = std::get_if<std::int64_t>(&number)) {
            to.integer(*integer);
        } else if (const auto* const natural = std::get_if<std::uint64_t>(&number)) {
            to.integer(*natural);
        } else {
            to.real(std::get<double>(number));
        }
    }
}

struct Verdict {
    /// Nothing when the document was refused.
    std::optional<std::string> record;
    std::string error;
};

Verdict ours(const std::string& text) {
    Verdict verdict;
    verdict.error = decoderError([&] {
        ParsedText parsed(text);
        parsed.finish();
        Record written;
        record(parsed.root(), written);
        verdict.record = written.text();
    });
    return verdict;
}

/// Takes the events of nlohmann-json.
class Events {
public:
    bool null() {
        record.null();
        return true;
    }
    bool boolean(bool value) {
        record.boolean(value);
        return true;
    }
    bool number_integer(std::int64_t number) {
        record.integer(number);
        return true;
    }
    bool number_unsigned(std::uint64_t number) {
        record.integer(number);
        return true;
    }
    bool number_float(double number, const std::string&) {
        record.real(number);
        return true;
    }
    bool string(const std::string& text) {
        record.string(text);
        return true;
    }
    bool binary(const std::vector<std::uint8_t>&) { return false; }
    bool start_object(std::size_t) {
        record.begin('{');
        return true;
    }
    bool key(const std::string& name) {
        record.name(name);
        return true;
    }
    bool end_object() {
        record.end('}');
        return true;
    }
    bool start_array(std::size_t) {
        record.begin('[');
        return true;
    }
    bool end_array() {
        record.end(']');
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const std::exception&) { return false; }

    Record record;
};

std::optional<std::string> nlohmannRecord(const std::string& text) {
    Events events;
    if (!nlohmann::json::sax_parse(text, &events)) {
        return std::nullopt;
    }
    return events.record.text();
}

void record(const simdjson::dom::element& value, Record& to) {
    switch (value.type()) {
    case simdjson::dom::element_type::OBJECT:
        to.begin('{');
        for (const auto& [name, member] : simdjson::dom::object(value)) {
            to.name(name);
            record(member, to);
        }
        return to.end('}');
    case simdjson::dom::element_type::ARRAY:
        to.begin('[');
        for (const auto element : simdjson::dom::array(value)) {
            record(element, to);
        }
        return to.end(']');
    case simdjson::dom::element_type::STRING:
        return to.string(std::string_view(value));
    case simdjson::dom::element_type::INT64:
        return to.integer(std::int64_t(value));
    case simdjson::dom::element_type::UINT64:
        return to.integer(std::uint64_t(value));
    case simdjson::dom::element_type::DOUBLE:
        return to.real(double(value));
    case simdjson::dom::element_type::BOOL:
        return to.boolean(bool(value));
    default:
        return to.null();
    }
}

struct SimdjsonVerdict {
    std::optional<std::string> record;
    simdjson::error_code error = simdjson::SUCCESS;
};

SimdjsonVerdict simdjsonVerdict(simdjson::dom::parser& parser, const std::string& text) {
    SimdjsonVerdict verdict;
    simdjson::dom::element root;
    verdict.error = parser.parse(text.data(), text.size(), true).get(root);
    if (verdict.error == simdjson::SUCCESS) {
        Record written;
        record(root, written);
        verdict.record = written.text();
    }
    return verdict;
}

constexpr std::array<std::string_view, 7> kDocuments{
    R"({"name":"pump","UUID":"0b1e","limits":[{"low":-1.5,"high":2.25e3},{"low":0,"high":7}]})",
    R"([1,-2,3.25,0.5e-3,1E+7,-0,9007199254740993,9223372036854775808,18446744073709551615])",
    R"(["","a\n\t\"\\\/\b\f\r","\u00e9\u20ac\ud83d\ude00","äöü€😀","plain text without escapes"])",
    "{\n  \"a\" : [ true , false , null ] ,\r\n\t\"b\" : { } , \"c\" : [ ]\n}\n",
    R"({"a":1,"a":2,"":{"x":{"y":{"z":[[[[]]],[{}]]}}}})",
    R"("only a string \u0041 with a run that is longer than sixteen bytes")",
    R"(-123456789.0123456789e-12)",
};

/// What is put in: the parts that a grammar has, and bytes that belong to none.
constexpr std::array<std::string_view, 44> kPieces{"{",       "}",
                                                   "[",       "]",
                                                   ",",       ":",
                                                   "\"",      "\\",
                                                   "0",       "1",
                                                   "9",       "-",
                                                   "+",       ".",
                                                   "e",       "E",
                                                   " ",       "\n",
                                                   "\t",      "\v",
                                                   "true",    "false",
                                                   "null",    "tru",
                                                   "\\u",     "\\ud83d",
                                                   "\\ude00", "\\n",
                                                   "/",       "'",
                                                   "\"a\":1", ",1",
                                                   "[]",      "{}",
                                                   "1e5",     "1e400",
                                                   "-0",      "\xC3",
                                                   "\xA4",    "\xF0\x9F",
                                                   "\xFF",    "\xE2\x82\xAC",
                                                   "\x7F",    "99999999999999999999"};

class Damage {
public:
    explicit Damage(std::uint32_t seed) : random_(seed) {}

    [[nodiscard]] std::string document() {
        std::string text(kDocuments[below(kDocuments.size())]);
        for (std::size_t count = below(4); count != 0; --count) {
            damage(text);
        }
        return text;
    }

private:
    void damage(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = std::min<std::size_t>(below(6), text.size() - place);
        switch (below(6)) {
        case 0:
            text.erase(place, length);
            break;
        case 1:
            text.insert(place, kPieces[below(kPieces.size())]);
            break;
        case 2:
            text.replace(place, length, kPieces[below(kPieces.size())]);
            break;
        case 3:
            text.insert(place, text.substr(below(text.size() + 1), below(20)));
            break;
        case 4:
            if (place != text.size()) {
                text[place] = static_cast<char>(below(256));
            }
            break;
        default:
            text.resize(place);
        }
    }

    [[nodiscard]] std::size_t below(std::size_t bound) { return random_() % bound; }

    std::mt19937 random_;
};

/// Whether somewhere there are so many digits that an integer may not fit 64 bits.
[[nodiscard]] bool hasLongDigits(std::string_view text) {
    int run = 0;
    return std::any_of(text.begin(), text.end(), [&run](char character) {
        run = character >= '0' && character <= '9' ? run + 1 : 0;
        return run == 19;
    });
}

[[nodiscard]] bool isTooSmallForUs(const Verdict& verdict) {
    return verdict.error.ends_with("the number is outside the range of a double");
}

TEST(JsonDecoder, AgreesWithTwoOtherLibrariesOnDamagedDocuments) {
    constexpr int kRounds = 30000;
    Damage damage(20240506);
    simdjson::dom::parser parser;
    int accepted = 0;
    int refused = 0;
    int excused = 0;
    for (int round = 0; round != kRounds; ++round) {
        const std::string text = damage.document();
        if (text.starts_with("\xEF\xBB\xBF")) {
            continue;
        }
        const Verdict verdict = ours(text);
        ++(verdict.record ? accepted : refused);
        if (text.find('\0') == std::string::npos) {
            const auto nlohmann = nlohmannRecord(text);
            if (nlohmann != verdict.record && isTooSmallForUs(verdict)) {
                ++excused;
            } else {
                ASSERT_EQ(nlohmann, verdict.record) << text << '\n' << verdict.error;
            }
        }
        const SimdjsonVerdict simdjson = simdjsonVerdict(parser, text);
        const bool refusesBigInteger =
            simdjson.error == simdjson::BIGINT_ERROR ||
            (simdjson.error == simdjson::NUMBER_ERROR && hasLongDigits(text));
        if (simdjson.record != verdict.record && (isTooSmallForUs(verdict) || refusesBigInteger)) {
            ++excused;
        } else {
            ASSERT_EQ(simdjson.record, verdict.record) << text << '\n'
                                                       << verdict.error << '\n'
                                                       << simdjson::error_message(simdjson.error);
        }
    }
    // The documents must put all three to the test.
    EXPECT_GT(accepted, kRounds / 5);
    EXPECT_GT(refused, kRounds / 5);
    EXPECT_LT(excused, kRounds / 50);
}

} // namespace
