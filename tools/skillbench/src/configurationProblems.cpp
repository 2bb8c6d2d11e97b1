#include "configurationProblems.hpp"

#include "OpenConfiguration.hpp"
#include "text.hpp"
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace corvane::skillbench {

namespace {

namespace bindings = workbench::bindings;
namespace host = workbench::host;
using workbench::model::internal::BasicElementReference;

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

std::vector<ConfigurationProblem> configurationProblems(const OpenConfiguration& configuration) {
    std::vector<ConfigurationProblem> result;
    std::unordered_set<std::string_view> said;
    for (const host::Problem& problem : configuration.loadProblems()) {
        result.push_back({problem});
        said.insert(problem.text);
    }
    if (!configuration.loaded()) {
        return result;
    }
    const auto add = [&](const host::PropertyProblem& invalid) {
        const std::string message = utils::string::toUtf8(invalid.message);
        if (said.contains(message) && isReference(invalid.property)) {
            return;
        }
        const std::string key = invalid.element->primaryKey();
        host::Problem problem;
        problem.file = configuration.file();
        problem.line = invalid.element->line();
        problem.column = invalid.element->column();
        problem.text = key + "." + invalid.path + ": " + message;
        result.push_back({std::move(problem), key, invalid.path});
    };
    const host::Workbench& workbench = configuration.workbench();
    workbench.forEachPropertyProblem(workbench.root(), add);
    std::stable_sort(result.begin(), result.end(),
                     [](const ConfigurationProblem& left, const ConfigurationProblem& right) {
                         return std::pair(left.problem.line, left.problem.column) <
                                std::pair(right.problem.line, right.problem.column);
                     });
    return result;
}

std::size_t errorCount(const std::vector<ConfigurationProblem>& problems) {
    return static_cast<std::size_t>(
        std::count_if(problems.begin(), problems.end(), [](const ConfigurationProblem& entry) {
            return entry.problem.severity == host::Problem::Severity::Error;
        }));
}

void writeJson(utils::json::encoder::Array array,
               const std::vector<ConfigurationProblem>& problems) {
    for (const ConfigurationProblem& entry : problems) {
        utils::json::encoder::Object object = array.addElement().writeObject();
        if (!entry.problem.file.empty()) {
            object.addMember("file").writeString(pathText(entry.problem.file));
        }
        if (entry.problem.line != 0) {
            object.addMember("line").writeNumber(utils::numeric::format(entry.problem.line));
        }
        if (entry.problem.column != 0) {
            object.addMember("column").writeNumber(utils::numeric::format(entry.problem.column));
        }
        object.addMember("severity")
            .writeString(entry.problem.severity == host::Problem::Severity::Error ? "error"
                                                                                  : "warning");
        object.addMember("text").writeString(entry.problem.text);
        if (!entry.element.empty()) {
            object.addMember("element").writeString(entry.element);
            object.addMember("property").writeString(entry.property);
        }
    }
}

} // namespace corvane::skillbench
