#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::utils::json::encoder::detail {

/// The objects and arrays of a document that are open, each inside the one before.
///
/// A stack that is never empty: the first level, of depth 0, is the document itself.
class Levels {
public:
    struct Level {
        std::uint64_t ticket = 0;
        /// What is written when it is closed.
        char end = '\0';
    };

    Levels();
    ~Levels();

    /// How many objects and arrays are open.
    [[nodiscard]] std::size_t depth() const noexcept { return depth_; }
    [[nodiscard]] const Level& innermost() const noexcept { return levels_[depth_]; }
    /// @pre depth <= depth().
    [[nodiscard]] const Level& at(std::size_t depth) const noexcept { return levels_[depth]; }

    void push(Level level) {
        levels_[++depth_] = level;
        // For the next one: a call at the end of a function makes it save no registers.
        if (depth_ + 1 == levels_.size()) {
            grow();
        }
    }
    /// @pre depth <= depth().
    void popTo(std::size_t depth) noexcept { depth_ = depth; }

private:
    void grow();

    /// Those up to the innermost, then at least one to be used next.
    std::vector<Level> levels_;
    std::size_t depth_ = 0;
};

} // namespace corvane::utils::json::encoder::detail
