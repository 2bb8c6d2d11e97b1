#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::bench {

/// Times several ways of doing the same thing, in turns of some milliseconds, so that whatever else
/// the machine does disturbs all of them alike. Counts the processor time of this process.
class SideBySide {
public:
    /// Does the thing that many times.
    using Way = std::function<void(std::size_t times)>;

    void add(std::string name, Way way);

    /// Runs every way in turn, in many rounds.
    void run();

    /// The median time of one repetition, in nanoseconds, after run().
    [[nodiscard]] double nanoseconds(std::string_view name) const;

    /// The median of what the first way took in a round, divided by what the second one took in it.
    [[nodiscard]] double ratio(std::string_view name, std::string_view other) const;

private:
    struct Contender {
        std::string name;
        Way way;
        std::size_t times = 1;
        std::vector<double> rounds; // nanoseconds for one repetition
    };

    [[nodiscard]] const Contender& find(std::string_view name) const;

    std::vector<Contender> contenders_;
};

} // namespace corvane::bench
