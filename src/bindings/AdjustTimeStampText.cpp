#include "EditedText.hpp"
#include <corvane/workbench/bindings/functional.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvane::workbench::bindings::functional {

namespace {

using internal::EditedText;

struct SectionSyntax {
    std::wstring_view stops;
    wchar_t separator;
    std::wstring_view terminators;
};

constexpr SectionSyntax kDate{L" :+Z", L'-', L" "};
constexpr SectionSyntax kTime{L"+-Z", L':', L"+-Z"};

struct Bounds {
    std::wstring_view lower;
    std::wstring_view upper;

    [[nodiscard]] constexpr std::size_t width() const noexcept {
        return std::min(lower.size(), upper.size());
    }
};

constexpr Bounds kYear{L"0000", L"9999"};
constexpr Bounds kMonth{L"01", L"12"};
constexpr Bounds kDay{L"01", L"31"};
constexpr Bounds kHours{L"00", L"23"};
constexpr Bounds kMinutes{L"00", L"59"};
constexpr Bounds kSeconds{L"00", L"60"};
constexpr Bounds kOffsetHours{L"00", L"99"};
constexpr Bounds kOffsetMinutes{L"00", L"59"};

/// Three fields: the first and the second end at a separator, the third at the terminator.
struct Section {
    std::size_t firstSeparator;
    std::size_t secondSeparator;
    std::size_t end;
};

void unifyCharacters(std::wstring& text) noexcept {
    for (wchar_t& character : text) {
        switch (character) {
        case L',':
            character = L'.';
            break;
        case L'/':
            character = L'-';
            break;
        case L'T':
        case L't':
            character = L' ';
            break;
        case L'z':
            character = L'Z';
            break;
        default:
            break;
        }
    }
}

/// A separator typed in front of the same separator, or a zone sign typed in front of the old one,
/// takes its place.
void dropOvertypedCharacter(EditedText& text) noexcept {
    if (!text.hasCursor() || text.cursor() == 0 || text.cursor() >= text.size()) {
        return;
    }
    const auto cursor = static_cast<std::size_t>(text.cursor());
    const wchar_t before = text.at(cursor - 1);
    const wchar_t behind = text.at(cursor);
    constexpr std::wstring_view separators = L"- :.";
    constexpr std::wstring_view zones = L"+-Z";
    if ((internal::isOneOf(before, separators) && behind == before) ||
        (internal::isOneOf(before, zones) && internal::isOneOf(behind, zones))) {
        text.remove(cursor);
    }
}

std::size_t findSectionEnd(const EditedText& text, std::size_t start, const SectionSyntax& syntax) {
    std::size_t end = text.find(syntax.stops, start);
    if (end < text.size() && text.hasCursorAt(end + 1)) {
        const std::size_t later = text.find(syntax.terminators, end + 1);
        if (later < text.size()) {
            end = later;
        }
    }
    // Without a terminator the user has not typed beyond the cursor yet.
    if (!text.isOneOf(end, syntax.terminators) && text.hasCursorAfter(start)) {
        end = static_cast<std::size_t>(std::min<std::uint64_t>(end, text.cursor()));
    }
    return end;
}

bool isZoneUtc(const EditedText& text, std::size_t sectionEnd) {
    return text.hasCursorAt(sectionEnd) && text.find(L"123456789", sectionEnd) == text.size();
}

/// Finds the section that begins at `start` and inserts the separators and the terminator that it
/// lacks.
Section splitSection(EditedText& text, std::size_t start, const SectionSyntax& syntax) {
    std::size_t end = findSectionEnd(text, start, syntax);
    const auto findSeparator = [&](std::size_t from) {
        return std::min(text.view().find(syntax.separator, from), end);
    };

    std::size_t first = findSeparator(start);
    std::size_t second = end;
    const bool firstIsMissing = first == end;
    bool secondIsMissing = true;
    if (firstIsMissing) {
        if (text.hasCursorAfter(start) && text.cursor() < end) {
            first = static_cast<std::size_t>(text.cursor());
        }
    } else {
        second = findSeparator(first + 1);
        secondIsMissing = second == end;
        if (secondIsMissing && text.hasCursorAfter(first)) {
            second = static_cast<std::size_t>(std::min<std::uint64_t>(end, text.cursor()));
        }
    }

    // A missing separator is inserted even where the section was cut in front of that character.
    if (firstIsMissing) {
        text.insert(first, syntax.separator);
        ++second;
        ++end;
    }
    if (secondIsMissing) {
        text.insert(second, syntax.separator);
        ++end;
    }
    return {first, second, end};
}

void terminateDate(EditedText& text, std::size_t end) {
    if (!text.isOneOf(end, kDate.terminators)) {
        text.insert(end, L' ');
    }
}

void terminateTime(EditedText& text, std::size_t end) {
    if (!text.isOneOf(end, kTime.terminators)) {
        text.insert(end, isZoneUtc(text, end) ? L'Z' : L'+');
    }
}

/// Holds the digit in front of `cursor` to the bounds: raises it to the lowest that can stand
/// there, or refuses it. Returns the field's new end.
std::size_t checkTypedDigit(EditedText& text, std::size_t start, std::size_t end,
                            std::size_t cursor, const Bounds& bounds) noexcept {
    const std::size_t typed = cursor - 1 - start;
    bool isAtLowerBound = true;
    bool isAtUpperBound = true;
    for (std::size_t place = 0; place < typed; ++place) {
        isAtLowerBound = isAtLowerBound && text.at(start + place) <= bounds.lower[place];
        isAtUpperBound = isAtUpperBound && text.at(start + place) >= bounds.upper[place];
    }
    const wchar_t digit = text.at(cursor - 1);
    if (isAtLowerBound && digit < bounds.lower[typed]) {
        text.replace(cursor - 1, bounds.lower[typed]);
    } else if (isAtUpperBound && digit > bounds.upper[typed]) {
        text.remove(cursor - 1);
        --end;
    }
    return end;
}

/// What a repaired field leaves to the next one.
struct RepairedField {
    std::size_t end;
    /// 1 if a digit typed past the full field went to the head of the next field, else 0.
    std::size_t carried;
};

RepairedField repairField(EditedText& text, std::size_t start, std::size_t end,
                          const Bounds& bounds) {
    const std::size_t width = bounds.width();
    end = text.keepOnly(internal::isDigit, start, end);

    if (text.hasCursorAfter(start) && text.cursor() <= std::min(end, start + width)) {
        end = checkTypedDigit(text, start, end, static_cast<std::size_t>(text.cursor()), bounds);
    }

    std::size_t carried = 0;
    if (end - start == width + 1 && text.hasCursorAt(end) && end < text.size()) {
        if (text.isOneOf(end, L"Zz")) {
            text.replace(end, L'+');
        }
        text.swapWithNext(end - 1);
        text.advanceSelection();
        --end;
        carried = 1;
    }

    const std::size_t fullEnd = start + width;
    if (end < fullEnd) {
        text.insert(end, L'0', fullEnd - end);
    } else {
        text.remove(fullEnd, end - fullEnd);
    }
    return {fullEnd, carried};
}

/// Repairs the fields of the date and the time. Returns where the zone begins.
std::size_t repairDateAndTime(EditedText& text) {
    const Section date = splitSection(text, 0, kDate);
    terminateDate(text, date.end);
    const std::size_t timeStart = date.end + 1;
    const Section time = splitSection(text, timeStart, kTime);
    terminateTime(text, time.end);

    const std::size_t point = std::min(text.view().find(L'.', time.secondSeparator + 1), time.end);

    struct Field {
        std::size_t length;
        Bounds bounds;
    };
    const Field fields[] = {
        {date.firstSeparator, kYear},
        {date.secondSeparator - date.firstSeparator - 1, kMonth},
        {date.end - date.secondSeparator - 1, kDay},
        {time.firstSeparator - timeStart, kHours},
        {time.secondSeparator - time.firstSeparator - 1, kMinutes},
        {point - time.secondSeparator - 1, kSeconds},
    };
    std::size_t start = 0;
    RepairedField last{0, 0};
    for (const Field& field : fields) {
        last = repairField(text, start, start + last.carried + field.length, field.bounds);
        start = last.end + 1;
    }

    if (point == time.end) {
        return last.end;
    }
    // The point itself stays, also with nothing behind it.
    const std::size_t fractionLength = time.end - point + last.carried;
    return text.keepOnly(internal::isDigit, last.end + 1, last.end + fractionLength);
}

void repairOffset(EditedText& text, std::size_t sign) {
    const std::size_t hoursStart = sign + 1;
    std::size_t hoursEnd = text.find(L":", hoursStart);
    if (hoursEnd == text.size() && text.hasCursorAfter(sign)) {
        hoursEnd = static_cast<std::size_t>(std::min<std::uint64_t>(hoursEnd, text.cursor()));
    }
    if (!text.is(hoursEnd, L':')) {
        text.insert(hoursEnd, L':');
    }
    const RepairedField hours = repairField(text, hoursStart, hoursEnd, kOffsetHours);
    repairField(text, hours.end + 1, text.size(), kOffsetMinutes);
}

} // namespace

void AdjustTimeStampText::operator()(std::wstring& text, std::uint64_t& selectionStart,
                                     std::uint64_t& selectionEnd) const {
    if (text.empty()) {
        text = L"2001-01-01 00:00:00Z";
        return;
    }
    unifyCharacters(text);

    EditedText edited(text, selectionStart, selectionEnd);
    dropOvertypedCharacter(edited);
    const std::size_t zone = repairDateAndTime(edited);
    if (edited.is(zone, L'Z')) {
        edited.remove(zone + 1, edited.size() - zone - 1);
        edited.limitSelection(edited.size());
        return;
    }
    repairOffset(edited, zone);
}

} // namespace corvane::workbench::bindings::functional
