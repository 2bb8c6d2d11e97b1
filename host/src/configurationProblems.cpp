#include <corvane/workbench/host/configurationProblems.hpp>

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/Workbench.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace corvane::workbench::host {

namespace {

using model::internal::BasicElementReference;

/// Whether the property is a reference that the load tried to resolve.
bool isReference(const bindings::PropertyHandle& property) {
    bool result = false;
    const auto look = [&](bindings::CrossReferenceController& candidate) {
        const auto* reference = dynamic_cast<const BasicElementReference*>(&candidate);
        result =
            result || (reference != nullptr && reference->propertyId() == property.property() &&
                       !reference->data().empty() && !reference->data().isImportReference());
    };
    property.controller().forEachCrossReference(look,
                                                {.recursive = false, .includeInvisible = true});
    return result;
}

} // namespace

std::vector<ConfigurationProblem> configurationProblems(const Workbench& workbench,
                                                        const LoadResult& loaded,
                                                        const std::filesystem::path& file) {
    std::vector<ConfigurationProblem> result;
    std::unordered_set<std::string_view> said;
    for (const Problem& problem : loaded.problems) {
        result.push_back({problem});
        said.insert(problem.text);
    }
    if (!loaded) {
        return result;
    }
    const auto add = [&](const PropertyProblem& invalid) {
        const std::string message = utils::string::toUtf8(invalid.message);
        if (said.contains(message) && isReference(invalid.property)) {
            return;
        }
        const std::string key = invalid.element->primaryKey();
        Problem problem;
        problem.file = file;
        problem.line = invalid.element->line();
        problem.column = invalid.element->column();
        problem.text = key + "." + invalid.path + ": " + message;
        result.push_back({std::move(problem), key, invalid.path});
    };
    workbench.forEachPropertyProblem(workbench.root(), add);
    std::stable_sort(result.begin(), result.end(),
                     [](const ConfigurationProblem& left, const ConfigurationProblem& right) {
                         return std::pair(left.problem.line, left.problem.column) <
                                std::pair(right.problem.line, right.problem.column);
                     });
    return result;
}

} // namespace corvane::workbench::host
