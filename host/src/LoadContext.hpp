#pragma once

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/internal/ReferenceKeyListener.hpp>
#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::workbench::host {

class ElementNode;
class ElementTree;

/// Collects what skills ask to have resolved while a file is read, and resolves it when the whole
/// tree is known. One context serves one load.
class LoadContext final : public config::Context, private config::internal::ReferenceKeyListener {
public:
    /// The keys and requests of one element are made while its frame is the newest one. Each
    /// request is located at its key, or at the element when the key is of no file.
    class Frame {
    public:
        Frame(LoadContext& context, ElementNode& owner,
              const utils::json::decoder::Location& location);
        Frame(const Frame&) = delete;
        Frame& operator=(const Frame&) = delete;
        /// Forgets the element's requests and those of everything inside it, unless kept.
        ~Frame();

        void keep() noexcept { kept_ = true; }

    private:
        friend class LoadContext;

        /// The place of a key that has just been handed over.
        [[nodiscard]] utils::json::decoder::Location takePlace(std::string_view key);

        LoadContext& context_;
        ElementNode& owner_;
        utils::json::decoder::Location location_;
        Frame* outer_;
        std::size_t first_;
        // Where the keys stand that were read but not handed over yet; of those with the same
        // text, the one that was read first comes first.
        std::multimap<std::string, utils::json::decoder::Location, std::less<>> places_;
        bool kept_ = false;
    };

    explicit LoadContext(const LoadOptions& options) : options_(options) {}

    [[nodiscard]] std::size_t requestCount() const noexcept { return requests_.size(); }
    /// Resolves all requests in the order in which they were made. What does not resolve is added
    /// to the problems, as are references in a circle. False when the progress callback says so.
    [[nodiscard]] bool resolveAll(const ElementTree& tree, const std::filesystem::path& file,
                                  std::vector<Problem>& problems);
    /// Publishes the resolved references whose properties were configured before, with the states
    /// of empty ones. An element that throws is handed to `failed` with the exception that is being
    /// handled.
    void publishAll(const std::function<void(ElementNode&)>& failed) const;

private:
    struct Request {
        std::string key;
        model::internal::BasicElementReference* reference;
        bool isMember;
        ElementNode* owner;
        utils::json::decoder::Location location;
        std::function<void()> completion;
        bool resolved = false;
    };

    void keyRead(std::string_view key, const utils::json::decoder::Location& location) override;
    void resolveElementReference(ReferenceKey&& key,
                                 std::reference_wrapper<model::ElementReference> reference,
                                 std::function<void()>&& completion) override;
    void
    resolveMemberReference(ReferenceKey&& key,
                           std::reference_wrapper<model::internal::BasicElementReference> reference,
                           std::function<void()>&& completion) override;
    void add(ReferenceKey&& key, model::internal::BasicElementReference& reference, bool isMember,
             std::function<void()>&& completion);
    void reportCircles(const std::filesystem::path& file, std::vector<Problem>& problems) const;

    const LoadOptions& options_;
    std::vector<Request> requests_;
    Frame* frame_ = nullptr;
};

} // namespace corvane::workbench::host
