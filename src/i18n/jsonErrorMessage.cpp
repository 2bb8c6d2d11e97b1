#include <corvane/workbench/i18n/jsonErrorMessage.hpp>

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/i18n/translate.hpp>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <format>
#include <limits>
#include <memory>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <system_error>

namespace corvane::workbench::i18n {

namespace {

struct LocatedError {
    std::uint64_t line;
    std::string_view text;
};

constexpr std::string_view kStart = "(line";
constexpr std::string_view kSpacesAndTabs = " \t";
constexpr std::string_view kDigits = "0123456789";

const std::regex& locationPattern() {
    static const std::regex pattern(R"re(\(line[ \t]*(\d+)\):[ \t]*(.*)$)re",
                                    std::regex::ECMAScript);
    return pattern;
}

std::size_t endOfRun(std::string_view text, std::size_t start, std::string_view characters) {
    return std::min(text.find_first_not_of(characters, start), text.size());
}

// The same number in at most as many digits as show that it is too large.
std::string_view significantDigits(std::string_view digits) {
    constexpr std::size_t kEnough = std::numeric_limits<std::uint64_t>::digits10 + 2;
    const std::size_t last = digits.empty() ? 0 : digits.size() - 1;
    return digits.substr(std::min(digits.find_first_not_of('0'), last)).substr(0, kEnough);
}

// A number that does not fit counts as 0, which is no line.
std::uint64_t lineNumber(const std::ssub_match& digits) {
    std::uint64_t number = 0;
    const char* const first = std::to_address(digits.first);
    return std::from_chars(first, first + digits.length(), number).ec == std::errc() ? number : 0;
}

// Searches the message for the pattern. Implementations of std::regex recurse for each character,
// and a message can quote a long text, so the pattern never sees the message itself but, for each
// place where it could begin, a piece of bounded length that matches exactly when the message does
// there. Nothing in the pattern matches a line terminator and its end is the end of the message:
// only the last line counts.
std::optional<LocatedError> findLocation(std::string_view message) {
    const std::size_t terminator = message.find_last_of("\n\r");
    const std::string_view line =
        terminator == std::string_view::npos ? message : message.substr(terminator + 1);

    std::size_t start = line.find(kStart);
    while (start != std::string_view::npos) {
        const std::size_t number = endOfRun(line, start + kStart.size(), kSpacesAndTabs);
        const std::size_t numberEnd = endOfRun(line, number, kDigits);
        const std::string_view digits = line.substr(number, numberEnd - number);
        const std::string_view behind = line.substr(numberEnd, std::string_view("):").size());

        const std::string piece =
            std::string(kStart).append(significantDigits(digits)).append(behind);
        std::smatch match;
        if (std::regex_search(piece, match, locationPattern())) {
            const std::size_t text = endOfRun(line, numberEnd + behind.size(), kSpacesAndTabs);
            return LocatedError{lineNumber(match[1]), line.substr(text)};
        }
        start = line.find(kStart, numberEnd);
    }
    return std::nullopt;
}

} // namespace

std::wstring jsonErrorMessage(const std::exception& error) {
    const std::string_view message = error.what();
    const std::optional<LocatedError> located = findLocation(message);
    if (!located || located->line == 0) {
        return utils::string::toWide(message);
    }
    const std::wstring text = utils::string::toWide(located->text);
    return std::vformat(translate("workbench::json", "Error on line {}: {}"),
                        std::make_wformat_args(located->line, text));
}

} // namespace corvane::workbench::i18n
