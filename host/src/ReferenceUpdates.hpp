#pragma once

#include "ReferenceProxy.hpp"

#include <cstddef>
#include <exception>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::model {
class Element;
}

namespace corvane::workbench::host {

class Observer;

/// The references that one edit concerns: collected before the edit, redirected by it, and told
/// about it afterwards, each at most once and only of what changed. A reference that ends
/// meanwhile, or that somebody else points elsewhere, drops out.
class ReferenceUpdates {
public:
    enum class Key { Stays, Changes };

    ReferenceUpdates() = default;
    ReferenceUpdates(const ReferenceUpdates&) = delete;
    ReferenceUpdates& operator=(const ReferenceUpdates&) = delete;
    ~ReferenceUpdates();

    /// Takes in a reference as it resolves now, and says whether the edit changes its key. It must
    /// not be part of other updates.
    void collect(ReferenceProxy::Registration& registration, Key key);
    [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }
    /// Null for one that has dropped out.
    [[nodiscard]] model::internal::BasicElementReference* reference(std::size_t index) const;
    /// Points a reference at another proxy; it stays part of the updates.
    void redirect(std::size_t index, const std::shared_ptr<ReferenceProxy>& proxy,
                  std::string_view suffix);

    /// Tells observers and references, in the order of collection. Stores the first exception
    /// unless one is stored already, and goes on.
    void announce(std::span<Observer* const> observers, std::exception_ptr& firstFailure);

    /// Called by the proxy when a registration ends.
    void forget(std::size_t index) noexcept { entries_[index].registration = nullptr; }

private:
    /// What a reference leads to. The message is empty when it resolves.
    struct Resolution {
        const model::Element* target = nullptr;
        std::optional<std::wstring> message;
        friend bool operator==(const Resolution&, const Resolution&) = default;
    };
    struct Entry {
        ReferenceProxy::Registration* registration;
        Key key;
        Resolution before;
    };

    [[nodiscard]] static Resolution
    resolution(const model::internal::BasicElementReference& reference);
    void bind(std::size_t index, ReferenceProxy::Registration& registration) noexcept;

    std::vector<Entry> entries_;
};

} // namespace corvane::workbench::host
