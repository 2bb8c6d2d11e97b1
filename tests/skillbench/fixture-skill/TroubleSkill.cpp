// A skill that goes wrong as its settings say. Its element classes:
//
//   trouble    misbehaves at the place and in the way that its settings name; has a reference, too
//   stillborn  its factory throws something that is no std::exception

#include <corvane/utils/core/Uuid.hpp>
#include <corvane/utils/json/decoder/Object.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/string/transcode.hpp>
#include <corvane/workbench/bindings/PropertyKey.hpp>
#include <corvane/workbench/config/Context.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/model/ElementReference.hpp>
#include <corvane/workbench/skill/AbstractElementFactory.hpp>
#include <corvane/workbench/skill/EditableProperty.hpp>
#include <corvane/workbench/skill/Element.hpp>
#include <corvane/workbench/skill/Skill.hpp>

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace {

namespace bindings = corvane::workbench::bindings;
namespace config = corvane::workbench::config;
namespace decoder = corvane::utils::json::decoder;
namespace encoder = corvane::utils::json::encoder;
namespace model = corvane::workbench::model;
namespace skill = corvane::workbench::skill;
using corvane::utils::core::function_ref;
using corvane::utils::string::toUtf8;
using corvane::utils::string::toWide;
using State = tl::expected<void, std::wstring>;

/// Needs the whole stack; the result depends on every call, so that none is left out.
std::uint64_t overflow(std::uint64_t depth) { // NOLINT(misc-no-recursion)
    volatile char frame[1024] = {};
    frame[depth % sizeof frame] = 1;
    return depth == UINT64_MAX ? 0 : overflow(depth + 1) + static_cast<std::uint64_t>(frame[0]);
}

void misbehave(std::string_view how) {
    if (how == "throw") {
        throw std::runtime_error("boom");
    }
    if (how == "throw a number") {
        throw 42;
    }
    if (how == "terminate") {
        std::terminate();
    }
    if (how == "throw where it must not") {
        []() noexcept { misbehave("throw"); }();
    }
    if (how == "abort") {
        std::abort();
    }
    if (how == "exit") {
        std::exit(0);
    }
    if (how == "segfault") {
        // Not null, which the sanitizers would find earlier.
        volatile std::uintptr_t nowhere = 64;
        *reinterpret_cast<volatile int*>(nowhere) = 1;
    }
    if (how == "overflow") {
        (void)overflow(0);
    }
    if (how == "interrupt") {
        std::raise(SIGTERM);
    }
    if (how == "change the file") {
        std::ofstream("plant.json", std::ios::binary | std::ios::app) << ' ';
    }
}

class Trouble final : public skill::Element {
public:
    static const bindings::PropertyKey kNote;

    ~Trouble() override { act("destroy"); }

    void
    forEachEditableProperty(function_ref<void(const skill::EditableProperty&)> callback) override {
        act("properties");
        skill::EditableProperty note;
        note.name = "note";
        note.displayName = L"Note";
        note.property = propertyHandle(kNote);
        note.text = [this] {
            act("value");
            return toWide(note_);
        };
        note.setText = [this](std::wstring_view text) -> State {
            act("set");
            note_ = toUtf8(text);
            isSet_ = true;
            publish(kNote, bindings::Action::Update, 0);
            return {};
        };
        callback(note);
        skill::EditableProperty target;
        target.name = "target";
        target.displayName = L"Target";
        target.editor = skill::EditableProperty::Editor::Reference;
        target.property = propertyHandle(target_.propertyId());
        callback(target);
    }

private:
    void configureProperties(PropertyConfigurationContext& context) override {
        act("configure");
        const auto noteState = [this]() -> State {
            act("state");
            if (isSet_) {
                act("new state");
            }
            return {};
        };
        context.configure(kNote, {.state = noteState});
        const auto targetState = [this]() -> State {
            if (target_ && !target_.element()) {
                act("lost target");
            }
            return {};
        };
        context.configure(target_.propertyId(), {.state = targetState},
                          {.crossReferenceController = &target_});
    }

    void load(decoder::Object& object, config::Context& context) override {
        for (const auto& [name, value] : object) {
            if (name.text() == "where") {
                where_ = std::string(value.asString().view());
            } else if (name.text() == "how") {
                how_ = std::string(value.asString().view());
            } else if (name.text() == "note") {
                note_ = std::string(value.asString().view());
            } else if (name.text() == "target") {
                context.resolve(config::Context::ReferenceKey(value), std::ref(target_));
            } else {
                config::throwUnknownParameterError(name);
            }
        }
        act("load");
    }

    void save(encoder::Object& object) const override {
        act("save");
        object.addMember("note").writeString(note_);
        if (where_ == "save" && how_ == "what is not read") {
            object.addMember("speed").writeNull();
        }
    }

    bool forEachAttribute(const function_ref<bool(const model::Attribute&)>&) const override {
        act("members");
        return false;
    }

    void act(std::string_view where) const {
        if (where_ == where) {
            misbehave(how_);
        }
    }

    std::string where_;
    std::string how_;
    std::string note_;
    model::ElementReference target_;
    bool isSet_ = false;
};

const bindings::PropertyKey Trouble::kNote;

class Factory final : public skill::AbstractElementFactory {
public:
    explicit Factory(bool isAble) : isAble_(isAble) {}

    [[nodiscard]] std::unique_ptr<skill::Element> createElement() const override {
        if (!isAble_) {
            misbehave("throw a number");
        }
        return std::make_unique<Trouble>();
    }
    [[nodiscard]] std::unique_ptr<skill::Element>
    copyElement(const skill::Element&) const override {
        throw std::logic_error("elements are not copied in these tests");
    }

private:
    bool isAble_;
};

class ElementClass final : public skill::Element::Class {
public:
    ElementClass(std::string_view id, std::uint8_t number, bool isAble)
        : id_(id), number_(number), factory_(isAble) {}

    [[nodiscard]] std::string_view id() const override { return id_; }
    [[nodiscard]] corvane::utils::core::Uuid uuid() const override {
        corvane::utils::core::Uuid::Bytes bytes{};
        bytes.back() = number_;
        return corvane::utils::core::Uuid(bytes);
    }
    [[nodiscard]] std::wstring displayName() const override { return L"Trouble"; }
    [[nodiscard]] std::wstring description() const override { return L"Goes wrong."; }
    [[nodiscard]] model::ElementCategory category() const override {
        return model::ElementCategory::ElementGroup;
    }
    [[nodiscard]] const skill::AbstractElementFactory& factory() const override { return factory_; }
    [[nodiscard]] bool allowChildElement(const Class&) const override { return true; }
    [[nodiscard]] std::string defaultName() const override { return "Trouble"; }

private:
    std::string_view id_;
    std::uint8_t number_;
    Factory factory_;
};

class TroubleSkill final : public skill::Skill {};

class TroubleSkillClass final : public skill::Skill::Class {
public:
    [[nodiscard]] std::string_view id() const override { return "troubles"; }
    [[nodiscard]] std::wstring displayName() const override { return L"Troubles"; }
    [[nodiscard]] std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry& registry) const override {
        registry.registerElementClass(trouble_);
        registry.registerElementClass(stillborn_);
    }
    [[nodiscard]] std::unique_ptr<skill::Skill> createSkill() const override {
        return std::make_unique<TroubleSkill>();
    }

private:
    ElementClass trouble_{"trouble", 101, true};
    ElementClass stillborn_{"stillborn", 102, false};
};

const TroubleSkillClass troubleSkill;

} // namespace
