#include "LoadContext.hpp"

#include "ElementTree.hpp"
#include "ProgressReport.hpp"
#include "ReferenceProxy.hpp"
#include "findCircles.hpp"
#include "referenceData.hpp"
#include "resolutionMessage.hpp"
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <utility>

namespace corvane::workbench::host {

namespace {

namespace decoder = utils::json::decoder;

/// The problem of a reference that leads nowhere; nothing when it is empty, resolves, or is to stay
/// an import reference.
std::optional<std::string> problemText(const model::internal::BasicElementReference& reference,
                                       ImportKeys importKeys) {
    const model::internal::ElementReferenceData& data = reference.data();
    if (data.empty()) {
        return std::nullopt;
    }
    if (data.isImportReference()) {
        if (importKeys == ImportKeys::Keep) {
            return std::nullopt;
        }
        return "the key " + inQuotes(data.primaryKey()) +
               " cannot be resolved: it begins with “.import:”";
    }
    const auto message = resolutionMessage(reference);
    return message ? std::optional(utils::string::toUtf8(*message)) : std::nullopt;
}

} // namespace

LoadContext::Frame::Frame(LoadContext& context, ElementNode& owner,
                          const decoder::Location& location)
    : context_(context), owner_(owner), location_(location), outer_(context.frame_),
      first_(context.requests_.size()) {
    context.frame_ = this;
}

LoadContext::Frame::~Frame() {
    context_.frame_ = outer_;
    if (!kept_) {
        context_.requests_.erase(context_.requests_.begin() + static_cast<std::ptrdiff_t>(first_),
                                 context_.requests_.end());
    }
}

decoder::Location LoadContext::Frame::takePlace(std::string_view key) {
    const auto found = places_.lower_bound(key);
    if (found == places_.end() || found->first != key) {
        return location_;
    }
    const decoder::Location place = found->second ? found->second : location_;
    places_.erase(found);
    return place;
}

void LoadContext::keyRead(std::string_view key, const decoder::Location& location) {
    if (frame_ != nullptr) {
        frame_->places_.emplace(key, location);
    }
}

void LoadContext::resolveElementReference(ReferenceKey&& key,
                                          std::reference_wrapper<model::ElementReference> reference,
                                          std::function<void()>&& completion) {
    add(std::move(key), reference.get(), false, std::move(completion));
}

void LoadContext::resolveMemberReference(
    ReferenceKey&& key, std::reference_wrapper<model::internal::BasicElementReference> reference,
    std::function<void()>&& completion) {
    add(std::move(key), reference.get(), true, std::move(completion));
}

void LoadContext::add(ReferenceKey&& key, model::internal::BasicElementReference& reference,
                      bool isMember, std::function<void()>&& completion) {
    const decoder::Location place = frame_->takePlace(key.text());
    requests_.push_back({std::move(key).text(), &reference, isMember, &frame_->owner_, place,
                         std::move(completion), false});
}

bool LoadContext::resolveAll(const ElementTree& tree, const std::filesystem::path& file,
                             std::vector<Problem>& problems) {
    const ImportKeys importKeys =
        options_.resolveImportReferences ? ImportKeys::Resolve : ImportKeys::Keep;
    ProgressReport progress(options_.progress, LoadProgress::Stage::References, requests_.size());
    for (Request& request : requests_) {
        *request.reference = request.isMember ? memberReferenceData(tree, request.key, importKeys)
                                              : elementReferenceData(tree, request.key, importKeys);
        if (request.completion) {
            callSkill(CurrentOperation::Kind::ResolveReferences, request.completion,
                      *request.owner);
        }
        if (auto text = problemText(*request.reference, importKeys)) {
            problems.push_back({file, request.location.line(), request.location.column(),
                                Problem::Severity::Error, std::move(*text)});
        } else {
            const model::internal::ElementReferenceData& data = request.reference->data();
            request.resolved = !data.empty() && !data.isImportReference();
        }
        if (!progress.advance()) {
            return false;
        }
    }
    reportCircles(file, problems);
    return progress.finish();
}

void LoadContext::publishAll(const std::function<void(ElementNode&)>& failed) const {
    for (const Request& request : requests_) {
        try {
            request.reference->updateValue();
        } catch (...) {
            failed(*request.owner);
        }
    }
}

void LoadContext::reportCircles(const std::filesystem::path& file,
                                std::vector<Problem>& problems) const {
    std::unordered_map<const model::Element*, std::uint32_t> numbers;
    std::vector<const model::Element*> elements;
    const auto numberOf = [&](const model::Element* element) {
        const auto [entry, isNew] =
            numbers.emplace(element, static_cast<std::uint32_t>(elements.size()));
        if (isNew) {
            elements.push_back(element);
        }
        return entry->second;
    };
    std::vector<CircleEdge> edges;
    std::vector<const Request*> requests;
    edges.reserve(requests_.size());
    requests.reserve(requests_.size());
    for (const Request& request : requests_) {
        if (!request.resolved) {
            continue;
        }
        const auto target = request.reference->data().element();
        const auto warn = [&](std::string text) {
            problems.push_back({file, request.location.line(), request.location.column(),
                                Problem::Severity::Warning, std::move(text)});
        };
        if (&target->get() == request.owner) {
            warn("the element " + inQuotes(request.owner->primaryKey()) + " refers to itself");
            continue;
        }
        edges.push_back({numberOf(request.owner), numberOf(&target->get())});
        requests.push_back(&request);
    }
    for (const std::vector<std::size_t>& circle : findCircles(elements.size(), edges)) {
        constexpr std::size_t kMostNames = 5;
        std::string text = "elements refer to each other in a circle: ";
        for (std::size_t step = 0; step < std::min(circle.size(), kMostNames); ++step) {
            text += inQuotes(elements[edges[circle[step]].from]->primaryKey()) + ", ";
        }
        if (circle.size() > kMostNames) {
            text += "… (" + std::to_string(circle.size()) + " elements), ";
        }
        text += inQuotes(elements[edges[circle.front()].from]->primaryKey());
        const Request& first = *requests[circle.front()];
        problems.push_back({file, first.location.line(), first.location.column(),
                            Problem::Severity::Warning, std::move(text)});
    }
}

} // namespace corvane::workbench::host
