#include "LoadContext.hpp"

#include "ElementTree.hpp"
#include "ProgressReport.hpp"
#include "ReferenceProxy.hpp"
#include "findCircles.hpp"
#include "referenceData.hpp"
#include "reservedMembers.hpp"
#include "resolutionMessage.hpp"
#include "text.hpp"

#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
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
    : _context(context), _owner(owner), _outer(context._frame), _first(context._requests.size()) {
    context._frame = this;
}

LoadContext::Frame::~Frame() {
    _context._frame = _outer;
    if (!_kept) {
        _context._requests.erase(_context._requests.begin() + static_cast<std::ptrdiff_t>(_first),
                                 _context._requests.end());
    }
}

void LoadContext::Frame::keep(const decoder::Value& object, const decoder::Location& element) {
    _kept = true;
    if (_requests.empty()) {
        return;
    }
    Locations locations;
    for (const std::size_t index : _requests) {
        locations.try_emplace(_context._requests[index].key);
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
    for (const std::size_t index : _requests) {
        Request& request = _context._requests[index];
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
    _frame->_requests.push_back(_requests.size());
    _requests.push_back({std::move(key).text(), &reference, isMember, &_frame->_owner,
                         decoder::Location(), std::move(completion), false});
}

bool LoadContext::resolveAll(const ElementTree& tree, const std::filesystem::path& file,
                             std::vector<Problem>& problems) {
    const ImportKeys importKeys =
        _options.resolveImportReferences ? ImportKeys::Resolve : ImportKeys::Keep;
    ProgressReport progress(_options.progress, LoadProgress::Stage::References, _requests.size());
    for (Request& request : _requests) {
        *request.reference = request.isMember ? memberReferenceData(tree, request.key, importKeys)
                                              : elementReferenceData(tree, request.key, importKeys);
        if (request.completion) {
            request.completion();
        }
        const model::internal::ElementReferenceData& data = request.reference->data();
        if (!data.empty() && !data.isImportReference()) {
            const auto message = resolutionMessage(*request.reference);
            request.resolved = !message;
            if (message) {
                problems.push_back({file, request.location.line(), request.location.column(),
                                    Problem::Severity::Error,
                                    corvane::utils::string::toUtf8(*message)});
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
    edges.reserve(_requests.size());
    requests.reserve(_requests.size());
    for (const Request& request : _requests) {
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
