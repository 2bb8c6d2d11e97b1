#pragma once

// Matchers for GoogleTest, such as
//
//     EXPECT_THAT(bench.at("main.topSpeed"), HasError("The top speed must lie between 1 and
//     3000."));
//
// A failure shows the tree around what it is about. Where a matcher takes a text, it takes a
// matcher for texts as well.

#include <corvane/workbench/testing/Bench.hpp>
#include <corvane/workbench/testing/BenchElement.hpp>
#include <corvane/workbench/testing/Setting.hpp>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::workbench::testing {

namespace internal {

using TextMatcher = ::testing::Matcher<std::string>;

/// Shows the tree of something, without the break at its end: one follows in any case.
template <class Shown>
void showTree(const Shown& shown, ::testing::MatchResultListener* listener) {
    if (listener->IsInterested()) {
        const std::string tree = shown.tree();
        *listener << "in\n" << tree.substr(0, tree.find_last_not_of('\n') + 1);
    }
}

/// Matches something that a setting has.
template <class Value>
class SettingMatcher final : public ::testing::MatcherInterface<const Setting&> {
public:
    using Read = std::function<Value(const Setting&)>;

    /// The words go before the description of the inner matcher.
    SettingMatcher(std::string words, Read read, ::testing::Matcher<Value> inner)
        : words_(std::move(words)), read_(std::move(read)), inner_(std::move(inner)) {}

    bool MatchAndExplain(const Setting& setting,
                         ::testing::MatchResultListener* listener) const override {
        const bool matches = inner_.Matches(read_(setting));
        showTree(setting, listener);
        return matches;
    }
    void DescribeTo(std::ostream* to) const override {
        *to << words_;
        inner_.DescribeTo(to);
    }
    void DescribeNegationTo(std::ostream* to) const override {
        *to << words_;
        inner_.DescribeNegationTo(to);
    }

private:
    std::string words_;
    Read read_;
    ::testing::Matcher<Value> inner_;
};

template <class Value, class Read, class Inner>
::testing::Matcher<const Setting&> settingMatcher(std::string words, Read read,
                                                  const Inner& inner) {
    return ::testing::MakeMatcher(new SettingMatcher<Value>(
        std::move(words), std::move(read), ::testing::SafeMatcherCast<Value>(inner)));
}

/// Matches the number of errors of elements; explains it with the tree.
class ErrorCountMatcher {
public:
    using is_gtest_matcher = void;

    explicit ErrorCountMatcher(::testing::Matcher<std::uint64_t> inner)
        : inner_(std::move(inner)) {}

    template <class Counted>
    bool MatchAndExplain(const Counted& counted, ::testing::MatchResultListener* listener) const {
        showTree(counted, listener);
        return inner_.Matches(counted.errorCount());
    }
    void DescribeTo(std::ostream* to) const {
        *to << "has a number of errors that ";
        inner_.DescribeTo(to);
    }
    void DescribeNegationTo(std::ostream* to) const {
        *to << "has a number of errors that ";
        inner_.DescribeNegationTo(to);
    }

private:
    ::testing::Matcher<std::uint64_t> inner_;
};

/// Matches what the last edit announced.
class AnnouncedMatcher {
public:
    using is_gtest_matcher = void;

    explicit AnnouncedMatcher(std::string_view transcript) {
        constexpr std::string_view kSpace = " \n";
        for (std::size_t begin = transcript.find_first_not_of(kSpace);
             begin != std::string_view::npos;) {
            const std::size_t end = std::min(transcript.find('\n', begin), transcript.size());
            const std::string_view line = transcript.substr(begin, end - begin);
            lines_.emplace_back(line.substr(0, line.find_last_not_of(' ') + 1));
            begin = transcript.find_first_not_of(kSpace, end);
        }
    }

    template <class Announcer>
    bool MatchAndExplain(const Announcer& announcer,
                         ::testing::MatchResultListener* listener) const {
        const std::vector<std::string> announced = announcer.announced();
        if (listener->IsInterested()) {
            *listener << "which announced";
            print(announced, listener->stream(),
                  std::ranges::mismatch(announced, lines_).in1 - announced.begin());
        }
        return announced == lines_;
    }
    void DescribeTo(std::ostream* to) const {
        *to << "announced";
        print(lines_, to, -1);
    }
    void DescribeNegationTo(std::ostream* to) const {
        *to << "did not announce";
        print(lines_, to, -1);
    }

private:
    /// With a mark at the line of that index.
    static void print(const std::vector<std::string>& lines, std::ostream* to,
                      std::ptrdiff_t marked) {
        if (lines.empty()) {
            *to << " nothing";
        }
        for (const std::string& line : lines) {
            *to << (marked-- == 0 ? "\n> " : "\n  ") << line;
        }
    }

    std::vector<std::string> lines_;
};

} // namespace internal

/// The setting's value is valid. (One that is hidden is so too.)
inline ::testing::Matcher<const Setting&> IsOk() {
    return internal::settingMatcher<std::string>("has an error text that ", &Setting::error,
                                                 ::testing::IsEmpty());
}

/// The setting's value is not valid, for a reason that matches.
template <class Text>
::testing::Matcher<const Setting&> HasError(const Text& error) {
    return internal::settingMatcher<std::string>("has an error text that ", &Setting::error, error);
}

/// The user sees the setting.
inline ::testing::Matcher<const Setting&> IsVisible() {
    return internal::settingMatcher<bool>("has a visibility that ", &Setting::visible,
                                          ::testing::Eq(true));
}

/// The user does not see the setting.
inline ::testing::Matcher<const Setting&> IsHidden() {
    return ::testing::Not(IsVisible());
}

/// The user reads that text.
template <class Text>
::testing::Matcher<const Setting&> HasText(const Text& text) {
    return internal::settingMatcher<std::string>("has a text that ", &Setting::text, text);
}

/// The list has rows with these names, in this order.
template <class... Texts>
::testing::Matcher<const Setting&> HasRows(const Texts&... names) {
    return internal::settingMatcher<std::vector<std::string>>("has rows that ", &Setting::rows,
                                                              ::testing::ElementsAre(names...));
}

/// Entering the text is refused for a reason that matches, and leaves the setting as it is.
template <class Text>
::testing::Matcher<const Setting&> Refuses(std::string_view text, const Text& reason) {
    const auto tryToSet = [entered = std::string(text)](const Setting& setting) {
        const std::string before = setting.text();
        const std::string refusal = setting.trySet(entered);
        return setting.text() == before || refusal.empty()
                   ? refusal
                   : refusal + " - but the text became " + setting.text();
    };
    return internal::settingMatcher<std::string>(
        "refuses “" + std::string(text) + "” for a reason that ", tryToSet, reason);
}

/// A bench, or an element and everything below it, has that many errors.
template <class Count>
internal::ErrorCountMatcher HasErrors(const Count& count) {
    return internal::ErrorCountMatcher(::testing::SafeMatcherCast<std::uint64_t>(count));
}

/// A bench, or a setting for its own part, announced the lines of a transcript at the last edit,
/// and nothing else. Spaces at the begin and end of a line do not count, nor do empty lines: the
/// output of `skillbench edit` can be pasted. Without lines: it announced nothing.
inline internal::AnnouncedMatcher Announced(std::string_view transcript) {
    return internal::AnnouncedMatcher(transcript);
}

} // namespace corvane::workbench::testing
