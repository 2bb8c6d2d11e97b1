#include <corvane/workbench/host/ElementNode.hpp>

#include "ElementTree.hpp"
#include "ReferenceProxy.hpp"

#include <corvane/workbench/model/internal/ElementReferenceData.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <algorithm>
#include <utility>

namespace corvane::workbench::host {

namespace {

// Below this a look at every child is cheaper than a table.
constexpr std::size_t kFewChildren = 8;

} // namespace

ElementNode::ElementNode(ElementTree& tree) : _tree(&tree), _properties(*this) {}

ElementNode::ElementNode(const skill::Element::Class& elementClass,
                         std::unique_ptr<skill::Element> skillElement, std::string name,
                         const corvane::utils::core::Uuid& uuid)
    : _elementClass(&elementClass), _name(std::move(name)), _uuid(uuid), _properties(*this),
      _skillElement(std::move(skillElement)) {
    skill::internal::ElementAccess::attach(*_skillElement, *this);
}

ElementNode::~ElementNode() {
    // Proxies of whole trees are retired with their keys; this is for nodes that were in none.
    if (const auto proxy = existingProxy(); proxy && proxy->node() == this) {
        proxy->retire({});
    }
    // Children first: their skill's halves may still look at their parent's.
    _childrenByName.clear();
    _children.clear();
}

const skill::Element::Class& ElementNode::elementClass() const {
    return *_elementClass;
}

ElementNode* ElementNode::findChild(std::string_view name) const {
    if (_children.size() > kFewChildren) {
        const auto found = _childrenByName.find(name);
        return found == _childrenByName.end() ? nullptr : found->second;
    }
    for (const auto& child : _children) {
        if (child->_name == name) {
            return child.get();
        }
    }
    return nullptr;
}

std::size_t ElementNode::depth() const noexcept {
    std::size_t result = 0;
    for (const ElementNode* node = _parent; node != nullptr; node = node->_parent) {
        ++result;
    }
    return result;
}

corvane::utils::string::BasicStringView<char> ElementNode::nameImpl() const {
    return _name;
}

std::string ElementNode::primaryKeyImpl() const {
    std::size_t size = 0;
    for (const ElementNode* node = this; node->_parent != nullptr; node = node->_parent) {
        size += node->_name.size() + 1;
    }
    if (size == 0) {
        return {};
    }
    // Filled from the end; what is above the root has no separator.
    std::string result(size - 1, '.');
    std::size_t end = result.size();
    for (const ElementNode* node = this; node->_parent != nullptr; node = node->_parent) {
        const std::size_t begin = end - node->_name.size();
        std::copy(node->_name.begin(), node->_name.end(),
                  result.begin() + static_cast<std::ptrdiff_t>(begin));
        end = begin == 0 ? 0 : begin - 1;
    }
    return result;
}

corvane::utils::core::Uuid ElementNode::uuidImpl() const {
    return _uuid;
}

std::wstring ElementNode::typeImpl() const {
    return _elementClass != nullptr
               ? _elementClass->displayName()
               : std::wstring(model::toBasicString<wchar_t>(model::ElementCategory::RootElement));
}

model::ElementCategory ElementNode::categoryImpl() const {
    return _elementClass != nullptr ? _elementClass->category()
                                    : model::ElementCategory::RootElement;
}

bool ElementNode::isInvisibleRootImpl() const {
    return _parent == nullptr && _tree != nullptr;
}

const model::Element*
ElementNode::findAncestorImpl(const skill::Element::Class& elementClass) const {
    for (const ElementNode* node = _parent; node != nullptr; node = node->_parent) {
        if (node->_elementClass == &elementClass) {
            return node;
        }
    }
    return nullptr;
}

bool ElementNode::isDescendentOfImpl(const model::Element& other) const {
    for (const ElementNode* node = _parent; node != nullptr; node = node->_parent) {
        if (node == &other) {
            return true;
        }
    }
    return false;
}

bool ElementNode::forEachAttributeImpl(
    const corvane::utils::core::function_ref<bool(const model::Attribute&)>& callback) const {
    if (_skillElement == nullptr) {
        return false;
    }
    for (const model::Attribute* attribute :
         {&model::Attribute::kName, &model::Attribute::kUuid, &model::Attribute::kType,
          &model::Attribute::kCategory, &model::Attribute::kPrimaryKey}) {
        if (callback(*attribute)) {
            return true;
        }
    }
    return skill::internal::ElementAccess::forEachAttribute(*_skillElement, callback);
}

bool ElementNode::forEachEventImpl(
    const corvane::utils::core::function_ref<bool(const process::Event&)>& callback,
    bool /*forwardedFlag*/) const {
    return _skillElement != nullptr &&
           skill::internal::ElementAccess::forEachEvent(*_skillElement, callback);
}

bool ElementNode::forEachTaskImpl(
    const corvane::utils::core::function_ref<bool(const process::Task&)>& callback) const {
    return _skillElement != nullptr &&
           skill::internal::ElementAccess::forEachTask(*_skillElement, callback);
}

model::ChildElementAccessor ElementNode::childElementsImpl() const {
    return static_cast<const AbstractChildElementAccessor&>(*this);
}

const model::Element* ElementNode::childElementImpl(std::string_view name) const {
    return findChild(name);
}

const model::Element* ElementNode::parentElementImpl() const {
    return _parent;
}

skill::Element* ElementNode::skillElementImpl() const {
    return _skillElement.get();
}

model::internal::ElementReferenceData
ElementNode::referenceDataImpl(std::optional<std::string> memberName) const {
    return {proxy(), std::string(), std::move(memberName)};
}

std::size_t ElementNode::elementCount() const {
    return _children.size();
}

const model::Element& ElementNode::elementAt(std::size_t index) const {
    return *_children[index];
}

const model::Element& ElementNode::element() const {
    return *this;
}

void ElementNode::publishElementMembers() {
    const ElementNode* top = this;
    while (top->_parent != nullptr) {
        top = top->_parent;
    }
    if (top->_tree != nullptr) {
        top->_tree->publishMembers(*this);
    }
}

std::shared_ptr<ReferenceProxy> ElementNode::proxy() const {
    if (auto existing = _proxy.lock()) {
        return existing;
    }
    // References give out elements that may be changed through them, as the tree's owner does.
    auto created = std::make_shared<ReferenceProxy>(const_cast<ElementNode&>(*this));
    _proxy = created;
    return created;
}

std::shared_ptr<ReferenceProxy> ElementNode::existingProxy() const noexcept {
    return _proxy.lock();
}

void ElementNode::insertChild(std::unique_ptr<ElementNode> child) {
    ElementNode& inserted = *child;
    _children.push_back(std::move(child));
    inserted._parent = this;
    if (_children.size() <= kFewChildren) {
        return;
    }
    if (_childrenByName.empty()) {
        for (const auto& existing : _children) {
            _childrenByName.emplace(existing->_name, existing.get());
        }
    } else {
        _childrenByName.emplace(inserted._name, &inserted);
    }
}

std::unique_ptr<ElementNode> ElementNode::extractChild(ElementNode& child) {
    const auto position =
        std::find_if(_children.begin(), _children.end(),
                     [&](const auto& candidate) { return candidate.get() == &child; });
    std::unique_ptr<ElementNode> result = std::move(*position);
    _childrenByName.erase(result->_name);
    _children.erase(position);
    if (_children.size() <= kFewChildren) {
        _childrenByName.clear();
    }
    result->_parent = nullptr;
    return result;
}

void ElementNode::renameChild(ElementNode& child, std::string name) {
    // The table's key is a view of the name, so it leaves the table before the name changes.
    auto entry = _childrenByName.extract(child._name);
    child._name = std::move(name);
    if (entry) {
        entry.key() = child._name;
        _childrenByName.insert(std::move(entry));
    }
}

} // namespace corvane::workbench::host
