#include "ReferenceUpdates.hpp"

#include "resolutionMessage.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/Observer.hpp>
#include <corvane/workbench/model/Element.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <utility>

namespace corvane::workbench::host {

namespace {

template <class Call>
void guarded(std::exception_ptr& firstFailure, Call&& call) {
    try {
        call();
    } catch (...) {
        if (!firstFailure) {
            firstFailure = std::current_exception();
        }
    }
}

} // namespace

ReferenceUpdates::~ReferenceUpdates() {
    for (const Entry& entry : entries_) {
        if (entry.registration != nullptr) {
            entry.registration->updates = nullptr;
        }
    }
}

void ReferenceUpdates::collect(ReferenceProxy::Registration& registration, Key key) {
    entries_.push_back({&registration, key, resolution(*registration.reference)});
    bind(entries_.size() - 1, registration);
}

model::internal::BasicElementReference* ReferenceUpdates::reference(std::size_t index) const {
    const ReferenceProxy::Registration* registration = entries_[index].registration;
    return registration != nullptr ? registration->reference : nullptr;
}

void ReferenceUpdates::redirect(std::size_t index, const std::shared_ptr<ReferenceProxy>& proxy,
                                std::string_view suffix) {
    model::internal::BasicElementReference* target = reference(index);
    if (target == nullptr) {
        return;
    }
    const bool registersAnew = target->data().proxy() != proxy;
    target->resolve(proxy, suffix);
    if (registersAnew) {
        bind(index, proxy->registrations().back());
    }
}

void ReferenceUpdates::announce(std::span<Observer* const> observers,
                                std::exception_ptr& firstFailure) {
    // By index: what is called may make references drop out, but never adds entries.
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        if (entries_[index].key == Key::Changes) {
            for (Observer* observer : observers) {
                guarded(firstFailure, [&] {
                    if (const auto* changed = reference(index)) {
                        observer->referenceKeyChanged(*changed);
                    }
                });
            }
            guarded(firstFailure, [&] {
                if (const auto* changed = reference(index)) {
                    callSkill(
                        CurrentOperation::Kind::FollowReference,
                        [&] { changed->updatePrimaryKey(); }, *changed);
                }
            });
        }
        const auto* resolved = reference(index);
        if (resolved == nullptr || resolution(*resolved) == entries_[index].before) {
            continue;
        }
        for (Observer* observer : observers) {
            guarded(firstFailure, [&] {
                if (const auto* changed = reference(index)) {
                    observer->referenceStateChanged(*changed);
                }
            });
        }
        guarded(firstFailure, [&] {
            if (const auto* changed = reference(index)) {
                callSkill(
                    CurrentOperation::Kind::FollowReference, [&] { changed->updateState(); },
                    *changed);
            }
        });
    }
}

ReferenceUpdates::Resolution
ReferenceUpdates::resolution(const model::internal::BasicElementReference& reference) {
    Resolution result;
    if (const auto element = reference.data().element()) {
        result.target = &element->get();
    }
    result.message = resolutionMessage(reference);
    return result;
}

void ReferenceUpdates::bind(std::size_t index,
                            ReferenceProxy::Registration& registration) noexcept {
    entries_[index].registration = &registration;
    registration.updates = this;
    registration.updateIndex = index;
}

} // namespace corvane::workbench::host
