#pragma once

#include "ElementTree.hpp"
#include "ReferenceProxy.hpp"
#include "ReferenceUpdates.hpp"
#include <corvane/utils/io/InputStream.hpp>
#include <corvane/workbench/host/Workbench.hpp>

#include <cstddef>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::workbench::host {

/// What a workbench is made of, and the steps that its operations share.
class Workbench::State {
public:
    /// One change of the tree: refuses further ones until everybody has heard of it, and collects
    /// what goes wrong on the way.
    class Edit {
    public:
        explicit Edit(State& state) : state_(state) { state_.editing_ = true; }
        Edit(const Edit&) = delete;
        Edit& operator=(const Edit&) = delete;
        ~Edit() { state_.editing_ = false; }

        template <class Call>
        void guarded(Call&& call) {
            try {
                call();
            } catch (...) {
                if (!firstFailure_) {
                    firstFailure_ = std::current_exception();
                }
            }
        }
        template <class Call>
        void tellObservers(Call&& call) {
            const std::vector<Observer*> told = state_.observers;
            for (Observer* observer : told) {
                guarded([&] { call(*observer); });
            }
        }
        void announceReferences() {
            const std::vector<Observer*> told = state_.observers;
            references.announce(told, firstFailure_);
        }
        /// Ends the edit; throws what was thrown first.
        void finish() {
            state_.editing_ = false;
            const auto changed = std::exchange(state_.changedMembers_, {});
            for (const std::weak_ptr<ReferenceProxy>& proxy : changed) {
                guarded([&] { state_.membersChanged(proxy.lock()); });
            }
            if (firstFailure_) {
                std::rethrow_exception(firstFailure_);
            }
        }

        ReferenceUpdates references;

    private:
        State& state_;
        std::exception_ptr firstFailure_;
    };

    State() {
        tree.onMembersPublished([this](ElementNode& node) { membersPublished(node); });
    }

    [[nodiscard]] bool editing() const noexcept { return editing_; }

    Result<void> addSkills(std::span<const std::reference_wrapper<const skill::Skill::Class>> added,
                           const std::filesystem::path& library);
    LoadResult load(utils::io::InputStream<char>& stream, const std::filesystem::path& file,
                    const LoadOptions& options);

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
    [[nodiscard]] bool read(utils::io::InputStream<char>& stream, const std::filesystem::path& file,
                            const LoadOptions& options, ElementTree& staging,
                            std::vector<Problem>& problems);
    void replaceTree(ElementTree& staging);

    bool editing_ = false;
    // Published while an edit was under way.
    std::vector<std::weak_ptr<ReferenceProxy>> changedMembers_;
};

} // namespace corvane::workbench::host
