#pragma once

#include <corvane/workbench/export.hpp>

#include <tl/expected.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Array;
class Object;
class Value;
} // namespace corvane::utils::json::encoder

namespace corvane::workbench::model {
class Attribute;
class Element;
} // namespace corvane::workbench::model

namespace corvane::workbench::process {
class Event;
struct EventSearchOptions;
class Task;
} // namespace corvane::workbench::process

namespace corvane::workbench::model::internal {

class AbstractCrossReferenceProxy;

/// Describes a reference to an element, or to an attribute, event or task of an element: the
/// deepest part of its key that exists, as a proxy, and the rest as text. A value without
/// registration; the key is computed from the proxy whenever it is asked for, so that it follows
/// renames.
class CORVANE_WORKBENCH_EXPORT ElementReferenceData {
public:
    /// An empty reference.
    ElementReferenceData() noexcept;
    /// A reference to the element that `suffix` names below the proxy's element. The suffix is
    /// empty for the proxy's element itself; otherwise it begins with ".", except below the
    /// invisible root.
    ElementReferenceData(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy,
                         std::string&& suffix);
    /// The same for the member of that name, if there is one.
    ElementReferenceData(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy,
                         std::string&& suffix, std::optional<std::string>&& memberName);

    ElementReferenceData(const ElementReferenceData& other);
    ElementReferenceData(ElementReferenceData&& other) noexcept;
    ElementReferenceData& operator=(const ElementReferenceData& other);
    ElementReferenceData& operator=(ElementReferenceData&& other) noexcept;
    ~ElementReferenceData();

    /// A reference that is bound to no element of the model but holds its key as text, as it comes
    /// from an imported configuration. It saves with the import prefix ".import:".
    [[nodiscard]] static ElementReferenceData makeImportReference(std::string_view key);
    [[nodiscard]] static ElementReferenceData makeImportReference(std::string_view key,
                                                                  std::string_view memberName);
    /// The key behind the import prefix, as a view into `text`; nothing if the text does not begin
    /// with that prefix.
    [[nodiscard]] static std::optional<std::string_view>
    parseImportReference(std::string_view text) noexcept;

    [[nodiscard]] const std::shared_ptr<AbstractCrossReferenceProxy>& proxy() const noexcept {
        return proxy_;
    }
    [[nodiscard]] const std::string& suffix() const noexcept { return suffix_; }
    [[nodiscard]] const std::optional<std::string>& memberName() const noexcept {
        return memberName_;
    }
    void setProxy(const std::shared_ptr<AbstractCrossReferenceProxy>& proxy) noexcept;
    void setSuffix(std::string&& suffix) noexcept;
    void setMemberName(std::optional<std::string>&& memberName) noexcept;

    /// Whether there is neither a proxy nor a member name.
    [[nodiscard]] bool empty() const noexcept;
    [[nodiscard]] bool isImportReference() const;

    /// The referenced element, or why there is none, in words for the user. A key that runs below a
    /// custom element resolves to the custom element: its children are not tracked.
    [[nodiscard]] tl::expected<std::reference_wrapper<Element>, std::wstring> element() const;
    /// The referenced attribute of the element, or why there is none.
    [[nodiscard]] tl::expected<Attribute, std::wstring> attribute() const;
    /// The referenced event, looked up with the given options, or why there is none.
    [[nodiscard]] tl::expected<process::Event, std::wstring>
    event(process::EventSearchOptions options) const;
    /// The referenced task, or why there is none.
    [[nodiscard]] tl::expected<process::Task, std::wstring> task() const;

    /// The key as it is now, without an import prefix; empty without a proxy.
    [[nodiscard]] std::string primaryKey() const;
    /// Writes the key as one JSON string; an empty string for an empty reference.
    void save(utils::json::encoder::Value& value) const;
    void saveTo(utils::json::encoder::Array& array) const;
    void saveTo(utils::json::encoder::Object& object, std::string_view name) const;

private:
    class ImportReferenceProxy;

    static const std::shared_ptr<AbstractCrossReferenceProxy>& importProxy();

    std::shared_ptr<AbstractCrossReferenceProxy> proxy_;
    std::string suffix_;
    std::optional<std::string> memberName_;
};

} // namespace corvane::workbench::model::internal
