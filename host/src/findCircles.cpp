#include "findCircles.hpp"

#include <algorithm>
#include <limits>

namespace corvane::workbench::host {

namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// The edges of each node, in the order of the edges.
class Adjacency {
public:
    Adjacency(std::size_t nodeCount, std::span<const CircleEdge> edges)
        : begin_(nodeCount + 1, 0), edges_(edges.size()) {
        for (const CircleEdge& edge : edges) {
            ++begin_[edge.from + 1];
        }
        for (std::size_t node = 0; node < nodeCount; ++node) {
            begin_[node + 1] += begin_[node];
        }
        std::vector<std::size_t> next(begin_.begin(), begin_.end() - 1);
        for (std::size_t index = 0; index < edges.size(); ++index) {
            edges_[next[edges[index].from]++] = index;
        }
    }

    [[nodiscard]] std::span<const std::size_t> of(std::uint32_t node) const {
        return std::span(edges_).subspan(begin_[node], begin_[node + 1] - begin_[node]);
    }

private:
    std::vector<std::size_t> begin_;
    std::vector<std::size_t> edges_;
};

/// Tarjan's algorithm with a stack of its own: numbers the groups and gives each node its group.
std::vector<std::uint32_t> findGroups(std::size_t nodeCount, std::span<const CircleEdge> edges,
                                      const Adjacency& adjacency) {
    struct Visit {
        std::uint32_t node;
        std::size_t nextEdge;
    };
    std::vector<std::uint32_t> order(nodeCount, kNone);
    std::vector<std::uint32_t> lowest(nodeCount, kNone);
    std::vector<std::uint32_t> group(nodeCount, kNone);
    std::vector<std::uint32_t> open;
    std::vector<Visit> path;
    std::uint32_t visited = 0;
    std::uint32_t groups = 0;
    const auto enter = [&](std::uint32_t node) {
        order[node] = lowest[node] = visited++;
        open.push_back(node);
        path.push_back({node, 0});
    };
    for (std::uint32_t start = 0; start < nodeCount; ++start) {
        if (order[start] != kNone) {
            continue;
        }
        enter(start);
        while (!path.empty()) {
            const std::uint32_t node = path.back().node;
            const auto outgoing = adjacency.of(node);
            if (path.back().nextEdge < outgoing.size()) {
                const std::uint32_t to = edges[outgoing[path.back().nextEdge++]].to;
                if (order[to] == kNone) {
                    enter(to);
                } else if (group[to] == kNone) {
                    lowest[node] = std::min(lowest[node], order[to]);
                }
                continue;
            }
            path.pop_back();
            if (!path.empty()) {
                lowest[path.back().node] = std::min(lowest[path.back().node], lowest[node]);
            }
            if (lowest[node] == order[node]) {
                std::uint32_t member = kNone;
                do {
                    member = open.back();
                    open.pop_back();
                    group[member] = groups;
                } while (member != node);
                ++groups;
            }
        }
    }
    return group;
}

/// The shortest way, as edges, back to where the first edge begins, inside one group.
std::vector<std::size_t> closeCircle(std::size_t first, std::span<const CircleEdge> edges,
                                     const Adjacency& adjacency,
                                     const std::vector<std::uint32_t>& group,
                                     std::vector<std::size_t>& arrivedBy) {
    constexpr std::size_t kNoEdge = std::numeric_limits<std::size_t>::max();
    const std::uint32_t goal = edges[first].from;
    std::vector<std::uint32_t> queue{edges[first].to};
    arrivedBy[edges[first].to] = first;
    for (std::size_t next = 0; arrivedBy[goal] == kNoEdge; ++next) {
        for (const std::size_t index : adjacency.of(queue[next])) {
            const std::uint32_t to = edges[index].to;
            if (group[to] == group[goal] && arrivedBy[to] == kNoEdge) {
                arrivedBy[to] = index;
                queue.push_back(to);
            }
        }
    }
    std::vector<std::size_t> circle;
    for (std::size_t index = arrivedBy[goal]; index != first;
         index = arrivedBy[edges[index].from]) {
        circle.push_back(index);
    }
    circle.push_back(first);
    std::reverse(circle.begin(), circle.end());
    return circle;
}

} // namespace

std::vector<std::vector<std::size_t>> findCircles(std::size_t nodeCount,
                                                  std::span<const CircleEdge> edges) {
    const Adjacency adjacency(nodeCount, edges);
    const std::vector<std::uint32_t> group = findGroups(nodeCount, edges, adjacency);
    std::vector<bool> reported(nodeCount, false);
    std::vector<std::size_t> arrivedBy(nodeCount, std::numeric_limits<std::size_t>::max());
    std::vector<std::vector<std::size_t>> circles;
    for (std::size_t index = 0; index < edges.size(); ++index) {
        const auto& [from, to] = edges[index];
        if (from != to && group[from] == group[to] && !reported[group[from]]) {
            reported[group[from]] = true;
            circles.push_back(closeCircle(index, edges, adjacency, group, arrivedBy));
        }
    }
    return circles;
}

} // namespace corvane::workbench::host
