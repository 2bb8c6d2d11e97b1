#include <corvane/workbench/host/ElementNode.hpp>

#include "ElementTree.hpp"
#include "ReferenceProxy.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/LoadedSkill.hpp>
#include <corvane/workbench/model/internal/ElementReferenceData.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <algorithm>
#include <utility>

namespace corvane::workbench::host {

namespace {

// Below this a look at every child is cheaper than a table.
constexpr std::size_t kFewChildren = 8;

} // namespace

ElementNode::ElementNode(ElementTree& tree) : tree_(&tree), properties_(*this) {}

ElementNode::ElementNode(const skill::Element::Class& elementClass,
                         std::unique_ptr<skill::Element> skillElement, std::string name,
                         const utils::core::Uuid& uuid)
    : elementClass_(&elementClass), name_(std::move(name)), uuid_(uuid), properties_(*this),
      skillElement_(std::move(skillElement)) {
    skill::internal::ElementAccess::attach(*skillElement_, *this);
}

ElementNode::~ElementNode() {
    // Proxies of whole trees are retired with their keys; this is for nodes that were in none.
    if (const auto proxy = existingProxy(); proxy && proxy->node() == this) {
        proxy->retire({});
    }
    // Children first: their skill elements may still look at their parent's.
    childrenByName_.clear();
    children_.clear();
    if (skillElement_ != nullptr) {
        const CurrentOperation operation(CurrentOperation::Kind::Destroy, *this);
        skillElement_.reset();
    }
}

const skill::Element::Class& ElementNode::elementClass() const {
    return *elementClass_;
}

ElementNode* ElementNode::findChild(std::string_view name) const {
    if (children_.size() > kFewChildren) {
        const auto found = childrenByName_.find(name);
        return found == childrenByName_.end() ? nullptr : found->second;
    }
    for (const auto& child : children_) {
        if (child->name_ == name) {
            return child.get();
        }
    }
    return nullptr;
}

std::size_t ElementNode::depth() const noexcept {
    std::size_t result = 0;
    for (const ElementNode* node = parent_; node != nullptr; node = node->parent_) {
        ++result;
    }
    return result;
}

utils::string::BasicStringView<char> ElementNode::nameImpl() const {
    return name_;
}

std::string ElementNode::primaryKeyImpl() const {
    std::size_t size = 0;
    for (const ElementNode* node = this; node->parent_ != nullptr; node = node->parent_) {
        size += node->name_.size() + 1;
    }
    if (size == 0) {
        return {};
    }
    // Filled from the end; what is above the root has no separator.
    std::string result(size - 1, '.');
    std::size_t end = result.size();
    for (const ElementNode* node = this; node->parent_ != nullptr; node = node->parent_) {
        const std::size_t begin = end - node->name_.size();
        std::copy(node->name_.begin(), node->name_.end(),
                  result.begin() + static_cast<std::ptrdiff_t>(begin));
        end = begin == 0 ? 0 : begin - 1;
    }
    return result;
}

utils::core::Uuid ElementNode::uuidImpl() const {
    return uuid_;
}

std::wstring ElementNode::typeImpl() const {
    if (elementClass_ == nullptr) {
        return std::wstring(model::toBasicString<wchar_t>(model::ElementCategory::RootElement));
    }
    return callSkill(
        CurrentOperation::Kind::Describe, [&] { return elementClass_->displayName(); },
        LoadedSkill::idOfSkillWith(*elementClass_));
}

model::ElementCategory ElementNode::categoryImpl() const {
    return elementClass_ != nullptr ? elementClass_->category()
                                    : model::ElementCategory::RootElement;
}

bool ElementNode::isInvisibleRootImpl() const {
    return parent_ == nullptr && tree_ != nullptr;
}

const model::Element*
ElementNode::findAncestorImpl(const skill::Element::Class& elementClass) const {
    for (const ElementNode* node = parent_; node != nullptr; node = node->parent_) {
        if (node->elementClass_ == &elementClass) {
            return node;
        }
    }
    return nullptr;
}

bool ElementNode::isDescendentOfImpl(const model::Element& other) const {
    for (const ElementNode* node = parent_; node != nullptr; node = node->parent_) {
        if (node == &other) {
            return true;
        }
    }
    return false;
}

bool ElementNode::forEachAttributeImpl(
    const utils::core::function_ref<bool(const model::Attribute&)>& callback) const {
    if (skillElement_ == nullptr) {
        return false;
    }
    for (const model::Attribute* attribute :
         {&model::Attribute::kName, &model::Attribute::kUuid, &model::Attribute::kType,
          &model::Attribute::kCategory, &model::Attribute::kPrimaryKey}) {
        if (callback(*attribute)) {
            return true;
        }
    }
    return callSkill(
        CurrentOperation::Kind::ListMembers,
        [&] { return skill::internal::ElementAccess::forEachAttribute(*skillElement_, callback); },
        *this);
}

bool ElementNode::forEachEventImpl(
    const utils::core::function_ref<bool(const process::Event&)>& callback,
    bool /*forwardedFlag*/) const {
    return skillElement_ != nullptr &&
           callSkill(
               CurrentOperation::Kind::ListMembers,
               [&] {
                   return skill::internal::ElementAccess::forEachEvent(*skillElement_, callback);
               },
               *this);
}

bool ElementNode::forEachTaskImpl(
    const utils::core::function_ref<bool(const process::Task&)>& callback) const {
    return skillElement_ != nullptr &&
           callSkill(
               CurrentOperation::Kind::ListMembers,
               [&] {
                   return skill::internal::ElementAccess::forEachTask(*skillElement_, callback);
               },
               *this);
}

model::ChildElementAccessor ElementNode::childElementsImpl() const {
    return static_cast<const AbstractChildElementAccessor&>(*this);
}

const model::Element* ElementNode::childElementImpl(std::string_view name) const {
    return findChild(name);
}

const model::Element* ElementNode::parentElementImpl() const {
    return parent_;
}

skill::Element* ElementNode::skillElementImpl() const {
    return skillElement_.get();
}

model::internal::ElementReferenceData
ElementNode::referenceDataImpl(std::optional<std::string> memberName) const {
    return {proxy(), std::string(), std::move(memberName)};
}

std::size_t ElementNode::elementCount() const {
    return children_.size();
}

const model::Element& ElementNode::elementAt(std::size_t index) const {
    return *children_[index];
}

const model::Element& ElementNode::element() const {
    return *this;
}

void ElementNode::publishElementMembers() {
    const ElementNode* top = this;
    while (top->parent_ != nullptr) {
        top = top->parent_;
    }
    if (top->tree_ != nullptr) {
        top->tree_->publishMembers(*this);
    }
}

std::shared_ptr<ReferenceProxy> ElementNode::proxy() const {
    if (auto existing = proxy_.lock()) {
        return existing;
    }
    // References give out elements that may be changed through them, as the tree's owner does.
    auto created = std::make_shared<ReferenceProxy>(const_cast<ElementNode&>(*this));
    proxy_ = created;
    return created;
}

std::shared_ptr<ReferenceProxy> ElementNode::existingProxy() const noexcept {
    return proxy_.lock();
}

void ElementNode::insertChild(std::unique_ptr<ElementNode> child) {
    ElementNode& inserted = *child;
    children_.push_back(std::move(child));
    inserted.parent_ = this;
    if (children_.size() <= kFewChildren) {
        return;
    }
    if (childrenByName_.empty()) {
        for (const auto& existing : children_) {
            childrenByName_.emplace(existing->name_, existing.get());
        }
    } else {
        childrenByName_.emplace(inserted.name_, &inserted);
    }
}

std::unique_ptr<ElementNode> ElementNode::extractChild(ElementNode& child) {
    const auto position =
        std::find_if(children_.begin(), children_.end(),
                     [&](const auto& candidate) { return candidate.get() == &child; });
    std::unique_ptr<ElementNode> result = std::move(*position);
    childrenByName_.erase(result->name_);
    children_.erase(position);
    if (children_.size() <= kFewChildren) {
        childrenByName_.clear();
    }
    result->parent_ = nullptr;
    return result;
}

void ElementNode::renameChild(ElementNode& child, std::string name) {
    // The table's key is a view of the name, so it leaves the table before the name changes.
    auto entry = childrenByName_.extract(child.name_);
    child.name_ = std::move(name);
    if (entry) {
        entry.key() = child.name_;
        childrenByName_.insert(std::move(entry));
    }
}

} // namespace corvane::workbench::host
