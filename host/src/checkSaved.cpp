#include "checkSaved.hpp"

#include "ConfigurationReader.hpp"
#include "ElementTree.hpp"
#include "LoadContext.hpp"
#include "reservedMembers.hpp"
#include <corvane/utils/io/MemoryInputStream.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/text.hpp>

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <vector>

namespace corvane::workbench::host {

namespace {

namespace decoder = utils::json::decoder;

/// Whether the workbench itself writes that member of the element.
bool isOfWorkbench(std::string_view member, const ElementNode& element) {
    return member == kNameMember || member == kUuidMember ||
           (member == kAccessControlMember && element.accessControl()) ||
           (member == kChildrenMember && element.childCount() != 0);
}

void checkNames(const ElementNode& element, const decoder::Value& value) {
    std::unordered_set<std::string_view> seen;
    auto object = value.asObject();
    for (const auto& [name, member] : object) {
        const std::string_view text = name.text();
        const bool isNew = seen.insert(text).second;
        if (isReservedMember(text) && !(isNew && isOfWorkbench(text, element))) {
            throw std::runtime_error("the element " + inQuotes(element.primaryKey()) +
                                     " saves a member " + inQuotes(text) +
                                     ", which is reserved for the workbench");
        }
        if (!isNew) {
            throw std::runtime_error("the element " + inQuotes(element.primaryKey()) +
                                     " saves two members " + inQuotes(text));
        }
    }
}

void checkChildren(const ElementNode& parent, const decoder::Value& children);

void checkElement(const ElementNode& element, const decoder::Value& value) {
    // Only then are the children known to be those that the workbench wrote.
    checkNames(element, value);
    auto object = value.asObject();
    for (const auto& [name, member] : object) {
        if (name == kChildrenMember) {
            checkChildren(element, member);
        }
    }
}

void checkChildren(const ElementNode& parent, const decoder::Value& children) {
    std::size_t index = 0;
    auto array = children.asArray();
    for (const decoder::Value& child : array) {
        auto wrapper = child.asObject();
        checkElement(parent.child(index++), (*wrapper.begin()).value);
    }
}

/// Loads all elements one after the other and keeps none.
void loadAgain(const ElementClassRegistry& classes, const decoder::Value& configuration) {
    const LoadOptions options;
    const std::filesystem::path noFile;
    LoadContext context(options);
    ElementTree tree;
    std::vector<Problem> problems;
    ConfigurationReader reader(classes, options, noFile, tree, context, problems,
                               ConfigurationReader::Elements::Discard);
    if (!reader.read(configuration)) {
        throw std::runtime_error(problems.front().text);
    }
}

} // namespace

void checkSaved(const ElementNode& root, std::string_view text,
                const ElementClassRegistry* classes) {
    utils::io::MemoryInputStream<char> stream(text);
    try {
        decoder::Document document(stream);
        auto object = document.root().asObject();
        checkChildren(root, (*object.begin()).value);
        if (classes != nullptr) {
            loadAgain(*classes, document.root());
        }
    } catch (const decoder::Exception& exception) {
        throw std::runtime_error(std::string("the configuration could not be loaded again: ") +
                                 exception.message());
    }
}

} // namespace corvane::workbench::host
