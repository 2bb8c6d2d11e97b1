#pragma once

#include <corvane/workbench/json/Value.hpp>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace corvane::workbench::json::test {

/// Random values of the document model that survive being written and read.
class RandomValue {
public:
    explicit RandomValue(std::uint32_t seed) : random_(seed) {}

    Value operator()(int depth = 4) {
        switch (below(depth == 0 ? 6 : 8)) {
        case 0:
            return text();
        case 1:
            return std::bit_cast<std::int64_t>(random_()) >> below(64);
        case 2: // A smaller one would be read back as a signed integer.
            return random_() | std::uint64_t{1} << 63U;
        case 3:
            return number();
        case 4:
            return below(2) == 0;
        case 5:
            return {};
        case 6: {
            Array array;
            for (std::uint64_t left = below(6); left > 0; --left) {
                array.append((*this)(depth - 1));
            }
            return array;
        }
        default: {
            Object object;
            for (std::uint64_t left = below(below(8) == 0 ? 40 : 6); left > 0; --left) {
                // Numbered, so that no name comes twice.
                object.append(text() + std::to_string(left), (*this)(depth - 1));
            }
            return object;
        }
        }
    }

    std::string text() {
        static constexpr const char* pieces[] = {"a",
                                                 "Z",
                                                 "\"",
                                                 "\\",
                                                 "\n",
                                                 "\b",
                                                 "\x01",
                                                 "\xc3\xa4",
                                                 "\xe2\x82\xac",
                                                 "\x7f",
                                                 "/",
                                                 " ",
                                                 "{",
                                                 "\xf0\x9f\x98\x80"};
        std::string text;
        for (std::uint64_t left = below(12); left > 0; --left) {
            text += pieces[below(std::size(pieces))];
        }
        if (below(10) == 0) {
            text += '\0';
        }
        return text;
    }

    double number() {
        switch (below(4)) {
        case 0: // Whole numbers of every size.
            return std::ldexp(static_cast<double>(below(std::uint64_t{1} << 53U)),
                              static_cast<int>(below(40))) *
                   (below(2) == 0 ? 1.0 : -1.0);
        case 1:
            return below(2) == 0 ? 0.0 : -0.0;
        case 2: // Denormals.
            return std::bit_cast<double>(random_() >> (12 + below(52)));
        default: {
            const auto any = std::bit_cast<double>(random_());
            return std::isfinite(any) ? any : std::numeric_limits<double>::lowest();
        }
        }
    }

    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

private:
    std::mt19937_64 random_;
};

} // namespace corvane::workbench::json::test
