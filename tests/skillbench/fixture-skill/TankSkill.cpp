// A small skill for the tests of skillbench. Its element classes:
//
//   group   accepts every child; no settings
//   tank    accepts none; one property of each kind that skillbench treats in its own way
//   gauge   accepts none; a reference to a tank and one to an attribute

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/numeric/format.hpp>
#include <corvane/utils/numeric/parse.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyContainer.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/Attribute.hpp>
#include <corvane/workbench/model/AttributeReference.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace bindings = corvane::workbench::bindings;
namespace config = corvane::workbench::config;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;
namespace model = corvane::workbench::model;
namespace numeric = corvane::utils::numeric;
namespace skill = corvane::workbench::skill;
using bindings::PropertyKey;
using corvane::utils::core::function_ref;
using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;
using skill::EditableProperty;
using State = tl::expected<void, std::wstring>;

EditableProperty describe(std::string name, std::wstring displayName,
                          const bindings::PropertyHandle& property,
                          EditableProperty::Editor editor) {
    EditableProperty result;
    result.name = std::move(name);
    result.displayName = std::move(displayName);
    result.property = property;
    result.editor = editor;
    return result;
}

EditableProperty number(std::string name, std::wstring displayName,
                        const bindings::PropertyHandle& property, std::int64_t& value) {
    auto result = describe(std::move(name), std::move(displayName), property,
                           EditableProperty::Editor::Number);
    result.text = [&value] { return std::to_wstring(value); };
    result.setText = [&value, property](std::wstring_view text) -> State {
        const auto parsed = numeric::parse<std::int64_t>(toUtf8(text));
        if (!parsed) {
            return tl::unexpected(std::wstring(L"not a whole number"));
        }
        value = *parsed;
        property.publish(bindings::Action::Update, 0);
        return {};
    };
    return result;
}

EditableProperty reference(std::string name, std::wstring displayName,
                           bindings::PropertyController& controller,
                           const model::internal::BasicElementReference& value) {
    auto result = describe(std::move(name), std::move(displayName),
                           controller.propertyHandle(value.propertyId()),
                           EditableProperty::Editor::Reference);
    result.text = [&value] { return toWide(value.data().primaryKey()); };
    return result;
}

State atMost(std::int64_t value, std::int64_t limit) {
    if (value > limit) {
        return tl::unexpected(L"must be at most " + std::to_wstring(limit));
    }
    return {};
}

class Limit final : public skill::SubElement {
public:
    static const PropertyKey kHigh;

    Limit() = default;
    explicit Limit(std::int64_t value) : high(value) {}

    [[nodiscard]] std::wstring displayName() const override { return L"Limit"; }
    void forEachEditableProperty(function_ref<void(const EditableProperty&)> callback) override {
        callback(number("high", L"High", propertyHandle(kHigh), high));
    }

    std::int64_t high = 0;

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kHigh, {.state = [this] { return atMost(high, 100); }});
    }
};

const PropertyKey Limit::kHigh;

class Limits final : public bindings::PropertyContainer {
public:
    /// The rows are others afterwards, at other places.
    void assign(const std::vector<std::int64_t>& values) {
        std::vector<std::unique_ptr<Limit>> replacements;
        for (const std::int64_t value : values) {
            replacements.push_back(std::make_unique<Limit>(value));
        }
        rows = std::move(replacements);
        subPropertyContainerListChanged({.updateEnclosingContainers = true});
    }

    std::vector<std::unique_ptr<Limit>> rows;

private:
    void forEachSubPropertyContainer(const function_ref<void(PropertyContainer&)>& callback,
                                     bool /*includeInvisible*/) override {
        for (const auto& row : rows) {
            callback(*row);
        }
    }
    void forEachLocalCrossReference(const function_ref<void(bindings::CrossReferenceController&)>&,
                                    bool) override {}
    [[nodiscard]] std::uint64_t localPropertyErrorCount() const override { return 0; }
    void propertyNotificationRaised(const bindings::PropertyId&) override {}
};

class Group final : public skill::Element {
public:
    void forEachEditableProperty(function_ref<void(const EditableProperty&)>) override {}
};

class Tank final : public skill::Element {
public:
    static const PropertyKey kNote;
    static const PropertyKey kLevel;
    static const PropertyKey kMode;
    static const PropertyKey kSetPoint;
    static const PropertyKey kSummary;
    static const PropertyKey kLimitCount;
    static const PropertyKey kLimits;

