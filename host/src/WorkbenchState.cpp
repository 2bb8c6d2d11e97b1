#include "WorkbenchState.hpp"

#include "ConfigurationReader.hpp"
#include "LoadContext.hpp"
#include "ProgressReport.hpp"
#include "treeRules.hpp"
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/Observer.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/model/internal/keys.hpp>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

namespace corvane::workbench::host {

using model::internal::BasicElementReference;

namespace {

/// Whether the text continues with that component, and what stands behind it.
std::optional<std::string_view> behindComponent(std::string_view suffix, bool belowRoot,
                                                std::string_view component) {
    if (!belowRoot) {
        if (!suffix.starts_with('.')) {
            return std::nullopt;
        }
        suffix.remove_prefix(1);
    }
    const auto end = model::internal::parseKeyComponent(suffix, suffix.begin());
    if (std::string_view(suffix.begin(), end) != component) {
        return std::nullopt;
    }
    return std::string_view(end, suffix.end());
}

} // namespace

Result<void> Workbench::State::addSkills(
    std::span<const std::reference_wrapper<const skill::Skill::Class>> added,
    const std::filesystem::path& library) {
    const std::size_t skillCount = skills.size();
    const std::size_t classCount = classes.all().size();
    std::string skillId;
    try {
        for (const skill::Skill::Class& skillClass : added) {
            const bool known = std::any_of(skills.begin(), skills.end(), [&](const auto& loaded) {
                return &loaded->skillClass() == &skillClass;
            });
            if (known) {
                continue;
            }
            skillId = callSkill(
                CurrentOperation::Kind::OpenLibrary, [&] { return std::string(skillClass.id()); },
                pathText(library));
            const auto first = static_cast<std::ptrdiff_t>(classes.all().size());
            auto instance = callSkill(
                CurrentOperation::Kind::RegisterClasses,
                [&] {
                    auto created = skillClass.createSkill();
                    if (!created) {
                        throw std::runtime_error("it makes no instance of itself");
                    }
                    skillClass.registerElementClasses(classes);
                    return created;
                },
                skillId);
            skills.push_back(std::make_unique<LoadedSkill>(
                skillClass, std::move(instance),
                std::vector(classes.all().begin() + first, classes.all().end()), library));
        }
        return {};
    } catch (const std::exception& exception) {
        skills.resize(skillCount);
        classes.truncate(classCount);
        std::string text = "the skill " + inQuotes(skillId);
        if (!library.empty()) {
            text += " in " + inQuotes(pathText(library));
        }
        return refuse(text + " cannot be used: " + exception.what());
    }
}

LoadResult Workbench::State::load(utils::io::InputStream<char>& stream,
                                  const std::filesystem::path& file, const LoadOptions& options) {
    LoadResult result;
    // References that reach for missing top-level elements register with the root that stays.
    const std::shared_ptr<ReferenceProxy> rootProxy = ElementTree::proxy(tree.root());
    ElementTree staging;
    staging.shareRootProxy(rootProxy);
    if (read(stream, file, options, staging, result.problems)) {
        replaceTree(staging);
        result.loaded = true;
    }
    std::stable_sort(result.problems.begin(), result.problems.end(),
                     [](const Problem& left, const Problem& right) {
                         return std::pair(left.line, left.column) <
                                std::pair(right.line, right.column);
                     });
    return result;
}

bool Workbench::State::read(utils::io::InputStream<char>& stream, const std::filesystem::path& file,
                            const LoadOptions& options, ElementTree& staging,
                            std::vector<Problem>& problems) {
    const auto giveUp = [&](const std::string& text) {
        problems.push_back({file, 0, 0, Problem::Severity::Error, text});
        return false;
    };
    try {
        LoadContext context(options);
        {
            utils::json::decoder::Document document(stream);
            document.finish();
            ConfigurationReader reader(classes, options, file, staging, context, problems);
            if (!reader.read(document.root())) {
                return false;
            }
        }
        if (!context.resolveAll(staging, file, problems)) {
            return giveUp("the load was given up");
        }
        bool failed = false;
        const auto cannotDescribe = [&](ElementNode& node) {
            failed = true;
            try {
                throw;
            } catch (const std::exception& exception) {
                problems.push_back({file, node.line(), node.column(), Problem::Severity::Error,
                                    "the element " + inQuotes(node.primaryKey()) +
                                        " cannot describe its properties: " + exception.what()});
            }
        };
        context.publishAll(cannotDescribe);
        ProgressReport progress(options.progress, LoadProgress::Stage::Properties,
                                staging.elementCount());
        bool goOn = true;
        ElementTree::linkProperties(staging.root(), cannotDescribe,
                                    [&] { goOn = progress.advance(); });
        if (failed && !options.keepGoing) {
            return false;
        }
        if (!goOn || !progress.finish()) {
            return giveUp("the load was given up");
        }
        return true;
    } catch (const std::system_error& error) {
        // Its text names the file.
        problems.push_back({{}, 0, 0, Problem::Severity::Error, error.what()});
    } catch (const std::exception& exception) {
        problems.push_back(problemOf(exception, file));
    }
    return false;
}

void Workbench::State::replaceTree(ElementTree& staging) {
    Edit edit(*this);
    edit.tellObservers([](Observer& observer) { observer.configurationUnloading(); });
    // Those of the elements that end drop out; the others find their targets by their keys.
    collectBelow(tree.root(), ReferenceUpdates::Key::Stays, edit.references);

    tree.swapContents(staging);
    constexpr bindings::PropertyContainer::SetEnclosingPropertyContainerOptions kUncounted{
        .reservedFlag = false, .keepNewContainerCount = true, .keepOldContainerCount = true};
    for (std::size_t index = 0; index < staging.root().childCount(); ++index) {
        staging.root().child(index).properties().resetEnclosingPropertyContainer(kUncounted);
    }
    for (std::size_t index = 0; index < tree.root().childCount(); ++index) {
        tree.root().child(index).properties().setEnclosingPropertyContainer(
            tree.root().properties(), kUncounted);
    }
    staging.clear();
    edit.guarded([&] { tree.root().properties().recount(); });

    for (std::size_t index = 0; index < edit.references.size(); ++index) {
        if (const BasicElementReference* reference = edit.references.reference(index)) {
            const std::string key =
                reference->data().proxy()->primaryKey() + reference->data().suffix();
            const ElementTree::Place place = tree.findDeepest(key);
            edit.references.redirect(index, ElementTree::proxy(*place.node), place.rest);
        }
    }
    edit.tellObservers([](Observer& observer) { observer.configurationLoaded(); });
    edit.announceReferences();
    edit.finish();
}

void Workbench::State::collectBelow(ElementNode& top, ReferenceUpdates::Key key,
                                    ReferenceUpdates& updates) {
    ElementTree::walk(top, [&](ElementNode& node) {
        if (const auto proxy = ElementTree::existingProxy(node)) {
            for (ReferenceProxy::Registration& registration : proxy->registrations()) {
                updates.collect(registration, key);
            }
        }
    });
}

void Workbench::State::collectConcerned(ElementNode& parent, std::string_view childName,
                                        ReferenceUpdates& updates) {
    const auto proxy = ElementTree::existingProxy(parent);
    if (!proxy) {
        return;
    }
    for (ReferenceProxy::Registration& registration : proxy->registrations()) {
        const model::internal::ElementReferenceData& data = registration.reference->data();
        const bool concerned =
            data.suffix().empty()
                ? data.memberName() == childName
                : behindComponent(data.suffix(), parent.isInvisibleRoot(), childName).has_value();
        if (concerned && registration.updates == nullptr) {
            updates.collect(registration, ReferenceUpdates::Key::Stays);
        }
    }
}

void Workbench::State::resolveWaiting(ElementNode& child, ReferenceUpdates& updates,
                                      std::size_t first) {
    ElementNode& parent = *child.parent();
    const auto parentProxy = ElementTree::existingProxy(parent);
    for (std::size_t index = first; index < updates.size(); ++index) {
        const BasicElementReference* reference = updates.reference(index);
        if (reference == nullptr || reference->data().proxy() != parentProxy ||
            reference->data().suffix().empty()) {
            continue;
        }
        const std::string suffix = reference->data().suffix();
        if (behindComponent(suffix, parent.isInvisibleRoot(), child.name())) {
            const ElementTree::Place place = ElementTree::findDeepestBelow(parent, suffix);
            updates.redirect(index, ElementTree::proxy(*place.node), place.rest);
        }
    }
}

void Workbench::State::membersPublished(ElementNode& node) {
    std::exception_ptr firstFailure;
    const auto guarded = [&](auto&& call) {
        try {
            call();
        } catch (...) {
            if (!firstFailure) {
                firstFailure = std::current_exception();
            }
        }
    };
    const std::vector<Observer*> told = observers;
    for (Observer* observer : told) {
        guarded([&] { observer->elementMembersChanged(node); });
    }
    if (const auto proxy = ElementTree::existingProxy(node)) {
        // The references of an edit under way are told in their turn.
        if (editing_) {
            changedMembers_.push_back(proxy);
        } else {
            guarded([&] { membersChanged(proxy); });
        }
    }
    if (firstFailure) {
        std::rethrow_exception(firstFailure);
    }
}

void Workbench::State::membersChanged(const std::shared_ptr<ReferenceProxy>& proxy) {
    if (!proxy) {
        return;
    }
    // What the members were before is not known, so every reference to one looks again.
    ReferenceUpdates updates;
    for (ReferenceProxy::Registration& registration : proxy->registrations()) {
        const auto& data = registration.reference->data();
        if (data.suffix().empty() && data.memberName() && registration.updates == nullptr) {
            updates.collect(registration, ReferenceUpdates::Key::Stays);
        }
    }
    std::exception_ptr firstFailure;
    for (std::size_t index = 0; index < updates.size(); ++index) {
        try {
            if (const BasicElementReference* reference = updates.reference(index)) {
                callSkill(
                    CurrentOperation::Kind::FollowReference, [&] { reference->updateState(); },
                    *reference);
            }
        } catch (...) {
            firstFailure = firstFailure ? firstFailure : std::current_exception();
        }
    }
    if (firstFailure) {
        std::rethrow_exception(firstFailure);
    }
}

} // namespace corvane::workbench::host
