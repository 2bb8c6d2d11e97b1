#pragma once

#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::model {

/// A live reference to an attribute of an element of the model, held by a skill in a property,
/// which propertyId() names. It registers with the workbench and follows renames and moves. Its
/// ImportReference is the plain form of a reference within a configuration that is being imported.
class CORVANE_WORKBENCH_EXPORT AttributeReference : public internal::BasicElementReference {
public:
    class ImportReference;

    /// An empty reference.
    AttributeReference() noexcept;
    /// Registers on its own with what it is to refer to; a move takes the registration over and
    /// leaves the source empty.
    /// @{
    explicit AttributeReference(const internal::ElementReferenceData& data);
    explicit AttributeReference(internal::ElementReferenceData&& data);
    AttributeReference(const AttributeReference& other);
    AttributeReference(AttributeReference&& other) noexcept;
    AttributeReference& operator=(const AttributeReference& other);
    AttributeReference& operator=(AttributeReference&& other) noexcept;
    AttributeReference& operator=(const internal::ElementReferenceData& data);
    AttributeReference& operator=(internal::ElementReferenceData&& data);
    /// @}

    ~AttributeReference() override;

    /// Whether the reference is not empty; it need not resolve.
    explicit operator bool() const noexcept;
    /// The referenced attribute, or why there is none, in words for the user.
    [[nodiscard]] tl::expected<Attribute, std::wstring> attribute() const;
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
class CORVANE_WORKBENCH_EXPORT AttributeReference::ImportReference {
public:
    ImportReference();
    /// Copies the reference's data.
    explicit ImportReference(const AttributeReference& reference);
    /// Copied and moved as plain data.
    /// @{
    ImportReference(const ImportReference& other);
    ImportReference(ImportReference&& other) noexcept;
    ImportReference& operator=(const ImportReference& other);
    ImportReference& operator=(ImportReference&& other) noexcept;
    /// @}

    ~ImportReference();

    /// A reference to an attribute of an element of the configuration that is being imported
    /// together with it.
    [[nodiscard]] static ImportReference makeInternalReference(std::string_view elementKey,
                                                               std::string_view memberName);

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
