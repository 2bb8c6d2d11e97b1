#include "configurationProblems.hpp"

#include "OpenConfiguration.hpp"
#include "text.hpp"
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>

#include <algorithm>

namespace corvane::skillbench {

namespace host = workbench::host;

std::vector<ConfigurationProblem> configurationProblems(const OpenConfiguration& configuration) {
    return host::configurationProblems(configuration.workbench(), configuration.result(),
                                       configuration.file());
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
