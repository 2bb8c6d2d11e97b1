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
        note.text = [this] { return toWide(_note); };
        note.setText = [this](std::wstring_view text) -> State {
            _note = toUtf8(text);
            publish(kNote, bindings::Action::Update, 0);
            return {};
        };
        callback(note);
        callback(number("level", L"Füllstand", propertyHandle(kLevel), _level));
        auto mode = describe("mode", L"Mode", propertyHandle(kMode), Editor::Choice);
        mode.choices = {L"manual", L"automatic"};
        mode.text = [this] { return _automatic ? L"automatic" : L"manual"; };
        mode.setText = [this](std::wstring_view text) -> State {
            if (text != L"manual" && text != L"automatic") {
                return tl::unexpected(std::wstring(L"must be manual or automatic"));
            }
            _automatic = text == L"automatic";
            publish(kMode, bindings::Action::Update, 0);
            return {};
        };
        callback(mode);
        callback(number("setPoint", L"Set point", propertyHandle(kSetPoint), _setPoint));
        auto summary = describe("summary", L"Summary", propertyHandle(kSummary), Editor::Text);
        summary.text = [this] { return std::to_wstring(_level) + L" %"; };
        callback(summary);
        auto count = number("limitCount", L"Number of limits", propertyHandle(kLimitCount), _count);
        count.setText = [this, set = count.setText](std::wstring_view text) -> State {
            if (auto done = set(text); !done) {
                return done;
            }
            _limits.assign(std::vector<std::int64_t>(static_cast<std::size_t>(_count), 50));
            publish(kLimits, bindings::Action::Update, 0);
            return {};
        };
        callback(count);
        auto limits =
            describe("limits", L"Limits", propertyHandle(kLimits), Editor::SubElementList);
        limits.text = [this] { return std::to_wstring(_limits.rows.size()); };
        limits.forEachSubElement = [this](const function_ref<void(skill::SubElement&)>& visit) {
            for (const auto& row : _limits.rows) {
                visit(*row);
            }
        };
        callback(limits);
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(kNote, {});
        context.configure(kLevel, {.state = [this] { return atMost(_level, 100); }});
        context.configure(kMode, {});
        context.configure(kSetPoint, {.state = [this] { return atMost(_setPoint, 100); },
                                      .visibility = [this] { return _automatic; },
                                      .visibilityDependencies = {kMode}});
        context.configure(kSummary, {.valueDependencies = {kLevel}});
        context.configure(kLimitCount, {});
        context.configure(kLimits, {}, {.subPropertyContainer = &_limits});
        _limits.assign(_loadedLimits);
    }

    void load(decoder::Object& object, config::Context&) override {
        for (const auto& [name, value] : object) {
            if (name.text() == "note") {
                _note = std::string(value.asString().view());
            } else if (name.text() == "level") {
                _level = value.asInt64();
            } else if (name.text() == "automatic") {
                _automatic = value.asBool();
            } else if (name.text() == "setPoint") {
                _setPoint = value.asInt64();
            } else if (name.text() == "limits") {
                auto array = value.asArray();
                for (auto& limit : array) {
                    _loadedLimits.push_back(limit.asInt64());
                }
                _count = static_cast<std::int64_t>(_loadedLimits.size());
            } else {
                config::throwUnknownParameterError(name);
            }
        }
    }

    void save(encoder::Object& object) const override {
        if (!_note.empty()) {
            object.addMember("note").writeString(_note);
        }
        object.addMember("level").writeNumber(numeric::format(_level));
        object.addMember("automatic").writeBool(_automatic);
        object.addMember("setPoint").writeNumber(numeric::format(_setPoint));
        encoder::Array limits = object.addMember("limits").writeArray();
        for (const auto& row : _limits.rows) {
            limits.addElement().writeNumber(numeric::format(row->high));
        }
    }

    bool
    forEachAttribute(const function_ref<bool(const model::Attribute&)>& callback) const override {
        return callback(model::Attribute("level", model::Attribute::Access::ReadOnly,
                                         corvane::workbench::data::DataType{4, 8}, {}));
    }

    std::string _note;
    std::int64_t _level = 0;
    bool _automatic = false;
    std::int64_t _setPoint = 0;
    std::int64_t _count = 0;
    std::vector<std::int64_t> _loadedLimits;
    Limits _limits;
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
        callback(reference("tank", L"Tank", *this, _tank));
        callback(reference("source", L"Source", *this, _source));
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        context.configure(_tank.propertyId(),
                          {.state = [this] { return _tank ? stateOf(_tank.element()) : State(); }},
                          {.crossReferenceController = &_tank});
        context.configure(
            _source.propertyId(),
            {.state = [this] { return _source ? stateOf(_source.attribute()) : State(); }},
            {.crossReferenceController = &_source});
    }

    void load(decoder::Object& object, config::Context& context) override {
        for (const auto& [name, value] : object) {
            if (name.text() == "tank") {
                context.resolve(config::Context::ReferenceKey(value), std::ref(_tank));
            } else if (name.text() == "source") {
                context.resolve(config::Context::ReferenceKey(value), std::ref(_source));
            } else {
                config::throwUnknownParameterError(name);
            }
        }
    }

    void save(encoder::Object& object) const override {
        if (_tank) {
            _tank.saveTo(object, "tank");
        }
        if (_source) {
            _source.saveTo(object, "source");
        }
    }

    model::ElementReference _tank;
    model::AttributeReference _source;
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
        : _id(id), _number(number), _displayName(std::move(displayName)), _category(category) {}

    [[nodiscard]] std::string_view id() const override { return _id; }
    [[nodiscard]] corvane::utils::core::Uuid uuid() const override {
        corvane::utils::core::Uuid::Bytes bytes{};
        bytes.back() = _number;
        return corvane::utils::core::Uuid(bytes);
    }
    [[nodiscard]] std::wstring displayName() const override { return _displayName; }
    [[nodiscard]] std::wstring description() const override {
        return L"A " + _displayName + L" for tests.";
    }
    [[nodiscard]] model::ElementCategory category() const override { return _category; }
    [[nodiscard]] const skill::AbstractElementFactory& factory() const override { return _factory; }
    [[nodiscard]] bool allowChildElement(const Class&) const override {
        return _category == model::ElementCategory::ElementGroup;
    }
    [[nodiscard]] std::string defaultName() const override { return std::string(_id); }

private:
    std::string_view _id;
    std::uint8_t _number;
    std::wstring _displayName;
    model::ElementCategory _category;
    Factory<E> _factory;
};

class TankSkill final : public skill::Skill {};

class TankSkillClass final : public skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "tanks"; }
    [[nodiscard]] std::wstring displayName() const override { return L"Behälter"; }
    [[nodiscard]] std::string_view version() const override { return "2.1"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(_group);
        registry.registerElementClass(_tank);
        registry.registerElementClass(_gauge);
    }
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<TankSkill>();
    }

private:
    ElementClass<Group> _group{"group", 1, L"Group", model::ElementCategory::ElementGroup};
    ElementClass<Tank> _tank{"tank", 2, L"Tank", model::ElementCategory::Device};
    ElementClass<Gauge> _gauge{"gauge", 3, L"Gauge", model::ElementCategory::DataPoint};
};

const TankSkillClass tankSkill;

} // namespace
