#include <corvane/workbench/host/Workbench.hpp>

#include "ConfigurationReader.hpp"
#include "ElementTree.hpp"
#include "LoadContext.hpp"
#include "ProgressInputStream.hpp"
#include "ReferenceProxy.hpp"
#include "ReferenceUpdates.hpp"
#include "referenceData.hpp"
#include "text.hpp"
#include "treeRules.hpp"
#include "writeConfiguration.hpp"

#include <corvane/utils/io/FileInputStream.hpp>
#include <corvane/utils/io/FileOutputStream.hpp>
#include <corvane/utils/json/decoder/Document.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/host/SkillLibrary.hpp>
#include <corvane/workbench/host/elementName.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>
#include <corvane/workbench/model/internal/keys.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/SubElement.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace corvane::workbench::host {

namespace {

using model::internal::BasicElementReference;

/// Deeper elements would not fit a file, which nests three levels for each and 512 at most; the
/// difference is left to the settings of the elements.
constexpr std::size_t kMaximumDepth = 160;

tl::unexpected<Problem> refuse(std::string text) {
    Problem problem;
    problem.text = std::move(text);
    return tl::unexpected(std::move(problem));
}

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

class PropertyProblemWalk {
public:
    using Callback = corvane::utils::core::function_ref<void(const PropertyProblem&)>;

    PropertyProblemWalk(const ElementNode& element, Callback callback)
        : _element(element), _callback(callback) {}

    void visit(const skill::EditableProperty& property, const std::string& path,
               const std::wstring& displayPath) {
        if (!property.property.visible()) {
            return;
        }
        const std::string ownPath = path + property.name;
        const std::wstring ownDisplayPath = displayPath + property.displayName;
        if (const auto& state = property.property.state(); !state) {
            _callback({&_element, property.property, ownPath, ownDisplayPath, state.error()});
        }
        if (!property.forEachSubElement) {
            return;
        }
        std::size_t row = 0;
        const auto visitRow = [&](skill::SubElement& subElement) {
            const std::string rowPath = ownPath + "." + std::to_string(row) + ".";
            const std::wstring rowDisplayPath =
                ownDisplayPath + L"." + subElement.displayName() + L".";
            const auto visitProperty = [&](const skill::EditableProperty& rowProperty) {
                visit(rowProperty, rowPath, rowDisplayPath);
            };
            subElement.forEachEditableProperty(visitProperty);
            ++row;
        };
        property.forEachSubElement(visitRow);
    }

private:
    const ElementNode& _element;
    Callback _callback;
};

} // namespace

class Workbench::State {
public:
    /// One change of the tree: refuses further ones until everybody has heard of it, and collects
    /// what goes wrong on the way.
    class Edit {
    public:
        explicit Edit(State& state) : _state(state) { _state._editing = true; }
        Edit(const Edit&) = delete;
        Edit& operator=(const Edit&) = delete;
        ~Edit() { _state._editing = false; }

        template <class Call>
        void guarded(Call&& call) {
            try {
                call();
            } catch (...) {
                if (!_firstFailure) {
                    _firstFailure = std::current_exception();
                }
            }
        }
        template <class Call>
        void tellObservers(Call&& call) {
            const std::vector<Observer*> told = _state.observers;
            for (Observer* observer : told) {
                guarded([&] { call(*observer); });
            }
        }
        void announceReferences() {
            const std::vector<Observer*> told = _state.observers;
            references.announce(told, _firstFailure);
        }
        /// Ends the edit; throws what was thrown first.
        void finish() {
            _state._editing = false;
            const auto changed = std::exchange(_state._changedMembers, {});
            for (const std::weak_ptr<ReferenceProxy>& proxy : changed) {
                guarded([&] { _state.membersChanged(proxy.lock()); });
            }
            if (_firstFailure) {
                std::rethrow_exception(_firstFailure);
            }
        }

        ReferenceUpdates references;

    private:
        State& _state;
        std::exception_ptr _firstFailure;
    };

    State() {
        tree.onMembersPublished([this](ElementNode& node) { membersPublished(node); });
    }

    [[nodiscard]] bool editing() const noexcept { return _editing; }

    Result<void> addSkills(std::span<const std::reference_wrapper<const skill::Skill::Class>> added,
                           const std::filesystem::path& library);
    LoadResult load(corvane::utils::io::InputStream<char>& stream,
                    const std::filesystem::path& file, const LoadOptions& options);

    /// Takes in all references at a node and below.
    void collectBelow(ElementNode& top, ReferenceUpdates::Key key, ReferenceUpdates& updates);
    /// Takes in the references at a parent that a child of that name concerns: those that reach
    /// for it, and those to a member of its name, whose message depends on it.
    void collectConcerned(ElementNode& parent, std::string_view childName,
                          ReferenceUpdates& updates);
    /// Points references that are collected from `first` on and that wait for the child at it or
    /// below.
    void resolveWaiting(ElementNode& child, ReferenceUpdates& updates, std::size_t first);
    void membersPublished(ElementNode& node);
    /// Lets every reference to a member of the proxy's element look again.
    void membersChanged(const std::shared_ptr<ReferenceProxy>& proxy);

