#include "ConfigurationReader.hpp"

#include "ElementTree.hpp"
#include "LoadContext.hpp"
#include "reservedMembers.hpp"
#include "treeRules.hpp"
#include <corvane/utils/json/decoder/Exception.hpp>
#include <corvane/workbench/config/throwUnknownParameterError.hpp>
#include <corvane/workbench/host/CurrentOperation.hpp>
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/elementName.hpp>
#include <corvane/workbench/host/text.hpp>
#include <corvane/workbench/json/DecodingOptions.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

#include <memory>
#include <stdexcept>
#include <unordered_set>
#include <utility>

namespace corvane::workbench::host {

namespace decoder = utils::json::decoder;

namespace {

/// The text of a syntax error without the line, which the problem has itself.
std::string withoutLine(std::string text) {
    constexpr std::string_view kPrefix = "JSON syntax error (line ";
    if (text.starts_with(kPrefix)) {
        if (const std::size_t end = text.find("): "); end != std::string::npos) {
            return "JSON syntax error" + text.substr(end + 1);
        }
    }
    return text;
}

} // namespace

Problem problemOf(const std::exception& exception, const std::filesystem::path& file,
                  const decoder::Location& fallback) {
    decoder::Location location = fallback;
    if (const auto* located = dynamic_cast<const decoder::Exception*>(&exception);
        located != nullptr && located->location()) {
        location = located->location();
    }
    Problem problem{file, location.line(), location.column(), Problem::Severity::Error,
                    withoutLine(exception.what())};
    if (const auto* failure = dynamic_cast<const SkillFailure*>(&exception);
        failure != nullptr && failure->line() != 0) {
        problem.line = failure->line();
        problem.column = failure->column();
    }
    return problem;
}

/// Something wrong with the configuration itself.
struct ConfigurationReader::Fault : std::runtime_error {
    Fault(const decoder::Location& where, const std::string& text)
        : std::runtime_error(text), location(where) {}

    decoder::Location location;
};

/// Unwinds through the skills to the beginning of the load.
struct ConfigurationReader::GivenUp : std::runtime_error {
    GivenUp() : std::runtime_error("the load was given up") {}
};

/// What an element's object says for the workbench; the filter that takes it out.
class ConfigurationReader::ElementMembers {
public:
    ElementMembers(ConfigurationReader& reader, ElementNode& node) : reader_(reader), node_(node) {}

    /// Consumes the reserved members; refuses a member of any kind that comes a second time.
    bool operator()(const decoder::Name& name, decoder::Value& value) {
        if (!seen_.emplace(name.text()).second) {
            throw Fault(name.location(),
                        "duplicate member \"" + std::string(name.text()) + "\" in JSON object");
        }
        if (name == kNameMember) {
            readName(value);
        } else if (name == kUuidMember) {
            readUuid(value);
        } else if (name == kAccessControlMember) {
            node_.accessControl_.emplace().decode(value, {});
        } else if (name == kChildrenMember) {
            reader_.readChildren(node_, value);
        } else {
            return false;
        }
        return true;
    }

    [[nodiscard]] bool hasName() const noexcept { return hasName_; }
    [[nodiscard]] bool hasUuid() const noexcept { return hasUuid_; }

private:
    void readName(const decoder::Value& value) {
        std::string name(value.asString().view());
        if (const auto valid = checkElementName(name); !valid) {
            throw Fault(value.location(), valid.error());
        }
        if (node_.parent()->findChild(name) != nullptr) {
            throw Fault(value.location(), nameTaken(*node_.parent(), name));
        }
        node_.name_ = std::move(name);
        hasName_ = true;
    }

    void readUuid(const decoder::Value& value) {
        const std::string_view text = value.asString().view();
        const auto uuid = utils::core::Uuid::parse(text);
        if (!uuid) {
            throw Fault(value.location(), inQuotes(text) + " is not a UUID");
        }
        if (uuid->isNil()) {
            throw Fault(value.location(), "the nil UUID identifies no element");
        }
        if (!reader_.tree_.claimUuid(node_, *uuid)) {
            throw Fault(value.location(),
                        "the UUID " + uuid->toString() + " belongs to another element already");
        }
        hasUuid_ = true;
    }

