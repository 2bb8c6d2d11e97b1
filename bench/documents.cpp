#include "documents.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string_view>

namespace corvane::bench {

namespace {

/// Appends JSON with line breaks and indentation, as such files usually have them.
class TextBuilder {
public:
    explicit TextBuilder(std::size_t indentation) : indentation_(indentation) {}

    void open(char bracket) {
        text_ += bracket;
        ++depth_;
        first_ = true;
    }
    void close(char bracket) {
        --depth_;
        if (!first_) {
            breakLine();
        }
        text_ += bracket;
        first_ = false;
    }
    void next() {
        if (!first_) {
            text_ += ',';
        }
        first_ = false;
        breakLine();
    }
    void name(std::string_view name) {
        next();
        string(name);
        text_ += indentation_ == 0 ? ":" : ": ";
    }
    void string(std::string_view text) { text_.append("\"").append(text).append("\""); }
    void raw(std::string_view text) { text_ += text; }
    void member(std::string_view memberName, std::string_view text) {
        name(memberName);
        string(text);
    }
    void rawMember(std::string_view memberName, std::string_view text) {
        name(memberName);
        raw(text);
    }

    [[nodiscard]] std::string take() && { return std::move(text_); }

private:
    void breakLine() {
        if (indentation_ != 0) {
            text_ += '\n';
            text_.append(depth_ * indentation_, ' ');
        }
    }

