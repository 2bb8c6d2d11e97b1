#include <corvane/workbench/host/Problem.hpp>

#include <corvane/workbench/host/text.hpp>

namespace corvane::workbench::host {

std::string toString(const Problem& problem) {
    std::string result;
    if (!problem.file.empty()) {
        result += pathText(problem.file);
        result += ':';
        if (problem.line != 0) {
            result += std::to_string(problem.line);
            result += ':';
            if (problem.column != 0) {
                result += std::to_string(problem.column);
                result += ':';
            }
        }
        result += ' ';
    }
    result += problem.severity == Problem::Severity::Error ? "error: " : "warning: ";
    result += problem.text;
    return result;
}

} // namespace corvane::workbench::host
