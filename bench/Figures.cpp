#include "Figures.hpp"

#include <algorithm>
#include <format>
#include <iostream>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace corvane::bench {

Figures::Figures(int argc, const char* const* argv) {
    for (int argument = 1; argument < argc; ++argument) {
        if (std::string_view(argv[argument]) == "--check") {
            check_ = true;
        } else if (std::string_view(argv[argument]) == "--json") {
            json_ = true;
        } else {
            throw std::invalid_argument(
                std::format("\"{}\" is none of --check, --json", argv[argument]));
        }
    }
}

void Figures::add(std::string name, double figure, std::optional<double> bar) {
    figures_.push_back({.name = std::move(name), .figure = figure, .bar = bar});
}

int Figures::finish() const {
    json_ ? printJson() : printTable();
    return check_ && std::ranges::any_of(figures_, &Figure::failed) ? 1 : 0;
}

void Figures::printTable() const {
    std::cout << std::format("{:<58}{:>10}{:>10}\n", "", "figure", "bar");
    for (const Figure& figure : figures_) {
        std::cout << std::format("{:<58}{:>10.2f}", figure.name, figure.figure);
        if (figure.bar) {
            std::cout << std::format("{:>10.2f}  {}", *figure.bar,
                                     figure.failed() ? "FAILED" : "ok");
        }
        std::cout << '\n';
    }
}

void Figures::printJson() const {
    std::string_view separator = "[\n";
    for (const Figure& figure : figures_) {
        std::cout << std::exchange(separator, ",\n")
                  << std::format(R"(  {{"name": "{}", "figure": {})", figure.name, figure.figure);
        if (figure.bar) {
            std::cout << std::format(R"(, "bar": {}, "ok": {})", *figure.bar, !figure.failed());
        }
        std::cout << '}';
    }
    std::cout << (figures_.empty() ? "[]\n" : "\n]\n");
}

} // namespace corvane::bench
