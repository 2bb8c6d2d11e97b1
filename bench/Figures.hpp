#pragma once

#include <optional>
#include <string>
#include <vector>

namespace corvane::bench {

/// The figures that a benchmark has measured, each with the bar that it must not exceed, if any.
class Figures {
public:
    /// Reads what main() was given: `--check` has finish() report failures, `--json` has it print
    /// the figures as JSON. Throws std::invalid_argument for anything else.
    Figures(int argc, const char* const* argv);

    void add(std::string name, double figure, std::optional<double> bar = std::nullopt);

    /// Prints the table and returns the program's exit code: 1 when a figure to be checked exceeds
    /// its bar.
    [[nodiscard]] int finish() const;

private:
    struct Figure {
        std::string name;
        double figure;
        std::optional<double> bar;

        [[nodiscard]] bool failed() const { return bar && !(figure <= *bar); }
    };

    void printTable() const;
    void printJson() const;

    bool check_ = false;
    bool json_ = false;
    std::vector<Figure> figures_;
};

} // namespace corvane::bench