    ElementClassRegistry classes;
    std::vector<std::unique_ptr<LoadedSkill>> skills;
    std::vector<Observer*> observers;
    ElementTree tree;

private:
    [[nodiscard]] bool read(corvane::utils::io::InputStream<char>& stream,
                            const std::filesystem::path& file, const LoadOptions& options,
                            ElementTree& staging, std::vector<Problem>& problems);
    void replaceTree(ElementTree& staging);

    bool _editing = false;
    // Published while an edit was under way.
    std::vector<std::weak_ptr<ReferenceProxy>> _changedMembers;
};

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
            skillId = skillClass.id();
            auto instance = skillClass.createSkill();
            if (!instance) {
                throw std::runtime_error("it makes no instance of itself");
            }
            const auto first = static_cast<std::ptrdiff_t>(classes.all().size());
            skillClass.registerElementClasses(classes);
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

LoadResult Workbench::State::load(corvane::utils::io::InputStream<char>& stream,
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

bool Workbench::State::read(corvane::utils::io::InputStream<char>& stream,
                            const std::filesystem::path& file, const LoadOptions& options,
                            ElementTree& staging, std::vector<Problem>& problems) {
    const auto giveUp = [&](const std::string& text) {
        problems.push_back({file, 0, 0, Problem::Severity::Error, text});
        return false;
    };
    try {
        LoadContext context(options);
        {
            corvane::utils::json::decoder::Document document(stream);
            document.finish();
            ConfigurationReader reader(classes, options, file, staging, context, problems);
            if (!reader.read(document.root())) {
                return false;
            }
        }
        if (!context.resolveAll(staging, file, problems)) {
            return giveUp("the load was given up");
        }
        ProgressReport progress(options.progress, LoadProgress::Stage::Properties,
                                staging.elementCount());
        bool failed = false;
        bool goOn = true;
        ElementTree::linkProperties(
            staging.root(),
            [&](ElementNode& node) {
                failed = true;
                try {
                    throw;
                } catch (const std::exception& exception) {
                    problems.push_back(
                        {file, node.line(), node.column(), Problem::Severity::Error,
                         "the element " + inQuotes(node.primaryKey()) +
                             " cannot describe its properties: " + exception.what()});
                }
            },
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
        if (_editing) {
            _changedMembers.push_back(proxy);
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
                reference->updateState();
            }
        } catch (...) {
            firstFailure = firstFailure ? firstFailure : std::current_exception();
        }
    }
    if (firstFailure) {
        std::rethrow_exception(firstFailure);
    }
}

Workbench::Workbench() : _state(std::make_unique<State>()) {}
Workbench::~Workbench() = default;

Result<void> Workbench::loadSkills(const std::filesystem::path& library) {
    auto opened = SkillLibrary::open(library);
    if (!opened) {
        return tl::unexpected(std::move(opened).error());
    }
    return _state->addSkills(opened->skillClasses(), opened->path());
}

Result<void> Workbench::addSkill(const skill::Skill::Class& skillClass) {
    const std::reference_wrapper<const skill::Skill::Class> added[] = {skillClass};
    return _state->addSkills(added, {});
}

std::span<const std::unique_ptr<LoadedSkill>> Workbench::skills() const noexcept {
    return _state->skills;
}

const ElementClassRegistry& Workbench::elementClasses() const noexcept {
    return _state->classes;
}

LoadResult Workbench::loadConfiguration(const std::filesystem::path& file,
                                        const LoadOptions& options) {
    if (_state->editing()) {
        return {false, {refuseNested().value()}};
    }
    try {
        corvane::utils::io::FileInputStream stream(file);
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

LoadResult Workbench::loadConfiguration(corvane::utils::io::InputStream<char>& stream,
                                        const std::filesystem::path& file,
                                        const LoadOptions& options) {
    if (_state->editing()) {
        return {false, {refuseNested().value()}};
    }
    return _state->load(stream, file, options);
}

Result<void> Workbench::saveConfiguration(const std::filesystem::path& file) const {
    try {
        corvane::utils::io::FileOutputStream stream(file);
        writeConfiguration(_state->tree.root(), stream);
        stream.close();
        return {};
    } catch (const std::exception& exception) {
        return refuse(exception.what());
    }
}

Result<void> Workbench::saveConfiguration(corvane::utils::io::OutputStream<char>& stream) const {
    try {
        writeConfiguration(_state->tree.root(), stream);
        return {};
    } catch (const std::exception& exception) {
        return refuse(exception.what());
    }
}

ElementNode& Workbench::root() noexcept {
    return _state->tree.root();
}
const ElementNode& Workbench::root() const noexcept {
    return _state->tree.root();
}

ElementNode* Workbench::findElement(std::string_view key) const {
    return _state->tree.find(key);
}

ElementNode* Workbench::findElement(const corvane::utils::core::Uuid& uuid) const {
    return _state->tree.find(uuid);
}

std::size_t Workbench::elementCount() const noexcept {
    return _state->tree.elementCount();
}

void Workbench::forEachPropertyProblem(
    const ElementNode& top,
    corvane::utils::core::function_ref<void(const PropertyProblem&)> callback) const {
    // The counts say where there is nothing to be found.
    if (top.properties().propertyErrorCount() == 0) {
        return;
    }
    if (skill::Element* skillElement = top.skillElement();
        skillElement != nullptr && skillElement->propertyErrorCount() != 0) {
        PropertyProblemWalk walk(top, callback);
        const auto visit = [&](const skill::EditableProperty& property) {
            walk.visit(property, {}, {});
        };
        skillElement->forEachEditableProperty(visit);
    }
    for (std::size_t index = 0; index < top.childCount(); ++index) {
        forEachPropertyProblem(top.child(index), callback);
    }
}

Result<ElementNode*> Workbench::add(std::string_view parentKey, std::string_view elementClassId,
                                    std::string_view name) {
    if (_state->editing()) {
        return refuseNested();
    }
    ElementTree& tree = _state->tree;
    ElementNode* parent = tree.find(parentKey);
    if (parent == nullptr) {
        return refuse(noSuchElement(parentKey));
    }
    const skill::Element::Class* elementClass = _state->classes.find(elementClassId);
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

    State::Edit edit(*_state);
    std::unique_ptr<ElementNode> created =
        tree.makeNode(*parent, *elementClass, std::move(ownName));
    ElementNode& node = *created;
    _state->collectConcerned(*parent, node.name(), edit.references);
    tree.insert(*parent, std::move(created));
    _state->resolveWaiting(node, edit.references, 0);
    edit.guarded(
        [&] { node.properties().setEnclosingPropertyContainer(parent->properties(), {}); });
    edit.tellObservers([&](Observer& observer) { observer.elementAdded(node); });
    edit.announceReferences();
    edit.finish();
    return &node;
}

Result<void> Workbench::rename(std::string_view key, std::string_view newName) {
    if (_state->editing()) {
        return refuseNested();
    }
    ElementTree& tree = _state->tree;
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

    State::Edit edit(*_state);
    const std::string oldKey = node->primaryKey();
    const std::string oldName(node->name());
    _state->collectBelow(*node, ReferenceUpdates::Key::Changes, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    _state->collectConcerned(parent, oldName, edit.references);
    _state->collectConcerned(parent, newName, edit.references);
    tree.rename(*node, std::string(newName));
    _state->resolveWaiting(*node, edit.references, firstConcerned);
    edit.tellObservers([&](Observer& observer) { observer.elementRenamed(*node, oldKey); });
    edit.announceReferences();
    edit.finish();
    return {};
}

Result<void> Workbench::move(std::string_view key, std::string_view newParentKey) {
    if (_state->editing()) {
        return refuseNested();
    }
    ElementTree& tree = _state->tree;
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

    State::Edit edit(*_state);
    const std::string oldKey = node->primaryKey();
    _state->collectBelow(*node, ReferenceUpdates::Key::Changes, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    _state->collectConcerned(*node->parent(), node->name(), edit.references);
    _state->collectConcerned(*parent, node->name(), edit.references);
    tree.insert(*parent, tree.extract(*node));
    _state->resolveWaiting(*node, edit.references, firstConcerned);
    edit.guarded(
        [&] { node->properties().setEnclosingPropertyContainer(parent->properties(), {}); });
    edit.tellObservers([&](Observer& observer) { observer.elementMoved(*node, oldKey); });
    edit.announceReferences();
    edit.finish();
    return {};
}

Result<void> Workbench::remove(std::string_view key) {
    if (_state->editing()) {
        return refuseNested();
    }
    ElementTree& tree = _state->tree;
    ElementNode* node = tree.find(key);
    if (node == nullptr || node->isInvisibleRoot()) {
        return refuse(node == nullptr ? noSuchElement(key) : "the root cannot be removed");
    }

    State::Edit edit(*_state);
    ElementNode& parent = *node->parent();
    const std::string oldKey = node->primaryKey();
    edit.tellObservers([&](Observer& observer) { observer.elementRemoving(*node); });
    _state->collectBelow(*node, ReferenceUpdates::Key::Stays, edit.references);
    const std::size_t firstConcerned = edit.references.size();
    _state->collectConcerned(parent, node->name(), edit.references);

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
    if (_state->editing()) {
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
    return host::elementReferenceData(_state->tree, key, ImportKeys::Keep);
}

model::internal::ElementReferenceData Workbench::memberReferenceData(std::string_view key) const {
    return host::memberReferenceData(_state->tree, key, ImportKeys::Keep);
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
    const bindings::PropertyContainer* container = reference.referringController();
    while (container != nullptr) {
        if (const auto* properties = dynamic_cast<const ElementProperties*>(container)) {
            return &properties->element();
        }
        container = container->enclosingPropertyContainer();
    }
    return nullptr;
}

void Workbench::addObserver(Observer& observer) {
    _state->observers.push_back(&observer);
}

void Workbench::removeObserver(Observer& observer) noexcept {
    std::erase(_state->observers, &observer);
}

} // namespace corvane::workbench::host
