#pragma once

#include <corvane/workbench/export.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/process/Event.hpp>
#include <corvane/workbench/process/EventSearchOptions.hpp>

#include <tl/expected.hpp>

#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::process {

/// A live reference to an event of an element of the model, held by a skill in a property. It
/// registers with the workbench and follows renames and moves; see BasicElementReference. Its
/// ImportReference is the plain form of a reference within a configuration that is being imported.
class CORVANE_WORKBENCH_EXPORT EventReference : public model::internal::BasicElementReference {
public:
    class ImportReference;

    /// An empty reference. Without options none is set.
    EventReference() noexcept;
    explicit EventReference(EventSearchOptions options) noexcept;
    EventReference(const model::internal::ElementReferenceData& data, EventSearchOptions options);
    /// Copies the data, as the form above does.
    EventReference(model::internal::ElementReferenceData&& data, EventSearchOptions options);
    EventReference(const EventReference& other);
    EventReference(EventReference&& other) noexcept;
    /// Takes the other's target but not its options.
    EventReference(const EventReference& other, EventSearchOptions options);
    EventReference(EventReference&& other, EventSearchOptions options) noexcept;
    /// No assignment touches the options: they say how this place looks for an event.
    EventReference& operator=(const EventReference& other);
    EventReference& operator=(EventReference&& other) noexcept;
    EventReference& operator=(const model::internal::ElementReferenceData& data);
    EventReference& operator=(model::internal::ElementReferenceData&& data);
    ~EventReference() override;

    /// Whether the reference is not empty; it need not resolve.
    explicit operator bool() const noexcept;
    /// The referenced event, looked up with `options()`, or why there is none, in words for the
    /// user.
    [[nodiscard]] tl::expected<Event, std::wstring> event() const;
    /// How the event is looked up; fixed at construction.
    [[nodiscard]] EventSearchOptions options() const noexcept { return options_; }
    /// The key as it is now.
    [[nodiscard]] std::string primaryKey() const;
    /// Writes the key as one JSON string.
    void save(utils::json::encoder::Value& value) const;
    void saveTo(utils::json::encoder::Array& array) const;
    void saveTo(utils::json::encoder::Object& object, std::string_view name) const;

private:
    EventSearchOptions options_;
};

/// A reference as plain data: never registered, freely copied, saved with its import prefix. It has
/// nothing to resolve to.
class CORVANE_WORKBENCH_EXPORT EventReference::ImportReference {
public:
    ImportReference();
    /// Copies the reference's data.
    explicit ImportReference(const EventReference& reference);
    ImportReference(const ImportReference& other);
    ImportReference(ImportReference&& other) noexcept;
    ImportReference& operator=(const ImportReference& other);
    ImportReference& operator=(ImportReference&& other) noexcept;
    ~ImportReference();

    /// A reference to an event of an element of the configuration that is being imported together
    /// with it.
    [[nodiscard]] static ImportReference makeInternalReference(std::string_view elementKey,
                                                               std::string_view memberName);

    /// Whether the reference is not empty.
    explicit operator bool() const noexcept;
    /// Writes the key as one JSON string.
    void save(utils::json::encoder::Value& value) const;
    void saveTo(utils::json::encoder::Array& array) const;
    void saveTo(utils::json::encoder::Object& object, std::string_view name) const;

private:
    explicit ImportReference(model::internal::ElementReferenceData&& data) noexcept;

    model::internal::ElementReferenceData data_;
};

} // namespace corvane::workbench::process
