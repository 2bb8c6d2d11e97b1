#pragma once

#include "ProgressReport.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/host/ElementClassRegistry.hpp>
#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace corvane::workbench::host {

class ElementNode;
class ElementTree;
class LoadContext;

/// Builds the elements of a configuration in one pass over its JSON text. The workbench's own
/// members are taken out by a filter, so that the skill element sees only what is its own, and
/// children are built on the way.
class ConfigurationReader {
public:
    enum class Elements {
        Keep,
        /// Each one ends when it has been read, so that nothing is left in the tree: for trying
        /// whether a text that has been saved can be loaded. What skills throw names its element.
        Discard
    };

    ConfigurationReader(const ElementClassRegistry& classes, const LoadOptions& options,
                        const std::filesystem::path& file, ElementTree& tree, LoadContext& context,
                        std::vector<Problem>& problems, Elements elements = Elements::Keep);

    /// Fills the tree from the root value. False when the load has ended with a problem.
    [[nodiscard]] bool read(const utils::json::decoder::Value& root);

private:
    struct Fault;
    struct GivenUp;
    class ElementMembers;

    void readRoot(const utils::json::decoder::Value& root);
    void readChildren(ElementNode& parent, const utils::json::decoder::Value& children);
    void readChild(ElementNode& parent, const utils::json::decoder::Value& child);
    void readElement(ElementNode& parent, const utils::json::decoder::Name& classId,
                     const utils::json::decoder::Value& value);
    /// Turns the exception being handled into a problem and ends the load unless it goes on.
    void reportCurrentException(const utils::json::decoder::Location& fallback);

    const ElementClassRegistry& classes_;
    const LoadOptions& options_;
    const std::filesystem::path& file_;
    ElementTree& tree_;
    LoadContext& context_;
    std::vector<Problem>& problems_;
    Elements elements_;
    ProgressReport progress_;
    bool givenUp_ = false;
};

/// A problem in a file from a caught exception: located where the exception says, else at the
/// fallback.
[[nodiscard]] Problem problemOf(const std::exception& exception, const std::filesystem::path& file,
                                const utils::json::decoder::Location& fallback = {});

} // namespace corvane::workbench::host
