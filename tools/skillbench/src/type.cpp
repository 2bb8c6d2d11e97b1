#include "CommandLine.hpp"
#include "Failure.hpp"
#include "TextBox.hpp"
#include "commands.hpp"
#include "keystrokes.hpp"
#include "text.hpp"
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/functional.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::skillbench {

namespace {

namespace functional = workbench::bindings::functional;

void print(std::string_view key, const TextBox& box, std::ostream& out) {
    constexpr std::size_t kKeyColumn = 13;
    out << padded(onOneLine(key), kKeyColumn) << ' ' << box.picture() << "   ";
    if (box.anchor() == box.cursor()) {
        out << "cursor " << box.cursor() << '\n';
    } else {
        out << "selection " << box.anchor() << " to " << box.cursor() << '\n';
    }
}

template <class Adjuster>
void play(TextBox box, const std::vector<Keystroke>& keystrokes, const Adjuster& adjuster,
          std::ostream& out) {
    print("(start)", box, out);
    for (const Keystroke& keystroke : keystrokes) {
        if (keystroke.press(box)) {
            box.adjust(adjuster);
        }
        print(keystroke.name, box, out);
    }
}

TextBox initialBox(const std::optional<std::string>& text,
                   const std::optional<std::string>& cursor) {
    std::wstring wide = utils::string::toWide(text.value_or(""));
    std::uint64_t position = wide.size();
    if (cursor) {
        const auto number = utils::numeric::parse<std::uint64_t>(*cursor);
        if (!number || *number > wide.size()) {
            throw UsageFailure("the cursor " + inQuotes(*cursor) + " is no position from 0 to " +
                               std::to_string(wide.size()));
        }
        position = *number;
    }
    return {std::move(wide), static_cast<std::size_t>(position)};
}

} // namespace

int type(Arguments arguments, const Streams& streams) {
    std::string kind;
    std::vector<std::string> texts;
    std::optional<std::string> text;
    std::optional<std::string> cursor;
    CommandLine commandLine("skillbench type",
                            "Plays keystrokes in a text box that completes a time stamp or a UUID "
                            "while it is typed, and prints the text after each, with “|” for the "
                            "cursor or “[” and “]” around the selection. Each character is a key; "
                            "the others are " +
                                keyNames() + ".");
    commandLine.addValue("text", "TEXT", text, "the text in the box at the start");
    commandLine.addValue("cursor", "N", cursor, "where the cursor stands in it, else at its end");
    commandLine.addParameter("KIND", kind, "“timestamp” or “uuid”");
    commandLine.addParameters("KEYSTROKES", texts, "the keys to press");
    if (!commandLine.parse(arguments, streams.out)) {
        return kDone;
    }
    std::vector<Keystroke> keystrokes;
    for (const std::string& part : texts) {
        for (Keystroke& keystroke : parseKeystrokes(part)) {
            keystrokes.push_back(std::move(keystroke));
        }
    }
    const TextBox box = initialBox(text, cursor);
    if (kind == "timestamp") {
        play(box, keystrokes, functional::AdjustTimeStampText(), streams.out);
    } else if (kind == "uuid") {
        play(box, keystrokes, functional::AdjustUuidText(), streams.out);
    } else {
        throw UsageFailure("there is no text box for " + inQuotes(kind) +
                           ", but for “timestamp” and “uuid”");
    }
    return kDone;
}

} // namespace corvane::skillbench
