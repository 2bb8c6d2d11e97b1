#include <corvane/workbench/host/elementName.hpp>

#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/text.hpp>

namespace corvane::workbench::host {

tl::expected<void, std::string> checkElementName(std::string_view name) {
    if (name.empty()) {
        return tl::unexpected("an element name must not be empty");
    }
    // What is malformed does not survive the way to UTF-16 and back.
    if (utils::string::toUtf8(utils::string::toWide(name)) != name) {
        return tl::unexpected("the element name " + inQuotes(name) + " is not valid UTF-8");
    }
    if (!name.starts_with('[')) {
        if (name.find('.') != std::string_view::npos) {
            return tl::unexpected("the element name " + inQuotes(name) +
                                  " contains “.” and must be enclosed in brackets");
        }
        return {};
    }
    const std::size_t closing = name.find(']');
    if (closing == std::string_view::npos) {
        return tl::unexpected("“[” without “]” in the element name " + inQuotes(name));
    }
    if (closing != name.size() - 1) {
        return tl::unexpected("closing “]” must be at the end of the element name " +
                              inQuotes(name));
    }
    if (name == "[]") {
        return tl::unexpected("an empty set of “[]” is not a valid element name");
    }
    return {};
}

} // namespace corvane::workbench::host
