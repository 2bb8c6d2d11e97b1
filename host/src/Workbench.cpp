#include <corvane/workbench/host/Workbench.hpp>

#include "ConfigurationReader.hpp"
#include "ProgressInputStream.hpp"
#include "WorkbenchState.hpp"
#include "forEachPropertyProblem.hpp"
#include "ownerOf.hpp"
#include "referenceData.hpp"
#include "treeRules.hpp"
#include "writeConfiguration.hpp"
#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/io/FileOutputStream.hpp>
#include <corvane/workbench/host/SkillLibrary.hpp>
#include <corvane/workbench/host/elementName.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>

#include <algorithm>
#include <system_error>
#include <utility>

namespace corvane::workbench::host {

namespace {

using model::internal::BasicElementReference;

/// Deeper elements would not fit a file, which nests three levels for each and 512 at most; the
/// difference is left to the settings of the elements.
constexpr std::size_t kMaximumDepth = 160;

constexpr std::string_view kNestedEdit =
    "the tree cannot be edited while another edit is being announced";

tl::unexpected<Problem> refuseNested() {
    return refuse(std::string(kNestedEdit));
}

std::string tooDeep() {
    return "an element cannot be more than " + std::to_string(kMaximumDepth) +
           " levels below the root: a configuration file could not hold it";
}

std::string noSuchElement(std::string_view key) {
    return "there is no element " + inQuotes(key);
}

std::size_t height(const ElementNode& node) {
    std::size_t result = 0;
    for (std::size_t index = 0; index < node.childCount(); ++index) {
        result = std::max(result, height(node.child(index)) + 1);
    }
    return result;
}

/// Nothing when a child of the parent may get that name, else why not.
tl::expected<void, std::string> checkNewName(const ElementNode& parent, std::string_view name) {
    if (auto valid = checkElementName(name); !valid) {
        return valid;
    }
    if (parent.findChild(name) != nullptr) {
        return tl::unexpected(nameTaken(parent, name));
    }
    return {};
}

/// The name, with a number behind it when a child of the parent has it.
std::string freeName(const ElementNode& parent, std::string name) {
    const bool bracketed = name.starts_with('[') && name.ends_with(']');
    const std::string begin = bracketed ? name.substr(0, name.size() - 1) : name;
    for (std::size_t number = 2; parent.findChild(name) != nullptr; ++number) {
        name = begin + " " + std::to_string(number) + (bracketed ? "]" : "");
    }
    return name;
}

} // namespace

Workbench::Workbench() : state_(std::make_unique<State>()) {}
Workbench::~Workbench() = default;

Result<void> Workbench::loadSkills(const std::filesystem::path& library) {
    auto opened = SkillLibrary::open(library);
    if (!opened) {
        return tl::unexpected(std::move(opened).error());
    }
    return state_->addSkills(opened->skillClasses(), opened->path());
}

Result<void> Workbench::addSkill(const skill::Skill::Class& skillClass) {
    const std::reference_wrapper<const skill::Skill::Class> added[] = {skillClass};
    return state_->addSkills(added, {});
}

std::span<const std::unique_ptr<LoadedSkill>> Workbench::skills() const noexcept {
    return state_->skills;
}

const ElementClassRegistry& Workbench::elementClasses() const noexcept {
    return state_->classes;
}

LoadResult Workbench::loadConfiguration(const std::filesystem::path& file,
                                        const LoadOptions& options) {
    if (state_->editing()) {
        return {false, {refuseNested().value()}};
    }
    try {
        utils::io::FileInputStream stream(file);
        if (!options.progress) {
            return loadConfiguration(stream, file, options);
        }
        std::error_code error;
        const auto size = std::filesystem::file_size(file, error);
        ProgressInputStream reported(stream, options.progress, error ? 0 : size);
        return loadConfiguration(reported, file, options);
    } catch (const std::system_error& error) {
        return {false, {{{}, 0, 0, Problem::Severity::Error, error.what()}}};
    }
}

LoadResult Workbench::loadConfiguration(utils::io::InputStream<char>& stream,
                                        const std::filesystem::path& file,
                                        const LoadOptions& options) {
    if (state_->editing()) {
        return {false, {refuseNested().value()}};
    }
    return state_->load(stream, file, options);
}

Result<void> Workbench::saveConfiguration(const std::filesystem::path& file,
                                          const SaveOptions& options) const {
    try {
        utils::io::FileOutputStream stream(file);
        auto saved = saveConfiguration(stream, options);
        if (saved) {
            stream.close();
        }
        return saved;
    } catch (const std::exception& exception) {
        return refuse(exception.what());
    }
}

Result<void> Workbench::saveConfiguration(utils::io::OutputStream<char>& stream,
                                          const SaveOptions& options) const {
    try {
        writeConfiguration(state_->tree.root(), options.loadAgain ? &state_->classes : nullptr,
                           stream);
        return {};
    } catch (const std::exception& exception) {
        return tl::unexpected(problemOf(exception, {}));
    }
}

ElementNode& Workbench::root() noexcept {
    return state_->tree.root();
}
const ElementNode& Workbench::root() const noexcept {
    return state_->tree.root();
}

ElementNode* Workbench::findElement(std::string_view key) const {
    return state_->tree.find(key);
}

ElementNode* Workbench::findElement(const utils::core::Uuid& uuid) const {
    return state_->tree.find(uuid);
}

std::size_t Workbench::elementCount() const noexcept {
    return state_->tree.elementCount();
}

void Workbench::forEachPropertyProblem(
    const ElementNode& top,
    utils::core::function_ref<void(const PropertyProblem&)> callback) const {
    host::forEachPropertyProblem(top, callback);
}

Result<ElementNode*> Workbench::add(std::string_view parentKey, std::string_view elementClassId,
                                    std::string_view name) {
    if (state_->editing()) {
        return refuseNested();
    }
    ElementTree& tree = state_->tree;
    ElementNode* parent = tree.find(parentKey);
    if (parent == nullptr) {
        return refuse(noSuchElement(parentKey));
    }
    const skill::Element::Class* elementClass = state_->classes.find(elementClassId);
    if (elementClass == nullptr) {
        return refuse("unknown element class " + inQuotes(elementClassId));
    }
    if (!allowsChild(*parent, *elementClass)) {
        return refuse(childRefused(*parent, *elementClass));
    }
    if (parent->depth() + 1 > kMaximumDepth) {
        return refuse(tooDeep());
    }
    std::string ownName =
        name.empty() ? freeName(*parent, elementClass->defaultName()) : std::string(name);
    if (const auto valid = checkNewName(*parent, ownName); !valid) {
        return refuse(valid.error());
    }

    State::Edit edit(*state_);
    auto created = tree.makeNode(*parent, *elementClass, std::move(ownName));
    if (!created) {
        return tl::unexpected(std::move(created).error());
    }
    ElementNode& node = **created;
    state_->collectConcerned(*parent, node.name(), edit.references);
    tree.insert(*parent, std::move(*created));
    state_->resolveWaiting(node, edit.references, 0);
    edit.guarded(
        [&] { node.properties().setEnclosingPropertyContainer(parent->properties(), {}); });
    edit.tellObservers([&](Observer& observer) { observer.elementAdded(node); });
    edit.announceReferences();
    edit.finish();
    return &node;
}

Result<void> Workbench::rename(std::string_view key, std::string_view newName) {
    if (state_->editing()) {
        return refuseNested();
    }
    ElementTree& tree = state_->tree;
    ElementNode* node = tree.find(key);
    if (node == nullptr || node->isInvisibleRoot()) {
        return refuse(node == nullptr ? noSuchElement(key) : "the root has no name");
    }
    if (node->name() == newName) {
        return {};
    }
    ElementNode& parent = *node->parent();
    if (const auto valid = checkNewName(parent, newName); !valid) {
        return refuse(valid.error());
    }

    State::Edit edit(*state_);
    const std::string oldKey = node->primaryKey();
    const std::string oldName(node->name());
    state_->collectBelow(*node, ReferenceUpdates::Key::Changes, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    state_->collectConcerned(parent, oldName, edit.references);
    state_->collectConcerned(parent, newName, edit.references);
    tree.rename(*node, std::string(newName));
    state_->resolveWaiting(*node, edit.references, firstConcerned);
    edit.tellObservers([&](Observer& observer) { observer.elementRenamed(*node, oldKey); });
    edit.announceReferences();
    edit.finish();
    return {};
}

Result<void> Workbench::move(std::string_view key, std::string_view newParentKey) {
    if (state_->editing()) {
        return refuseNested();
    }
    ElementTree& tree = state_->tree;
    ElementNode* node = tree.find(key);
    if (node == nullptr || node->isInvisibleRoot()) {
        return refuse(node == nullptr ? noSuchElement(key) : "the root cannot be moved");
    }
    ElementNode* parent = tree.find(newParentKey);
    if (parent == nullptr) {
        return refuse(noSuchElement(newParentKey));
    }
    if (parent == node->parent()) {
        return {};
    }
    if (parent == node || parent->isDescendentOf(*node)) {
        return refuse("the element " + inQuotes(key) + " cannot be moved into itself");
    }
    if (!allowsChild(*parent, node->elementClass())) {
        return refuse(childRefused(*parent, node->elementClass()));
    }
    if (parent->depth() + 1 + height(*node) > kMaximumDepth) {
        return refuse(tooDeep());
    }
    if (parent->findChild(node->name()) != nullptr) {
        return refuse(nameTaken(*parent, node->name()));
    }

    State::Edit edit(*state_);
    const std::string oldKey = node->primaryKey();
    state_->collectBelow(*node, ReferenceUpdates::Key::Changes, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    state_->collectConcerned(*node->parent(), node->name(), edit.references);
    state_->collectConcerned(*parent, node->name(), edit.references);
    tree.insert(*parent, tree.extract(*node));
    state_->resolveWaiting(*node, edit.references, firstConcerned);
    edit.guarded(
        [&] { node->properties().setEnclosingPropertyContainer(parent->properties(), {}); });
    edit.tellObservers([&](Observer& observer) { observer.elementMoved(*node, oldKey); });
    edit.announceReferences();
    edit.finish();
    return {};
}

Result<void> Workbench::remove(std::string_view key) {
    if (state_->editing()) {
        return refuseNested();
    }
    ElementTree& tree = state_->tree;
    ElementNode* node = tree.find(key);
    if (node == nullptr || node->isInvisibleRoot()) {
        return refuse(node == nullptr ? noSuchElement(key) : "the root cannot be removed");
    }

    State::Edit edit(*state_);
    ElementNode& parent = *node->parent();
    const std::string oldKey = node->primaryKey();
    edit.tellObservers([&](Observer& observer) { observer.elementRemoving(*node); });
    state_->collectBelow(*node, ReferenceUpdates::Key::Stays, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    state_->collectConcerned(parent, node->name(), edit.references);

    ElementTree::retireProxies(*node);
    tree.releaseUuids(*node);
    std::unique_ptr<ElementNode> removed = tree.extract(*node);
    edit.guarded([&] { removed->properties().resetEnclosingPropertyContainer({}); });
    removed.reset();

    // What the parent's key leaves of the old one is the suffix below the parent.
    const std::size_t parentSize = parent.primaryKey().size();
    const std::shared_ptr<ReferenceProxy> parentProxy = ElementTree::proxy(parent);
    for (std::size_t index = 0; index < firstConcerned; ++index) {
        if (const BasicElementReference* reference = edit.references.reference(index)) {
            std::string suffix = reference->data().proxy()->primaryKey();
            suffix.erase(0, parentSize);
            suffix += reference->data().suffix();
            edit.references.redirect(index, parentProxy, suffix);
        }
    }
    edit.tellObservers([&](Observer& observer) { observer.elementRemoved(oldKey); });
    edit.announceReferences();
    edit.finish();
    return {};
}

Result<void> Workbench::setReference(const skill::EditableProperty& property,
                                     std::string_view key) {
    if (state_->editing()) {
        return refuseNested();
    }
    BasicElementReference* reference = nullptr;
    if (property.property) {
        const auto pick = [&](bindings::CrossReferenceController& candidate) {
            auto* found = dynamic_cast<BasicElementReference*>(&candidate);
            if (found != nullptr && found->propertyId() == property.property.property()) {
                reference = found;
            }
        };
        property.property.controller().forEachCrossReference(
            pick, {.recursive = false, .includeInvisible = true});
    }
    if (reference == nullptr) {
        return refuse("the property " + inQuotes(property.name) + " is not a reference");
    }
    *reference = dynamic_cast<model::ElementReference*>(reference) != nullptr
                     ? elementReferenceData(key)
                     : memberReferenceData(key);
    reference->updateValue();
    return {};
}

model::internal::ElementReferenceData Workbench::elementReferenceData(std::string_view key) const {
    return host::elementReferenceData(state_->tree, key, ImportKeys::Keep);
}

model::internal::ElementReferenceData Workbench::memberReferenceData(std::string_view key) const {
    return host::memberReferenceData(state_->tree, key, ImportKeys::Keep);
}

std::vector<ReferenceUse> Workbench::referencesTo(const ElementNode& element) const {
    std::vector<ReferenceUse> result;
    if (const auto proxy = ElementTree::existingProxy(element)) {
        for (const ReferenceProxy::Registration& registration : proxy->registrations()) {
            if (registration.reference->data().suffix().empty()) {
                result.push_back({ownerOf(*registration.reference), registration.reference});
            }
        }
    }
    return result;
}

const ElementNode* Workbench::ownerOf(const BasicElementReference& reference) const {
    return host::ownerOf(reference);
}

void Workbench::addObserver(Observer& observer) {
    state_->observers.push_back(&observer);
}

void Workbench::removeObserver(Observer& observer) noexcept {
    std::erase(state_->observers, &observer);
}

} // namespace corvane::workbench::host
