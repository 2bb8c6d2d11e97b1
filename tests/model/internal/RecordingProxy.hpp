#pragma once

// A proxy that writes down the calls it gets, and which registration each of them concerns.

#include <corvane/workbench/model/internal/AbstractCrossReferenceProxy.hpp>

#include <algorithm>
#include <format>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace corvane::tests {

class RecordingProxy final : public workbench::model::internal::AbstractCrossReferenceProxy {
public:
    RecordingProxy(std::string key, std::vector<std::string>& calls,
                   workbench::model::Element* element = nullptr)
        : _key(std::move(key)), _calls(calls), _element(element) {}

    tl::expected<std::reference_wrapper<workbench::model::Element>, std::wstring>
    element() const override {
        if (_element == nullptr) {
            return tl::unexpected(std::wstring(L"no element"));
        }
        return *_element;
    }
    std::size_t referenceCount() const override { return _records.size(); }
    Attachment* attach(workbench::model::internal::BasicElementReference& reference) override {
        if (failsToAttach) {
            _calls.push_back(_key + ".attach throws");
            throw std::runtime_error("attach");
        }
        if (keepsNoRecords) {
            _calls.push_back(_key + ".attach -> null");
            return nullptr;
        }
        _records.push_back(std::make_unique<Record>());
        Record& record = *_records.back();
        record.reference = &reference;
        record.number = ++_lastNumber;
        _calls.push_back(std::format("{}.attach -> {}", _key, record.number));
        return &record;
    }
    void detach(Attachment* token) noexcept override {
        if (token == nullptr) {
            _calls.push_back(_key + ".detach(null)");
            return;
        }
        const auto record = std::find_if(_records.begin(), _records.end(),
                                         [&](const auto& r) { return r.get() == token; });
        if (record == _records.end()) {
            _calls.push_back(_key + ".detach(unknown)");
            return;
        }
        _calls.push_back(std::format("{}.detach({})", _key, (*record)->number));
        _records.erase(record);
    }
    std::string primaryKey() const override { return _key; }
    void save(corvane::utils::json::encoder::Value& value, std::string_view suffix,
              std::optional<std::string_view> memberName) const override {
        writeKey(value, "", _key + std::string(suffix), memberName);
    }

    /// The addresses that the records hold, in the order of registration.
    std::vector<const workbench::model::internal::BasicElementReference*> registered() const {
        std::vector<const workbench::model::internal::BasicElementReference*> result;
        for (const auto& record : _records) {
            result.push_back(record->reference);
        }
        return result;
    }
    void rename(std::string key) { _key = std::move(key); }

    bool failsToAttach = false;
    bool keepsNoRecords = false;

private:
    struct Record : Attachment {
        int number = 0;
    };

    std::string _key;
    std::vector<std::string>& _calls;
    workbench::model::Element* _element;
    std::vector<std::unique_ptr<Record>> _records;
    int _lastNumber = 0;
};

} // namespace corvane::tests
