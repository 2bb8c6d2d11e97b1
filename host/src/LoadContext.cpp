#include "LoadContext.hpp"

#include "ElementTree.hpp"
#include "ProgressReport.hpp"
#include "ReferenceProxy.hpp"
#include "findCircles.hpp"
#include "referenceData.hpp"
#include "reservedMembers.hpp"
#include "resolutionMessage.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace corvane::workbench::host {

namespace {

namespace decoder = corvane::utils::json::decoder;

using Locations = std::unordered_map<std::string_view, std::vector<decoder::Location>>;

/// Notes the places of those strings in a value that the table asks for.
void locateStrings(const decoder::Value& value, Locations& wanted) {
    if (value.isString()) {
        if (const auto found = wanted.find(value.asString().view()); found != wanted.end()) {
            found->second.push_back(value.location());
        }
    } else if (value.isArray()) {
        auto array = value.asArray();
        for (const decoder::Value& element : array) {
            locateStrings(element, wanted);
        }
    } else if (value.isObject()) {
        auto object = value.asObject();
        for (const auto& member : object) {
            if (const auto found = wanted.find(member.name.text()); found != wanted.end()) {
                found->second.push_back(member.name.location());
            }
            locateStrings(member.value, wanted);
        }
    }
}

} // namespace

LoadContext::Frame::Frame(LoadContext& context, ElementNode& owner)
    : context_(context), owner_(owner), outer_(context.frame_), first_(context.requests_.size()) {
    context.frame_ = this;
}

LoadContext::Frame::~Frame() {
    context_.frame_ = outer_;
    if (!kept_) {
        context_.requests_.erase(context_.requests_.begin() + static_cast<std::ptrdiff_t>(first_),
                                 context_.requests_.end());
    }
}

void LoadContext::Frame::keep(const decoder::Value& object, const decoder::Location& element) {
    kept_ = true;
    if (requests_.empty()) {
        return;
    }
    Locations locations;
    for (const std::size_t index : requests_) {
        locations.try_emplace(context_.requests_[index].key);
    }
    auto walk = object.asObject();
    for (const auto& member : walk) {
        if (!isReservedMember(member.name)) {
            if (const auto found = locations.find(member.name.text()); found != locations.end()) {
                found->second.push_back(member.name.location());
            }
            locateStrings(member.value, locations);
        }
    }
    // The same key twice: the first request belongs to the first place, and so on.
    std::unordered_map<std::string_view, std::size_t> used;
    for (const std::size_t index : requests_) {
        Request& request = context_.requests_[index];
        const auto& places = locations.find(request.key)->second;
        if (places.empty()) {
            request.location = element;
        } else {
            std::size_t& next = used[request.key];
            request.location = places[std::min(next, places.size() - 1)];
            ++next;
        }
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
    frame_->requests_.push_back(requests_.size());
    requests_.push_back({std::move(key).text(), &reference, isMember, &frame_->owner_,
                         decoder::Location(), std::move(completion), false});
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
        const model::internal::ElementReferenceData& data = request.reference->data();
        if (!data.empty() && !data.isImportReference()) {
            const auto message = resolutionMessage(*request.reference);
            request.resolved = !message;
            if (message) {
                problems.push_back({file, request.location.line(), request.location.column(),
                                    Problem::Severity::Error, utils::string::toUtf8(*message)});
            }
        }
        if (!progress.advance()) {
            return false;
        }
    }
    reportCircles(file, problems);
    return progress.finish();
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
