#include "ElementTree.hpp"

#include "ReferenceProxy.hpp"
#include "treeRules.hpp"
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/model/internal/keys.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <utility>

namespace corvane::workbench::host {

ElementTree::ElementTree() : root_(std::make_unique<ElementNode>(*this)) {}

ElementTree::~ElementTree() {
    retireProxies(*root_);
}

ElementTree::Place ElementTree::findDeepestBelow(ElementNode& top, std::string_view suffix) {
    Place place{&top, suffix};
    while (!place.rest.empty()) {
        const std::string_view rest = place.rest;
        auto begin = rest.begin();
        if (!place.node->isInvisibleRoot()) {
            if (*begin != '.') {
                break;
            }
            ++begin;
        }
        const auto end = model::internal::parseKeyComponent(rest, begin);
        ElementNode* child = place.node->findChild(std::string_view(begin, end));
        if (child == nullptr) {
            break;
        }
        place = {child, std::string_view(end, rest.end())};
    }
    return place;
}

ElementNode* ElementTree::find(std::string_view key) const {
    const Place place = findDeepest(key);
    return place.rest.empty() ? place.node : nullptr;
}

ElementNode* ElementTree::find(const utils::core::Uuid& uuid) const {
    const auto found = byUuid_.find(uuid);
    return found == byUuid_.end() ? nullptr : found->second;
}

Result<std::unique_ptr<ElementNode>>
ElementTree::makeEmptyNode(ElementNode& parent, const skill::Element::Class& elementClass) {
    std::unique_ptr<skill::Element> skillElement = elementClass.factory().createElement();
    if (!skillElement) {
        return refuse("the factory of the element class " + inQuotes(elementClass.id()) +
                      " makes no element");
    }
    auto node = std::make_unique<ElementNode>(elementClass, std::move(skillElement), std::string(),
                                              utils::core::Uuid());
    node->parent_ = &parent;
    return node;
}

Result<std::unique_ptr<ElementNode>>
ElementTree::makeNode(ElementNode& parent, const skill::Element::Class& elementClass,
                      std::string name) {
    auto made = makeEmptyNode(parent, elementClass);
    if (!made) {
        return made;
    }
    const std::unique_ptr<ElementNode>& node = *made;
    node->name_ = std::move(name);
    claimNewUuid(*node);
    try {
        callSkill(
            CurrentOperation::Kind::MakeDefault,
            [&] { skill::internal::ElementAccess::makeDefault(*node->skillElement_); }, *node);
        linkProperties(*node, [](ElementNode&) { throw; }, [] {});
    } catch (...) {
        releaseUuids(*node);
        throw;
    }
    return made;
}

bool ElementTree::claimUuid(ElementNode& node, const utils::core::Uuid& uuid) {
    if (!byUuid_.emplace(uuid, &node).second) {
        return false;
    }
    node.uuid_ = uuid;
    return true;
}

void ElementTree::claimNewUuid(ElementNode& node) {
    while (!claimUuid(node, utils::core::Uuid::generate())) {
    }
}

void ElementTree::releaseUuids(const ElementNode& top) {
    if (const auto found = byUuid_.find(top.uuid_);
        found != byUuid_.end() && found->second == &top) {
        byUuid_.erase(found);
    }
    for (const auto& child : top.children_) {
        releaseUuids(*child);
    }
}

void ElementTree::insert(ElementNode& parent, std::unique_ptr<ElementNode> node) {
    parent.insertChild(std::move(node));
}

std::unique_ptr<ElementNode> ElementTree::extract(ElementNode& node) {
    return node.parent_->extractChild(node);
}

void ElementTree::rename(ElementNode& node, std::string name) {
    node.parent_->renameChild(node, std::move(name));
}

void ElementTree::swapContents(ElementTree& other) noexcept {
    byUuid_.swap(other.byUuid_);
    root_->children_.swap(other.root_->children_);
    root_->childrenByName_.swap(other.root_->childrenByName_);
    for (ElementTree* tree : {this, &other}) {
        for (const auto& child : tree->root_->children_) {
            child->parent_ = tree->root_.get();
        }
    }
}

void ElementTree::clear() {
    retireProxies(*root_);
    byUuid_.clear();
    root_->childrenByName_.clear();
    root_->children_.clear();
}

void ElementTree::shareRootProxy(const std::shared_ptr<ReferenceProxy>& proxy) {
    root_->proxy_ = proxy;
}

void ElementTree::linkProperties(ElementNode& top, const std::function<void(ElementNode&)>& failed,
                                 const std::function<void()>& done) {
    // Bottom up and without counting at each step: every container is counted once, when all that
    // it holds has been.
    constexpr bindings::PropertyContainer::SetEnclosingPropertyContainerOptions kUncounted{
        .reservedFlag = false, .keepNewContainerCount = true, .keepOldContainerCount = true};
    for (const auto& child : top.children_) {
        linkProperties(*child, failed, done);
        child->properties_.setEnclosingPropertyContainer(top.properties_, kUncounted);
    }
    if (top.skillElement_ != nullptr) {
        try {
            callSkill(
                CurrentOperation::Kind::Configure,
                [&] {
                    top.skillElement_->setEnclosingPropertyContainer(top.properties_, kUncounted);
                },
                top);
        } catch (...) {
            failed(top);
            // It counts as configured now, so that it can be linked.
            top.skillElement_->setEnclosingPropertyContainer(top.properties_, kUncounted);
        }
    }
    top.properties_.recount();
    done();
}

void ElementTree::retireProxies(ElementNode& top) {
    walk(top, [](ElementNode& node) {
        if (const auto proxy = existingProxy(node); proxy && proxy->node() == &node) {
            proxy->retire(node.primaryKey());
        }
    });
}

void ElementTree::publishMembers(ElementNode& node) {
    if (membersPublished_) {
        membersPublished_(node);
    }
}

} // namespace corvane::workbench::host
