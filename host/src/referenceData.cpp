#include "referenceData.hpp"

#include "ElementTree.hpp"
#include "ReferenceProxy.hpp"
#include <corvane/workbench/model/internal/keys.hpp>

#include <optional>
#include <string>
#include <utility>

namespace corvane::workbench::host {

namespace {

model::internal::ElementReferenceData resolveKey(const ElementTree& tree,
                                                 std::string_view elementKey,
                                                 std::optional<std::string> memberName) {
    const ElementTree::Place place = tree.findDeepest(elementKey);
    return {ElementTree::proxy(*place.node), std::string(place.rest), std::move(memberName)};
}

/// Whether a key that came with the import prefix stays an import reference. A key that begins with
/// the prefix itself does in any case: on its own it would be read as another import reference.
bool staysImported(std::string_view importedKey, ImportKeys importKeys) {
    return importKeys == ImportKeys::Keep ||
           model::internal::ElementReferenceData::parseImportReference(importedKey).has_value();
}

} // namespace

model::internal::ElementReferenceData
elementReferenceData(const ElementTree& tree, std::string_view key, ImportKeys importKeys) {
    using model::internal::ElementReferenceData;
    if (const auto imported = ElementReferenceData::parseImportReference(key)) {
        if (staysImported(*imported, importKeys)) {
            return ElementReferenceData::makeImportReference(*imported);
        }
        key = *imported;
    }
    return key.empty() ? ElementReferenceData() : resolveKey(tree, key, std::nullopt);
}

model::internal::ElementReferenceData
memberReferenceData(const ElementTree& tree, std::string_view key, ImportKeys importKeys) {
    using model::internal::ElementReferenceData;
    const auto imported = ElementReferenceData::parseImportReference(key);
    const auto [elementKey, memberName] = model::internal::splitMemberKey(imported.value_or(key));
    if (imported && staysImported(*imported, importKeys)) {
        return memberName ? ElementReferenceData::makeImportReference(elementKey, *memberName)
                          : ElementReferenceData::makeImportReference(elementKey);
    }
    if (elementKey.empty() && !memberName) {
        return {};
    }
    return resolveKey(tree, elementKey,
                      memberName ? std::optional<std::string>(*memberName) : std::nullopt);
}

} // namespace corvane::workbench::host
