// The layers of the project: a file includes only files of lower layers and of its own, and in the
// layers whose areas are independent of each other only files of its own area.

#include "IncludeGraph.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

using corvane::tests::includedNames;
using corvane::tests::IncludeGraph;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Place {
    int layer;
    std::string area;
};

bool startsWithOneOf(const std::string& text, std::initializer_list<std::string_view> prefixes) {
    for (const auto prefix : prefixes) {
        if (text.starts_with(prefix)) {
            return true;
        }
    }
    return false;
}

// Where a file of the tree stands; nothing for one that this table does not know.
std::optional<Place> placeOf(const std::string& file) {
    if (file.starts_with("platform/")) {
        return Place{1, "utils"};
    }
    if (file.starts_with("kit/")) {
        return Place{5, "kit"};
    }
    if (file.starts_with("host/")) {
        return Place{5, "host"};
    }
    if (file.starts_with("testing/")) {
        return Place{6, "testing"};
    }
    if (startsWithOneOf(file, {"tools/", "examples/"})) {
        return Place{7, "tools"};
    }
    std::string name = file;
    for (const std::string prefix : {"include/corvane/workbench/", "src/"}) {
        if (name.starts_with(prefix)) {
            name = name.substr(prefix.size());
            break;
        }
    }
    if (name == "export.hpp") {
        return Place{1, "export"};
    }
    const std::string area = name.substr(0, name.find('/'));
    if (area == "i18n" || area == "data" || area == "io") {
        return Place{2, area};
    }
    if (area == "bindings" || area == "json" || area == "chrono") {
        return Place{3, area};
    }
    if (startsWithOneOf(name, {"process/Event.", "process/Task.", "model/ElementCategory.",
                               "model/Attribute."})) {
        return Place{3, "descriptors"};
    }
    if (area == "model" || area == "process" || area == "config" || area == "skill") {
        return Place{4, "elements"};
    }
    return std::nullopt;
}

const IncludeGraph& graph() {
    static const IncludeGraph instance(
        CORVANE_SOURCE_DIR,
        {"platform", "include", "src", "kit", "host", "testing", "tools", "examples"},
        {"include", "platform/corvane-utils/include", "kit/include", "host/include",
         "testing/include"});
    return instance;
}

TEST(Layers, TheReaderOfIncludesFindsBothFormsAndNothingElse) {
    EXPECT_THAT(includedNames("#include <a/b.hpp>\n  #  include \"c.hpp\" // why\n// #include "
                              "<no.hpp>\n#define include\nint x;\n"),
                ElementsAre("a/b.hpp", "c.hpp"));
}

TEST(Layers, EveryFileHasItsLayer) {
    for (const auto& [file, targets] : graph().edges()) {
        EXPECT_TRUE(placeOf(file)) << file << " stands in no known folder";
    }
}

TEST(Layers, TheGraphHasFilesAndIncludes) {
    std::size_t count = 0;
    for (const auto& [file, targets] : graph().edges()) {
        count += targets.size();
    }
    EXPECT_GT(graph().edges().size(), 80U);
    EXPECT_GT(count, 200U);
}

TEST(Layers, AFileIncludesOnlyItsOwnLayerAndThoseBelow) {
    for (const auto& [file, targets] : graph().edges()) {
        const auto from = placeOf(file);
        for (const auto& target : targets) {
            const auto to = placeOf(target);
            if (from && to) {
                EXPECT_LE(to->layer, from->layer) << file << " includes " << target;
            }
        }
    }
}

TEST(Layers, TheAreasOfALayerDoNotKnowEachOther) {
    for (const auto& [file, targets] : graph().edges()) {
        const auto from = placeOf(file);
        for (const auto& target : targets) {
            const auto to = placeOf(target);
            if (from && to && from->layer == to->layer) {
                EXPECT_EQ(to->area, from->area) << file << " includes " << target;
            }
        }
    }
}

TEST(Layers, NoHeaderIncludesItselfInACircle) {
    EXPECT_THAT(graph().findCircle(), IsEmpty());
}

} // namespace