    ConfigurationReader& reader_;
    ElementNode& node_;
    std::unordered_set<std::string_view> seen_;
    bool hasName_ = false;
    bool hasUuid_ = false;
};

ConfigurationReader::ConfigurationReader(const ElementClassRegistry& classes,
                                         const LoadOptions& options,
                                         const std::filesystem::path& file, ElementTree& tree,
                                         LoadContext& context, std::vector<Problem>& problems,
                                         Elements elements)
    : classes_(classes), options_(options), file_(file), tree_(tree), context_(context),
      problems_(problems), elements_(elements),
      progress_(options.progress, LoadProgress::Stage::Elements, 0) {}

bool ConfigurationReader::read(const decoder::Value& root) {
    try {
        readRoot(root);
        if (!progress_.finish()) {
            throw GivenUp();
        }
        return true;
    } catch (const GivenUp&) {
        if (problems_.empty()) {
            problems_.push_back({file_, 0, 0, Problem::Severity::Error, "the load was given up"});
        }
    } catch (const Fault& fault) {
        problems_.push_back({file_, fault.location.line(), fault.location.column(),
                             Problem::Severity::Error, fault.what()});
    } catch (const std::exception& exception) {
        problems_.push_back(problemOf(exception, file_, root.location()));
    }
    return false;
}

void ConfigurationReader::readRoot(const decoder::Value& root) {
    auto object = root.asObject();
    bool hasChildren = false;
    for (const auto& member : object) {
        if (member.name != kChildrenMember) {
            config::throwUnknownParameterError(member.name);
        }
        if (hasChildren) {
            throw Fault(member.name.location(), "duplicate member \"children\" in JSON object");
        }
        hasChildren = true;
        readChildren(tree_.root(), member.value);
    }
    if (!hasChildren) {
        throw Fault(root.location(), "the configuration has no member \"children\"");
    }
}

void ConfigurationReader::readChildren(ElementNode& parent, const decoder::Value& children) {
    auto array = children.asArray();
    for (const decoder::Value& child : array) {
        try {
            readChild(parent, child);
        } catch (...) {
            reportCurrentException(child.location());
        }
    }
}

void ConfigurationReader::readChild(ElementNode& parent, const decoder::Value& child) {
    auto object = child.asObject();
    if (object.memberCount() != 1) {
        throw Fault(child.location(),
                    "an element must be an object with one member, named after the element's "
                    "class; this one has " +
                        std::to_string(object.memberCount()));
    }
    const auto member = *object.begin();
    readElement(parent, member.name, member.value);
}

void ConfigurationReader::readElement(ElementNode& parent, const decoder::Name& classId,
                                      const decoder::Value& value) {
    const decoder::Location location = classId.location();
    const skill::Element::Class* elementClass = classes_.find(classId);
    if (elementClass == nullptr) {
        throw Fault(location, "unknown element class " + inQuotes(classId));
    }
    if (!allowsChild(parent, *elementClass)) {
        throw Fault(location, childRefused(parent, *elementClass));
    }
    auto object = value.asObject();

    auto made = callSkill(
        CurrentOperation::Kind::Create,
        [&] { return ElementTree::makeEmptyNode(parent, *elementClass); }, classId.text(),
        location.line(), location.column());
    if (!made) {
        throw Fault(location, made.error().text);
    }
    std::unique_ptr<ElementNode> node = std::move(*made);
    if (elements_ == Elements::Keep) {
        node->line_ = location.line();
        node->column_ = location.column();
    }
    // UUIDs of a part that is left out may be used by another one.
    struct UuidClaims {
        ElementTree& tree;
        const ElementNode* top;
        ~UuidClaims() {
            if (top != nullptr) {
                tree.releaseUuids(*top);
            }
        }
    } claims{tree_, node.get()};
    LoadContext::Frame frame(context_, *node, location);

    ElementMembers members(*this, *node);
    object.addFilter(members);
    const bool keeps = elements_ == Elements::Keep;
    callSkill(
        keeps ? CurrentOperation::Kind::Load : CurrentOperation::Kind::LoadAgain,
        [&] {
            skill::internal::ElementAccess::load(*node->skillElement_, object, context_);
            if (givenUp_) {
                throw GivenUp();
            }
            // What the skill did not walk through is unknown to it, and must still pass the filter.
            for (const auto& member : object) {
                config::throwUnknownParameterError(member.name);
            }
        },
        *node, classId.text());
    if (!members.hasName()) {
        throw Fault(location, "the element has no member \"name\"");
    }
    if (!members.hasUuid()) {
        tree_.claimNewUuid(*node);
    }
    if (!keeps) {
        return;
    }
    frame.keep();
    claims.top = nullptr;
    tree_.insert(parent, std::move(node));
    if (!progress_.advance()) {
        throw GivenUp();
    }
}

void ConfigurationReader::reportCurrentException(const decoder::Location& fallback) {
    try {
        throw;
    } catch (const GivenUp&) {
        throw;
    } catch (const Fault& fault) {
        problems_.push_back({file_, fault.location.line(), fault.location.column(),
                             Problem::Severity::Error, fault.what()});
    } catch (const std::exception& exception) {
        problems_.push_back(problemOf(exception, file_, fallback));
    }
    if (!options_.keepGoing) {
        givenUp_ = true;
        throw GivenUp();
    }
}

} // namespace corvane::workbench::host
