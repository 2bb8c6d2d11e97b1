#include <corvane/workbench/host/CurrentOperation.hpp>

#include "ownerOf.hpp"
#include <corvane/workbench/host/ElementNode.hpp>
#include <corvane/workbench/host/LoadedSkill.hpp>

#include <exception>

namespace corvane::workbench::host {

namespace {

using Kind = CurrentOperation::Kind;
using Write = utils::core::function_ref<void(std::string_view)>;

thread_local const CurrentOperation* innermostOperation = nullptr;

std::string_view verb(Kind kind) noexcept {
    switch (kind) {
    case Kind::OpenLibrary:
        return "being opened";
    case Kind::Describe:
        return "describing itself and its element classes";
    case Kind::RegisterClasses:
        return "registering its element classes";
    case Kind::Create:
        return "making";
    case Kind::Load:
        return "loading";
    case Kind::MakeDefault:
        return "making the initial settings of";
    case Kind::ResolveReferences:
        return "taking in the references of";
    case Kind::Configure:
        return "configuring";
    case Kind::ListMembers:
        return "listing the attributes, events and tasks of";
    case Kind::ListProperties:
        return "listing the properties of";
    case Kind::Save:
        return "saving";
    case Kind::LoadAgain:
        return "loading again what it has saved of";
    case Kind::Destroy:
        return "destroying";
    case Kind::GiveState:
        return "giving the state of";
    case Kind::GiveValue:
        return "giving the value of";
    case Kind::SetValue:
        return "setting";
    case Kind::FollowReference:
        return "following a change of a reference of";
    }
    return "working";
}

/// Errors of these are reported with their place in the file by those who load it.
bool isPartOfLoad(Kind kind) noexcept {
    return kind <= Kind::Configure && kind != Kind::Describe;
}

bool isOfLibraryOrSkill(Kind kind) noexcept {
    return kind <= Kind::RegisterClasses;
}

void writeInQuotes(std::string_view text, Write write) noexcept {
    write("“");
    write(text);
    write("”");
}

void writeKey(const ElementNode& element, Write write) noexcept {
    const ElementNode* parent = element.parent();
    if (parent != nullptr && parent->parent() != nullptr) {
        writeKey(*parent, write);
        write(".");
    }
    write(element.name());
}

} // namespace

CurrentOperation::CurrentOperation(Kind kind, std::string_view detail, std::uint64_t line,
                                   std::uint64_t column) noexcept
    : outer_(innermostOperation), detail_(detail), line_(line), column_(column), kind_(kind) {
    innermostOperation = this;
}

CurrentOperation::CurrentOperation(Kind kind, const ElementNode& element,
                                   std::string_view detail) noexcept
    : outer_(innermostOperation), element_(&element), detail_(detail), kind_(kind) {
    innermostOperation = this;
}

CurrentOperation::CurrentOperation(Kind kind,
                                   const model::internal::BasicElementReference& reference) noexcept
    : outer_(innermostOperation), reference_(&reference), kind_(kind) {
    innermostOperation = this;
}

CurrentOperation::~CurrentOperation() {
    innermostOperation = outer_;
}

const CurrentOperation* CurrentOperation::innermost() noexcept {
    return innermostOperation;
}

std::uint64_t CurrentOperation::line() const noexcept {
    const ElementNode* known = element();
    return known != nullptr ? known->line() : line_;
}

std::uint64_t CurrentOperation::column() const noexcept {
    const ElementNode* known = element();
    return known != nullptr ? known->column() : column_;
}

const ElementNode* CurrentOperation::element() const noexcept {
    return reference_ != nullptr ? ownerOf(*reference_) : element_;
}

void CurrentOperation::writeSubject(Write write) const noexcept {
    if (kind_ == Kind::OpenLibrary) {
        write("the library ");
        writeInQuotes(detail_, write);
        return;
    }
    const ElementNode* known = element();
    const std::string_view skill = isOfLibraryOrSkill(kind_) ? detail_
                                   : known != nullptr
                                       ? LoadedSkill::idOfSkillWith(known->elementClass())
                                       : LoadedSkill::idOfSkillWith(detail_);
    if (skill.empty()) {
        write("a skill");
    } else {
        write("the skill ");
        writeInQuotes(skill, write);
    }
}

void CurrentOperation::writeAction(Write write) const noexcept {
    write(verb(kind_));
    if (isOfLibraryOrSkill(kind_)) {
        return;
    }
    const bool isOfProperty = kind_ >= Kind::GiveState && kind_ <= Kind::SetValue;
    const ElementNode* known = element();
    if (isOfProperty) {
        write(" the property ");
        writeInQuotes(detail_, write);
        write(" of");
    }
    if (known == nullptr || known->name().empty()) {
        write(" an element");
        if (!isOfProperty && !detail_.empty()) {
            write(" of the class ");
            writeInQuotes(detail_, write);
        }
        return;
    }
    write(" the element “");
    writeKey(*known, write);
    write("”");
}

SkillFailure::SkillFailure(const CurrentOperation& operation, std::string_view reason)
    : std::runtime_error([&] {
          std::string text;
          const auto append = [&](std::string_view piece) { text += piece; };
          operation.writeSubject(append);
          text += " failed while ";
          operation.writeAction(append);
          text += ": ";
          text += reason;
          return text;
      }()),
      line_(operation.line()), column_(operation.column()) {}

void internal::throwOn(const CurrentOperation& operation) {
    try {
        throw;
    } catch (const SkillFailure&) {
        throw;
    } catch (const std::exception& exception) {
        if (isPartOfLoad(operation.kind())) {
            throw;
        }
        throw SkillFailure(operation, exception.what());
    } catch (...) {
        throw SkillFailure(operation, "it threw something that is no std::exception");
    }
}

} // namespace corvane::workbench::host
