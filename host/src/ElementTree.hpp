#pragma once

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace corvane::workbench::host {

/// The nodes of one tree, found by key and by UUID. Knows nothing of references but that whoever
/// points at an element that ends must be told.
class ElementTree {
public:
    /// What a key leads to: the deepest element on its way that exists, and the rest behind it,
    /// beginning with "." unless the element is the root.
    struct Place {
        ElementNode* node;
        std::string_view rest;
    };

    ElementTree();
    ElementTree(const ElementTree&) = delete;
    ElementTree& operator=(const ElementTree&) = delete;
    ~ElementTree();

    [[nodiscard]] ElementNode& root() noexcept { return *root_; }
    [[nodiscard]] const ElementNode& root() const noexcept { return *root_; }
    [[nodiscard]] std::size_t elementCount() const noexcept { return byUuid_.size(); }

    [[nodiscard]] Place findDeepest(std::string_view key) const {
        return findDeepestBelow(*root_, key);
    }
    /// The same for a suffix of a key below an element.
    [[nodiscard]] static Place findDeepestBelow(ElementNode& top, std::string_view suffix);
    /// The element of that key, or null.
    [[nodiscard]] ElementNode* find(std::string_view key) const;
    [[nodiscard]] ElementNode* find(const utils::core::Uuid& uuid) const;

    /// A node below the parent but not inserted yet, with what the class's factory makes, without
    /// name and UUID. Throws what the skill throws; a factory that makes nothing is a problem.
    [[nodiscard]] static Result<std::unique_ptr<ElementNode>>
    makeEmptyNode(ElementNode& parent, const skill::Element::Class& elementClass);
    /// The same for a new element, with the class's initial settings, a name and a UUID.
    [[nodiscard]] Result<std::unique_ptr<ElementNode>>
    makeNode(ElementNode& parent, const skill::Element::Class& elementClass, std::string name);

    /// Gives a node, in the tree or about to be, its UUID. False when another node has it.
    [[nodiscard]] bool claimUuid(ElementNode& node, const utils::core::Uuid& uuid);
    /// Gives a node a UUID of its own.
    void claimNewUuid(ElementNode& node);
    /// Takes the UUIDs of a node and of everything below it out of the table.
    void releaseUuids(const ElementNode& top);

    /// Precondition: the name is valid and no other child of the parent has it, the UUIDs are
    /// claimed.
    void insert(ElementNode& parent, std::unique_ptr<ElementNode> node);
    [[nodiscard]] std::unique_ptr<ElementNode> extract(ElementNode& node);
    void rename(ElementNode& node, std::string name);
    /// Exchanges everything but the roots.
    void swapContents(ElementTree& other) noexcept;
    /// Destroys everything but the root.
    void clear();

    /// Counts the errors of a node and everything below it, which are linked to each other by it,
    /// and leaves the node itself without an enclosing container. A node whose skill element fails
    /// to describe its properties is handed to `failed` with the exception that is being handled;
    /// `done` is called after each node.
    static void linkProperties(ElementNode& top, const std::function<void(ElementNode&)>& failed,
                               const std::function<void()>& done);

    /// Tells the proxies of a node and of everything below it that their elements end.
    static void retireProxies(ElementNode& top);

    /// Calls the function with a node and everything below it, a node before its children.
    template <class Visit>
    static void walk(ElementNode& top, Visit&& visit) {
        visit(top);
        for (std::size_t index = 0; index < top.childCount(); ++index) {
            walk(top.child(index), visit);
        }
    }

    /// Lets references to the root register with another proxy, which stands for another root.
    void shareRootProxy(const std::shared_ptr<ReferenceProxy>& proxy);

    void publishMembers(ElementNode& node);
    void onMembersPublished(std::function<void(ElementNode&)> callback) {
        membersPublished_ = std::move(callback);
    }

    // What is private to the nodes, for those who edit the tree.

    [[nodiscard]] static std::shared_ptr<ReferenceProxy> proxy(const ElementNode& node) {
        return node.proxy();
    }
    [[nodiscard]] static std::shared_ptr<ReferenceProxy>
    existingProxy(const ElementNode& node) noexcept {
        return node.existingProxy();
    }

private:
    std::unordered_map<utils::core::Uuid, ElementNode*> byUuid_;
    std::function<void(ElementNode&)> membersPublished_;
    std::unique_ptr<ElementNode> root_;
};

} // namespace corvane::workbench::host