    std::size_t indentation_;
    std::string text_;
    std::size_t depth_ = 0;
    bool first_ = true;
};

class Source {
public:
    explicit Source(std::uint32_t seed) : random_(seed) {}

    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }
    std::string integer(std::uint64_t low, std::uint64_t high) {
        return std::to_string(low + below(high - low));
    }
    std::string boolean() { return below(3) == 0 ? "true" : "false"; }
    std::string words(std::size_t count) {
        static constexpr std::array<std::string_view, 14> words{
            "pump",
            "valve",
            "flow",
            "the",
            "station",
            "of",
            "pressure",
            "\xc3\xbc"
            "ber",
            "level",
            "\xe6\xb0\xb4\xe4\xbd\x8d\xe8\xa8\x88",
            "\xe3\x83\x9d\xe3\x83\xb3\xe3\x83\x97",
            "\xf0\x9f\x92\xa7",
            "\\n",
            "\\\"alarm\\\""};
        std::string text;
        for (; count > 0; --count) {
            text += text.empty() ? "" : " ";
            text += words[below(words.size())];
        }
        return text;
    }

private:
    std::mt19937_64 random_;
};

void addAuthor(TextBuilder& text, Source& source) {
    text.open('{');
    const std::string id = source.integer(100'000'000, 3'000'000'000);
    text.rawMember("id", id);
    text.member("id_text", id);
    text.member("name", source.words(2));
    text.member("short_name", "user" + id);
    text.member("place", source.below(2) == 0 ? "" : source.words(1));
    text.member("description", source.words(source.below(18)));
    text.rawMember("link", "null");
    text.name("parts");
    text.open('{');
    text.name("description");
    text.open('{');
    text.name("links");
    text.open('[');
    text.close(']');
    text.close('}');
    text.close('}');
    for (const std::string_view flag :
         {"protected", "located", "verified", "contributor", "translator", "translation_enabled",
          "background_tiled", "uses_background", "default_profile", "default_image", "following",
          "follow_requested", "notified"}) {
        text.rawMember(flag, source.boolean());
    }
    for (const std::string_view count :
         {"followers_count", "friends_count", "listed_count", "favourites_count", "posts_count"}) {
        text.rawMember(count, source.integer(0, 30'000));
    }
    text.member("created_at", "Sat Feb 16 13:40:25 +0000 2013");
    text.rawMember("time_offset", "null");
    text.rawMember("time_zone", "null");
    text.member("language", "en");
    for (const std::string_view colour :
         {"background_colour", "link_colour", "border_colour", "fill_colour", "text_colour"}) {
        text.member(colour, source.integer(100'000, 999'999));
    }
    for (const std::string_view image :
         {"background_image", "background_image_secure", "image", "image_secure", "banner"}) {
        text.member(image, "http://images.example/profiles/" + id + "/" +
                               source.integer(100'000'000, 999'999'999) + "_normal.jpeg");
    }
    text.close('}');
}

std::string messages() {
    Source source(1);
    TextBuilder text(2);
    text.open('{');
    text.name("messages");
    text.open('[');
    for (int number = 0; number < 180; ++number) {
        text.next();
        text.open('{');
        text.name("metadata");
        text.open('{');
        text.member("kind", "recent");
        text.member("language", "en");
        text.close('}');
        const std::string id = source.integer(505'000'000'000'000'000, 506'000'000'000'000'000);
        text.member("created_at", "Sun Aug 31 00:29:15 +0000 2014");
        text.rawMember("id", id);
        text.member("id_text", id);
        text.member("text", source.words(4 + source.below(18)));
        text.member("source", "<a href=\\\"http://clients.example/download\\\">a client</a>");
        text.rawMember("truncated", "false");
        for (const std::string_view reply : {"reply_to_message", "reply_to_message_text",
                                             "reply_to_user", "reply_to_user_text", "reply_name"}) {
            text.rawMember(reply, "null");
        }
        text.name("author");
        addAuthor(text, source);
        for (const std::string_view absent : {"geo", "coordinates", "place", "contributors"}) {
            text.rawMember(absent, "null");
        }
        text.rawMember("forward_count", source.integer(0, 2000));
        text.rawMember("favourite_count", source.integer(0, 2000));
        text.name("parts");
        text.open('{');
        for (const std::string_view part : {"tags", "symbols", "links"}) {
            text.name(part);
            text.open('[');
            text.close(']');
        }
        text.name("mentions");
        text.open('[');
        for (std::uint64_t left = source.below(3); left > 0; --left) {
            text.next();
            text.open('{');
            text.member("short_name", "user" + source.integer(1, 10'000));
            text.member("name", source.words(2));
            text.rawMember("id", source.integer(100'000'000, 3'000'000'000));
            text.name("positions");
            text.open('[');
            text.next();
            text.raw(source.integer(0, 20));
            text.next();
            text.raw(source.integer(20, 140));
            text.close(']');
            text.close('}');
        }
        text.close(']');
        text.close('}');
        text.rawMember("favoured", "false");
        text.rawMember("forwarded", "false");
        text.member("language", "ja");
        text.close('}');
    }
    text.close(']');
    text.close('}');
    return std::move(text).take();
}

std::string catalogue() {
    Source source(2);
    TextBuilder text(4);
    text.open('{');
    text.name("areas");
    text.open('{');
    for (int area = 0; area < 17; ++area) {
        text.member(std::to_string(205'705'993 + area), source.words(2));
    }
    text.close('}');
    text.name("events");
    text.open('{');
    for (int event = 0; event < 184; ++event) {
        text.name(std::to_string(138'586'341 + event * 4));
        text.open('{');
        text.rawMember("description", "null");
        text.rawMember("id", std::to_string(138'586'341 + event * 4));
        text.rawMember("logo", "null");
        text.member("name", source.words(3));
        text.name("subTopicIds");
        text.open('[');
        for (std::uint64_t left = 1 + source.below(4); left > 0; --left) {
            text.next();
            text.raw(source.integer(337'184'262, 337'184'300));
        }
        text.close(']');
        text.rawMember("subjectCode", "null");
        text.rawMember("subtitle", "null");
        text.close('}');
    }
    text.close('}');
    text.name("performances");
    text.open('[');
    for (int performance = 0; performance < 243; ++performance) {
        text.next();
        text.open('{');
        text.rawMember("eventId", source.integer(138'586'341, 339'420'851));
        text.rawMember("id", source.integer(138'586'341, 339'887'544));
        text.rawMember("logo", "null");
        text.rawMember("name", "null");
        text.name("prices");
        text.open('[');
        for (std::uint64_t left = 1 + source.below(8); left > 0; --left) {
            text.next();
            text.open('{');
            text.rawMember("amount", source.integer(10, 250) + "000");
            text.rawMember("audienceSubCategoryId", "337100890");
            text.rawMember("seatCategoryId", source.integer(338'937'235, 338'937'300));
            text.close('}');
        }
        text.close(']');
        text.name("seatCategories");
        text.open('[');
        for (std::uint64_t left = 1 + source.below(8); left > 0; --left) {
            text.next();
            text.open('{');
            text.name("areas");
            text.open('[');
            for (std::uint64_t areas = 1 + source.below(16); areas > 0; --areas) {
                text.next();
                text.open('{');
                text.rawMember("areaId", source.integer(205'705'993, 205'706'010));
                text.name("blockIds");
                text.open('[');
                text.close(']');
                text.close('}');
            }
            text.close(']');
            text.rawMember("seatCategoryId", source.integer(338'937'235, 338'937'300));
            text.close('}');
        }
        text.close(']');
        text.rawMember("seatMapImage", "null");
        text.rawMember("start", source.integer(1'372'701'600'000, 1'400'000'000'000));
        text.member("venueCode", "PLEYEL_PLEYEL");
        text.close('}');
    }
    text.close(']');
    text.close('}');
    return std::move(text).take();
}

std::string outlines() {
    Source source(3);
    TextBuilder text(0);
    text.open('{');
    text.member("type", "outlines");
    text.name("coordinates");
    text.open('[');
    for (int ring = 0; ring < 480; ++ring) {
        text.next();
        text.open('[');
        double x = -60.0 - static_cast<double>(source.below(80'000)) / 1000.0;
        double y = 42.0 + static_cast<double>(source.below(40'000)) / 1000.0;
        for (std::uint64_t left = 20 + source.below(190); left > 0; --left) {
            text.next();
            text.open('[');
            for (double* const coordinate : {&x, &y}) {
                *coordinate += (static_cast<double>(source.below(20'001)) - 10'000.0) / 1e6;
                // More digits than the shortest form needs, as computed coordinates have them.
                std::array<char, 40> digits{};
                const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                               *coordinate, std::chars_format::fixed, 15);
                text.next();
                text.raw({digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
            }
            text.close(']');
        }
        text.close(']');
    }
    text.close(']');
    text.close('}');
    return std::move(text).take();
}

Document documentFromFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path);
    }
    return {std::filesystem::path(path).stem().string(),
            std::string(std::istreambuf_iterator<char>(file), {})};
}

/// Strings of about 180 bytes, each of which begins at another place of the text.
std::string strings(std::string_view text) {
    std::string line;
    while (line.size() < 180) {
        line += text;
    }
    TextBuilder builder(0);
    builder.open('[');
    for (int number = 0; number < 1000; ++number) {
        builder.next();
        builder.string(std::to_string(number % 13) + line);
    }
    builder.close(']');
    return std::move(builder).take();
}

} // namespace

std::vector<Document> documentsFrom(const std::vector<std::string>& files) {
    if (files.empty()) {
        return {{"messages", messages()}, {"catalogue", catalogue()}, {"outlines", outlines()}};
    }
    std::vector<Document> documents;
    std::ranges::transform(files, std::back_inserter(documents), documentFromFile);
    return documents;
}

std::vector<Document> textDocuments() {
    return {
        {"Japanese", strings("\xE7\xAC\xAC\xE4\xB8\x80\xE3\x83\x9D\xE3\x83\xB3\xE3\x83\x97\xE5\xA0"
                             "\xB4\xE3\x81\xAE\xE6\xB0\xB4\xE4\xBD\x8D\xE3\x80\x81")},
        {"Greek", strings("\xCE\xB1\xCE\xBD\xCF\x84\xCE\xBB\xCE\xB9\xCE\xBF\xCF\x83\xCF\x84\xCE\xAC"
                          "\xCF\x83\xCE\xB9\xCE\xBF ")},
        {"German", strings("F\xC3\xBCllstandsmessger\xC3\xA4t der Pumpstation ")},
        {"emoji", strings("\xF0\x9F\x92\xA7\xF0\x9F\x94\xA7\xF0\x9F\x9A\xB0")},
    };
}

Document smallDocument() {
    return {"small", R"({"name":"pump 3","enabled":true,"interval":"250ms",)"
                     R"("limits":[0,12.5,100],"address":{"unit":7,"line":2}})"};
}

} // namespace corvane::bench
