#include "ElementTree.hpp"

#include "ReferenceProxy.hpp"

#include <corvane/workbench/model/internal/keys.hpp>

#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

namespace corvane::workbench::host {

ElementTree::ElementTree() : _root(std::make_unique<ElementNode>(*this)) {}

ElementTree::~ElementTree() {
    retireProxies(*_root);
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

ElementNode* ElementTree::find(const corvane::utils::core::Uuid& uuid) const {
    const auto found = _byUuid.find(uuid);
    return found == _byUuid.end() ? nullptr : found->second;
}

std::unique_ptr<ElementNode> ElementTree::makeNode(ElementNode& parent,
                                                   const skill::Element::Class& elementClass,
                                                   std::string name) {
    auto node = std::make_unique<ElementNode>(elementClass, elementClass.factory().createElement(),
                                              std::move(name), corvane::utils::core::Uuid());
    node->_parent = &parent;
    claimNewUuid(*node);
    try {
        skill::internal::ElementAccess::makeDefault(*node->_skillElement);
        linkProperties(*node, [](ElementNode&) { throw; }, [] {});
    } catch (...) {
        releaseUuids(*node);
        throw;
    }
    return node;
}

bool ElementTree::claimUuid(ElementNode& node, const corvane::utils::core::Uuid& uuid) {
    if (!_byUuid.emplace(uuid, &node).second) {
        return false;
    }
    node._uuid = uuid;
    return true;
}

void ElementTree::claimNewUuid(ElementNode& node) {
    while (!claimUuid(node, corvane::utils::core::Uuid::generate())) {
    }
}

void ElementTree::releaseUuids(const ElementNode& top) {
    if (const auto found = _byUuid.find(top._uuid);
        found != _byUuid.end() && found->second == &top) {
        _byUuid.erase(found);
    }
    for (const auto& child : top._children) {
        releaseUuids(*child);
    }
}

void ElementTree::insert(ElementNode& parent, std::unique_ptr<ElementNode> node) {
    parent.insertChild(std::move(node));
}

std::unique_ptr<ElementNode> ElementTree::extract(ElementNode& node) {
    return node._parent->extractChild(node);
}

void ElementTree::rename(ElementNode& node, std::string name) {
    node._parent->renameChild(node, std::move(name));
}

void ElementTree::swapContents(ElementTree& other) noexcept {
    _byUuid.swap(other._byUuid);
    _root->_children.swap(other._root->_children);
    _root->_childrenByName.swap(other._root->_childrenByName);
    for (ElementTree* tree : {this, &other}) {
        for (const auto& child : tree->_root->_children) {
            child->_parent = tree->_root.get();
        }
    }
}

void ElementTree::clear() {
    retireProxies(*_root);
    _byUuid.clear();
    _root->_childrenByName.clear();
    _root->_children.clear();
}

void ElementTree::shareRootProxy(const std::shared_ptr<ReferenceProxy>& proxy) {
    _root->_proxy = proxy;
}

void ElementTree::linkProperties(ElementNode& top, const std::function<void(ElementNode&)>& failed,
                                 const std::function<void()>& done) {
    // Bottom up and without counting at each step: every container is counted once, when all that
    // it holds has been.
    constexpr bindings::PropertyContainer::SetEnclosingPropertyContainerOptions kUncounted{
        .reservedFlag = false, .keepNewContainerCount = true, .keepOldContainerCount = true};
    for (const auto& child : top._children) {
        linkProperties(*child, failed, done);
        child->_properties.setEnclosingPropertyContainer(top._properties, kUncounted);
    }
    if (top._skillElement != nullptr) {
        try {
            top._skillElement->setEnclosingPropertyContainer(top._properties, kUncounted);
        } catch (...) {
            failed(top);
            // It counts as configured now, so that it can be linked.
            top._skillElement->setEnclosingPropertyContainer(top._properties, kUncounted);
        }
    }
    top._properties.recount();
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
    if (_membersPublished) {
        _membersPublished(node);
    }
}

} // namespace corvane::workbench::host
