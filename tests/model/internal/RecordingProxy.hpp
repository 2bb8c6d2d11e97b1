#pragma once

#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>

#include <algorithm>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace corvane::tests {

/// A proxy that writes down the calls it gets, and which registration each of them concerns.
class RecordingProxy final : public workbench::model::internal::AbstractCrossReferenceProxy {
public:
    RecordingProxy(std::string key, std::vector<std::string>& calls,
                   workbench::model::Element* element = nullptr)
        : key_(std::move(key)), calls_(calls), element_(element) {}

    tl::expected<std::reference_wrapper<workbench::model::Element>, std::wstring>
    element() const override {
        if (element_ == nullptr) {
            return tl::unexpected(std::wstring(L"no element"));
        }
        return *element_;
    }
    std::size_t referenceCount() const override { return records_.size(); }
    Attachment* attach(workbench::model::internal::BasicElementReference& reference) override {
        if (failsToAttach) {
            write("attach throws");
            throw std::runtime_error("attach");
        }
        if (keepsNoRecords) {
            write("attach -> null");
            return nullptr;
        }
        auto record = std::make_unique<Record>();
        record->reference = &reference;
        record->number = ++lastNumber_;
        records_.push_back(std::move(record));
        write("attach -> ", records_.back()->number);
        return records_.back().get();
    }
    void detach(Attachment* token) noexcept override {
        if (token == nullptr) {
            write("detach(null)");
            return;
        }
        const auto record = std::find_if(records_.begin(), records_.end(),
                                         [&](const auto& r) { return r.get() == token; });
        if (record == records_.end()) {
            write("detach(unknown)");
            return;
        }
        write("detach(", (*record)->number, ")");
        records_.erase(record);
    }
    std::string primaryKey() const override { return key_; }
    void save(corvane::utils::json::encoder::Value& value, std::string_view suffix,
              std::optional<std::string_view> memberName) const override {
        writeKey(value, "", key_ + std::string(suffix), memberName);
    }

    /// The addresses that the records hold, in the order of registration.
    std::vector<const workbench::model::internal::BasicElementReference*> registered() const {
        std::vector<const workbench::model::internal::BasicElementReference*> result;
        for (const auto& record : records_) {
            result.push_back(record->reference);
        }
        return result;
    }
    void rename(std::string key) { key_ = std::move(key); }

    bool failsToAttach = false;
    bool keepsNoRecords = false;
    /// For tests that let memory run out: writing down takes memory, and detach must not fail.
    bool writesCallsDown = true;

private:
    struct Record : Attachment {
        int number = 0;
    };

    template <class... Parts>
    void write(const Parts&... parts) {
        if (writesCallsDown) {
            std::ostringstream text;
            text << key_ << ".";
            (text << ... << parts);
            calls_.push_back(text.str());
        }
    }

    std::string key_;
    std::vector<std::string>& calls_;
    workbench::model::Element* element_;
    std::vector<std::unique_ptr<Record>> records_;
    int lastNumber_ = 0;
};

} // namespace corvane::tests
