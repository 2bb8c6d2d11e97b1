#pragma once

#include <corvane/workbench/export.hpp>

#include <tl/expected.hpp>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace corvane::utils::json::encoder {
class Value;
}

namespace corvane::workbench::model {
class Element;
}

namespace corvane::workbench::model::internal {

class BasicElementReference;

/// What the workbench keeps for a referenced element: it tells references where they point and
/// knows every reference that is registered with it. The workbench implements one per referenced
/// element; references share its ownership. Used on the model's thread.
///
/// The order of the virtual operations is fixed.
class CORVANE_WORKBENCH_EXPORT AbstractCrossReferenceProxy {
public:
    /// The registration of one reference. The proxy owns the record, keeps it at its address from
    /// `attach` to `detach` and may derive from it; the reference keeps the back-pointer at its own
    /// current address.
    struct Attachment {
        BasicElementReference* reference = nullptr;
    };

    AbstractCrossReferenceProxy();
    AbstractCrossReferenceProxy(const AbstractCrossReferenceProxy& other);
    AbstractCrossReferenceProxy& operator=(const AbstractCrossReferenceProxy& other);
    virtual ~AbstractCrossReferenceProxy() = 0;

    /// The element that the proxy stands for, or a message for the user why there is none.
    [[nodiscard]] virtual tl::expected<std::reference_wrapper<Element>, std::wstring>
    element() const = 0;
    /// How many references are registered, for the workbench's own use.
    [[nodiscard]] virtual std::size_t referenceCount() const = 0;
    /// Registers the reference and returns its record, with the back-pointer set; null when the
    /// proxy keeps no registrations. The reference may still be under construction: only its
    /// address and its data may be used. When it throws, the reference is not registered.
    [[nodiscard]] virtual Attachment* attach(BasicElementReference& reference) = 0;
    /// Ends a registration. The token is what `attach` returned, null included. The reference
    /// still holds the proxy and must not be changed from here.
    virtual void detach(Attachment* token) noexcept = 0;
    /// The primary key of the proxy's element, as it is now.
    [[nodiscard]] virtual std::string primaryKey() const = 0;
    /// Writes the key of a reference as one JSON string: the element's key, the suffix below it,
    /// and the member name.
    virtual void save(utils::json::encoder::Value& value, std::string_view suffix,
                      std::optional<std::string_view> memberName) const = 0;

    /// Writes prefix, key and, behind a ".", the member name as one JSON string.
    static void writeKey(utils::json::encoder::Value& value, std::string_view prefix,
                         std::string_view key, std::optional<std::string_view> memberName);
};

} // namespace corvane::workbench::model::internal
