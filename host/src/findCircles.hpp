#pragma once

// Circles in a directed graph.

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace corvane::workbench::host {

struct CircleEdge {
    std::uint32_t from;
    std::uint32_t to;
};

/// One circle, as the indices of its edges in order, for each group of nodes (numbered from 0) that
/// can all reach each other. A circle begins with the first edge inside its group; edges from a
/// node to itself are ignored. Takes linear time and does not recurse.
[[nodiscard]] std::vector<std::vector<std::size_t>> findCircles(std::size_t nodeCount,
                                                                std::span<const CircleEdge> edges);

} // namespace corvane::workbench::host
