#pragma once

#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <tl/expected.hpp>

#include <functional>
#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::model {

class Element;

/// A live reference to an element of the model, held by a skill in a property, which propertyId()
/// names. It registers with the workbench and follows renames and moves. Its ImportReference is the
/// plain form of a reference within a configuration that is being imported.
class CORVANE_WORKBENCH_EXPORT ElementReference : public internal::BasicElementReference {
public:
    class ImportReference;

    /// An empty reference.
    ElementReference() noexcept;
    /// Registers on its own with what it is to refer to; a move takes the registration over and
    /// leaves the source empty.
    /// @{
    explicit ElementReference(const internal::ElementReferenceData& data);
    explicit ElementReference(internal::ElementReferenceData&& data);
    ElementReference(const ElementReference& other);
    ElementReference(ElementReference&& other) noexcept;
    ElementReference& operator=(const ElementReference& other);
    ElementReference& operator=(ElementReference&& other) noexcept;
    ElementReference& operator=(const internal::ElementReferenceData& data);
    ElementReference& operator=(internal::ElementReferenceData&& data);
    /// @}

    ~ElementReference() override;

    /// Whether the reference is not empty; it need not resolve.
    explicit operator bool() const noexcept;
    /// The referenced element, or why there is none, in words for the user.
    [[nodiscard]] tl::expected<std::reference_wrapper<Element>, std::wstring> element() const;
    /// The key as it is now.
    [[nodiscard]] std::string primaryKey() const;
    /// Writes the key as one JSON string.
    void save(utils::json::encoder::Value& value) const;
    /// Adds the key as an element, or as a member of that name.
    /// @{
    void saveTo(utils::json::encoder::Array& array) const;
    void saveTo(utils::json::encoder::Object& object, std::string_view name) const;
    /// @}
};

/// A reference as plain data: never registered, freely copied, saved with its import prefix. It has
/// nothing to resolve to.
class CORVANE_WORKBENCH_EXPORT ElementReference::ImportReference {
public:
    ImportReference();
    /// Copies the reference's data.
    explicit ImportReference(const ElementReference& reference);
    /// Copied and moved as plain data.
    /// @{
    ImportReference(const ImportReference& other);
    ImportReference(ImportReference&& other) noexcept;
    ImportReference& operator=(const ImportReference& other);
    ImportReference& operator=(ImportReference&& other) noexcept;
    /// @}

    ~ImportReference();

    /// A reference to an element of the configuration that is being imported together with it.
    [[nodiscard]] static ImportReference makeInternalReference(std::string_view elementKey);

    /// Whether the reference is not empty.
    explicit operator bool() const noexcept;
    /// Writes the key as one JSON string.
    void save(utils::json::encoder::Value& value) const;
    /// Adds the key as an element, or as a member of that name.
    /// @{
    void saveTo(utils::json::encoder::Array& array) const;
    void saveTo(utils::json::encoder::Object& object, std::string_view name) const;
    /// @}

private:
    explicit ImportReference(internal::ElementReferenceData&& data) noexcept;

    internal::ElementReferenceData data_;
};

} // namespace corvane::workbench::model
