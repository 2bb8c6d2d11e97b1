#pragma once

#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/process/Task.hpp>

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::process {

/// A live reference to a task of an element of the model, held by a skill in a property, which
/// propertyId() names. It registers with the workbench and follows renames and moves. Its
/// ImportReference is the plain form of a reference within a configuration that is being imported.
class CORVANE_WORKBENCH_EXPORT TaskReference : public model::internal::BasicElementReference {
public:
    class ImportReference;

    /// An empty reference.
    TaskReference() noexcept;
    /// Registers on its own with what it is to refer to; a move takes the registration over and
    /// leaves the source empty.
    /// @{
    explicit TaskReference(const model::internal::ElementReferenceData& data);
    explicit TaskReference(model::internal::ElementReferenceData&& data);
    TaskReference(const TaskReference& other);
    TaskReference(TaskReference&& other) noexcept;
    TaskReference& operator=(const TaskReference& other);
    TaskReference& operator=(TaskReference&& other) noexcept;
    TaskReference& operator=(const model::internal::ElementReferenceData& data);
    TaskReference& operator=(model::internal::ElementReferenceData&& data);
    /// @}

    ~TaskReference() override;

    /// Whether the reference is not empty; it need not resolve.
    explicit operator bool() const noexcept;
    /// The referenced task, or why there is none, in words for the user.
    [[nodiscard]] tl::expected<Task, std::wstring> task() const;
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
class CORVANE_WORKBENCH_EXPORT TaskReference::ImportReference {
public:
    ImportReference();
    /// Copies the reference's data.
    explicit ImportReference(const TaskReference& reference);
    /// Copied and moved as plain data.
    /// @{
    ImportReference(const ImportReference& other);
    ImportReference(ImportReference&& other) noexcept;
    ImportReference& operator=(const ImportReference& other);
    ImportReference& operator=(ImportReference&& other) noexcept;
    /// @}

    ~ImportReference();

    /// A reference to a task of an element of the configuration that is being imported together
    /// with it.
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
    explicit ImportReference(model::internal::ElementReferenceData&& data) noexcept;

    model::internal::ElementReferenceData data_;
};

} // namespace corvane::workbench::process
