#include "BoundaryProbe.hpp"
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/utils/json/decoder/Name.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>

#include <stdexcept>
#include <utility>

namespace {

namespace decoder = corvane::utils::json::decoder;
namespace skill = corvane::workbench::skill;

class Probe final : public corvane::tests::BoundaryProbe {
public:
    void throwStandard() const override { throw std::runtime_error("from the skill"); }

    void throwLocated() const override {
        corvane::workbench::config::throwUnknownParameterError(
            decoder::Name("speed", decoder::Location(3, 5)));
    }

    std::string
    nameWhatComesOut(corvane::utils::core::function_ref<void()> function) const override {
        try {
            function();
        } catch (const decoder::Exception& exception) {
            return "located " + std::to_string(exception.location().line());
        } catch (const std::out_of_range& exception) {
            return std::string("out_of_range ") + exception.what();
        } catch (const std::exception& exception) {
            return std::string("exception ") + exception.what();
        }
        return "nothing";
    }

    tl::expected<std::wstring, std::wstring> longText(bool asError) const override {
        std::wstring text(1000, asError ? L'e' : L'v');
        if (asError) {
            return tl::unexpected(std::move(text));
        }
        return text;
    }

    std::string doubled(std::string&& text) const override {
        const std::string own = std::move(text);
        return own + own;
    }
};

class BoundaryClass final : public skill::Skill::Class {
public:
    std::string_view id() const override { return BOUNDARY_SKILL_ID; }
    std::wstring displayName() const override { return L"Boundary"; }
    std::string_view version() const override { return "1.0"; }
    void registerElementClasses(Registry&) const override {}
    std::unique_ptr<skill::Skill> createSkill() const override { return std::make_unique<Probe>(); }
};

const BoundaryClass kClass;

} // namespace