    void forEachEditableProperty(function_ref<void(const EditableProperty&)> callback) override {
        using Editor = EditableProperty::Editor;
        auto note = describe("note", L"Note", propertyHandle(kNote), Editor::Text);
        note.text = [this] { return toWide(note_); };
        note.setText = [this](std::wstring_view text) -> State {
            note_ = toUtf8(text);
            publish(kNote, bindings::Action::Update, 0);
            return {};
        };
        callback(note);
        callback(number("level", L"Füllstand", propertyHandle(kLevel), level_));
        auto mode = describe("mode", L"Mode", propertyHandle(kMode), Editor::Choice);
        mode.choices = {L"manual", L"automatic"};
        mode.text = [this] { return automatic_ ? L"automatic" : L"manual"; };
        mode.setText = [this](std::wstring_view text) -> State {
            if (text != L"manual" && text != L"automatic") {
                return tl::unexpected(std::wstring(L"must be manual or automatic"));
            }
            automatic_ = text == L"automatic";
            publish(kMode, bindings::Action::Update, 0);
            return {};
        };
        callback(mode);
        callback(number("setPoint", L"Set point", propertyHandle(kSetPoint), setPoint_));
        auto summary = describe("summary", L"Summary", propertyHandle(kSummary), Editor::Text);
        summary.text = [this] { return std::to_wstring(level_) + L" %"; };
        callback(summary);
        auto count = number("limitCount", L"Number of limits", propertyHandle(kLimitCount), count_);
        count.setText = [this, set = count.setText](std::wstring_view text) -> State {
            if (auto done = set(text); !done) {
                return done;
            }
            limits_.assign(std::vector<std::int64_t>(static_cast<std::size_t>(count_), 50));
            publish(kLimits, bindings::Action::Update, 0);
            return {};
        };
        callback(count);
        auto limits =
            describe("limits", L"Limits", propertyHandle(kLimits), Editor::SubElementList);
        limits.text = [this] { return std::to_wstring(limits_.rows.size()); };
        limits.forEachSubElement = [this](const function_ref<void(skill::SubElement&)>& visit) {
            for (const auto& row : limits_.rows) {
                visit(*row);
            }
        };
        callback(limits);
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kNote, {});
        context.configure(kLevel, {.state = [this] { return atMost(level_, 100); }});
        context.configure(kMode, {});
        context.configure(kSetPoint, {.state = [this] { return atMost(setPoint_, 100); },
                                      .visibility = [this] { return automatic_; },
                                      .visibilityDependencies = {kMode}});
        context.configure(kSummary, {.valueDependencies = {kLevel}});
        context.configure(kLimitCount, {});
        context.configure(kLimits, {}, {.subPropertyContainer = &limits_});
        limits_.assign(loadedLimits_);
    }

    void load(decoder::Object& object, config::Context&) override {
        for (const auto& [name, value] : object) {
            if (name.text() == "note") {
                note_ = std::string(value.asString().view());
            } else if (name.text() == "level") {
                level_ = value.asInt64();
            } else if (name.text() == "automatic") {
                automatic_ = value.asBool();
            } else if (name.text() == "setPoint") {
                setPoint_ = value.asInt64();
            } else if (name.text() == "limits") {
                auto array = value.asArray();
                for (auto& limit : array) {
                    loadedLimits_.push_back(limit.asInt64());
                }
                count_ = static_cast<std::int64_t>(loadedLimits_.size());
            } else {
                config::throwUnknownParameterError(name);
            }
        }
    }

    void save(encoder::Object& object) const override {
        if (!note_.empty()) {
            object.addMember("note").writeString(note_);
        }
        object.addMember("level").writeNumber(numeric::format(level_));
        object.addMember("automatic").writeBool(automatic_);
        object.addMember("setPoint").writeNumber(numeric::format(setPoint_));
        encoder::Array limits = object.addMember("limits").writeArray();
        for (const auto& row : limits_.rows) {
            limits.addElement().writeNumber(numeric::format(row->high));
        }
    }

    bool
    forEachAttribute(const function_ref<bool(const model::Attribute&)>& callback) const override {
        return callback(model::Attribute("level", model::Attribute::Access::ReadOnly,
                                         corvane::workbench::data::DataType{4, 8}, {}));
    }

    std::string note_;
    std::int64_t level_ = 0;
    bool automatic_ = false;
    std::int64_t setPoint_ = 0;
    std::int64_t count_ = 0;
    std::vector<std::int64_t> loadedLimits_;
    Limits limits_;
};

