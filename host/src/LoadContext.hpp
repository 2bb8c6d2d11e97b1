#pragma once

#include <corvane/utils/json/decoder/Location.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/host/LoadOptions.hpp>
#include <corvane/workbench/host/Problem.hpp>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace corvane::workbench::host {

class ElementNode;
class ElementTree;

/// Collects what skills ask to have resolved while a file is read, and resolves it when the whole
/// tree is known. One context serves one load.
class LoadContext final : public config::Context {
public:
    /// The requests of one element are made while its frame is the newest one.
    class Frame {
    public:
        Frame(LoadContext& context, ElementNode& owner);
        Frame(const Frame&) = delete;
        Frame& operator=(const Frame&) = delete;
        /// Forgets the element's requests and those of everything inside it, unless kept.
        ~Frame();

        /// Keeps the requests. Each is located at the string in the element's JSON object that
        /// holds its key, or at the element when the key stands nowhere as it is.
        void keep(const utils::json::decoder::Value& object,
                  const utils::json::decoder::Location& element);

    private:
        friend class LoadContext;

        LoadContext& context_;
        ElementNode& owner_;
        Frame* outer_;
        std::size_t first_;
        std::vector<std::size_t> requests_;
        bool kept_ = false;
    };

    explicit LoadContext(const LoadOptions& options) : options_(options) {}

    [[nodiscard]] std::size_t requestCount() const noexcept { return requests_.size(); }
    /// Resolves all requests in the order in which they were made. What does not resolve is added
    /// to the problems, as are references in a circle. False when the progress callback says so.
    [[nodiscard]] bool resolveAll(const ElementTree& tree, const std::filesystem::path& file,
                                  std::vector<Problem>& problems);

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
