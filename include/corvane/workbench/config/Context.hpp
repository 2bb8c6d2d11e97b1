#pragma once

#include <corvane/workbench/config/WithoutLocationTag.hpp>
#include <corvane/workbench/export.hpp>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::utils::json::decoder {
class Location;
class Name;
class Value;
} // namespace corvane::utils::json::decoder

namespace corvane::workbench::model {
class AttributeReference;
class ElementReference;
namespace internal {
class BasicElementReference;
}
} // namespace corvane::workbench::model

namespace corvane::workbench::process {
class EventReference;
class TaskReference;
} // namespace corvane::workbench::process

namespace corvane::workbench::config {

/// The load context: through it a skill hands over the keys that it reads from a configuration,
/// each with the reference that is to receive the result. The workbench implements it and decides
/// when a key is resolved, usually once the whole file is known.
///
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT Context {
public:
    class ReferenceKey;

    Context();
    /// The interface itself has no state to copy.
    /// @{
    Context(const Context& other);
    Context& operator=(const Context& other);
    /// @}

    virtual ~Context() = 0;

    /// Requests that the reference be filled with what the key names, and returns at once. The
    /// reference must stay at its address, neither moved nor destroyed, until the context has
    /// dealt with the request.
    /// @{
    void resolve(ReferenceKey key, std::reference_wrapper<model::ElementReference> reference);
    void resolve(ReferenceKey key, std::reference_wrapper<model::AttributeReference> reference);
    void resolve(ReferenceKey key, std::reference_wrapper<process::EventReference> reference);
    void resolve(ReferenceKey key, std::reference_wrapper<process::TaskReference> reference);
    /// @}

private:
    /// Takes a request whose whole key names an element. The completion callback may be empty;
    /// otherwise the context calls it once, after it has filled the reference.
    virtual void resolveElementReference(ReferenceKey&& key,
                                         std::reference_wrapper<model::ElementReference> reference,
                                         std::function<void()>&& completion) = 0;
    /// The same for a key whose last component names an attribute, an event or a task.
    virtual void
    resolveMemberReference(ReferenceKey&& key,
                           std::reference_wrapper<model::internal::BasicElementReference> reference,
                           std::function<void()>&& completion) = 0;

    void resolveMember(ReferenceKey&& key, model::internal::BasicElementReference& reference);
};

/// The text of a key as it stands in the configuration, an import prefix included.
class CORVANE_WORKBENCH_EXPORT Context::ReferenceKey {
public:
    /// Reads the value as a JSON string; the decoder's own error if it is none.
    explicit ReferenceKey(utils::json::decoder::Value& value);
    /// Takes the name of a member, for keys that are written as member names.
    explicit ReferenceKey(const utils::json::decoder::Name& name);
    /// Takes a text that was read before. The location says where; it is not kept.
    ReferenceKey(std::string&& text, const utils::json::decoder::Location& location);
    /// Copies a text that comes from no configuration file.
    ReferenceKey(std::string_view text, WithoutLocationTag tag);

    /// Copied and moved as the text is.
    /// @{
    ReferenceKey(const ReferenceKey& other);
    ReferenceKey(ReferenceKey&& other) noexcept;
    ReferenceKey& operator=(const ReferenceKey& other);
    ReferenceKey& operator=(ReferenceKey&& other) noexcept;
    /// @}

    ~ReferenceKey();

    /// The text; a temporary key gives it up.
    /// @{
    [[nodiscard]] const std::string& text() const& noexcept { return text_; }
    [[nodiscard]] std::string&& text() && noexcept { return std::move(text_); }
    /// @}

private:
    std::string text_;
};

} // namespace corvane::workbench::config