const PropertyKey Tank::kNote;
const PropertyKey Tank::kLevel;
const PropertyKey Tank::kMode;
const PropertyKey Tank::kSetPoint;
const PropertyKey Tank::kSummary;
const PropertyKey Tank::kLimitCount;
const PropertyKey Tank::kLimits;

template <class Found>
State stateOf(const Found& found) {
    if (!found) {
        return tl::unexpected(found.error());
    }
    return {};
}

class Gauge final : public skill::Element {
public:
    void forEachEditableProperty(function_ref<void(const EditableProperty&)> callback) override {
        callback(reference("tank", L"Tank", *this, tank_));
        callback(reference("source", L"Source", *this, source_));
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(tank_.propertyId(),
                          {.state = [this] { return tank_ ? stateOf(tank_.element()) : State(); }},
                          {.crossReferenceController = &tank_});
        context.configure(
            source_.propertyId(),
            {.state = [this] { return source_ ? stateOf(source_.attribute()) : State(); }},
            {.crossReferenceController = &source_});
    }

    void load(decoder::Object& object, config::Context& context) override {
        for (const auto& [name, value] : object) {
            if (name.text() == "tank") {
                context.resolve(config::Context::ReferenceKey(value), std::ref(tank_));
            } else if (name.text() == "source") {
                context.resolve(config::Context::ReferenceKey(value), std::ref(source_));
            } else {
                config::throwUnknownParameterError(name);
            }
        }
    }

    void save(encoder::Object& object) const override {
        if (tank_) {
            tank_.saveTo(object, "tank");
        }
        if (source_) {
            source_.saveTo(object, "source");
        }
    }

    model::ElementReference tank_;
    model::AttributeReference source_;
};

template <class E>
class Factory final : public skill::AbstractElementFactory {
public:
    [[nodiscard]] std::unique_ptr<skill::Element> createElement() const override {
        return std::make_unique<E>();
    }
    [[nodiscard]] std::unique_ptr<skill::Element>
    copyElement(const skill::Element&) const override {
        throw std::logic_error("elements are not copied in these tests");
    }
};

template <class E>
class ElementClass final : public skill::Element::Class {
public:
    ElementClass(std::string_view id, std::uint8_t number, std::wstring displayName,
                 model::ElementCategory category)
        : id_(id), number_(number), displayName_(std::move(displayName)), category_(category) {}

    [[nodiscard]] std::string_view id() const override { return id_; }
    [[nodiscard]] corvane::utils::core::Uuid uuid() const override {
        corvane::utils::core::Uuid::Bytes bytes{};
        bytes.back() = number_;
        return corvane::utils::core::Uuid(bytes);
    }
    [[nodiscard]] std::wstring displayName() const override { return displayName_; }
    [[nodiscard]] std::wstring description() const override {
        return L"A " + displayName_ + L" for tests.";
    }
    [[nodiscard]] model::ElementCategory category() const override { return category_; }
    [[nodiscard]] const skill::AbstractElementFactory& factory() const override { return factory_; }
    [[nodiscard]] bool allowChildElement(const Class&) const override {
        return category_ == model::ElementCategory::ElementGroup;
    }
    [[nodiscard]] std::string defaultName() const override { return std::string(id_); }

private:
    std::string_view id_;
    std::uint8_t number_;
    std::wstring displayName_;
    model::ElementCategory category_;
    Factory<E> factory_;
};

class TankSkill final : public skill::Skill {};

class TankSkillClass final : public skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "tanks"; }
    [[nodiscard]] std::wstring displayName() const override { return L"Behälter"; }
    [[nodiscard]] std::string_view version() const override { return "2.1"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(group_);
        registry.registerElementClass(tank_);
        registry.registerElementClass(gauge_);
    }
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<TankSkill>();
    }

private:
    ElementClass<Group> group_{"group", 1, L"Group", model::ElementCategory::ElementGroup};
    ElementClass<Tank> tank_{"tank", 2, L"Tank", model::ElementCategory::Device};
    ElementClass<Gauge> gauge_{"gauge", 3, L"Gauge", model::ElementCategory::DataPoint};
};

const TankSkillClass tankSkill;

} // namespace
