#include "ListingForm.hpp"

#include "../translationContext.hpp"
#include "ChangeForm.hpp"
#include <corvane/workbench/kit/internal/RowList.hpp>
#include <corvane/workbench/kit/translate.hpp>

#include <memory>
#include <utility>

namespace corvane::workbench::kit::internal {

namespace {

State noSuchRow() {
    return error("The list has no row of that number.");
}

std::wstring displayNameOf(const Description& description) {
    std::wstring name = translated(description.displayName);
    if (!description.behaviour->unit.empty()) {
        name += L" (" + translated(description.behaviour->unit) + L")";
    }
    return name;
}

// The texts of a choice belong to the form, but the editor may be kept.
struct KeptField {
    explicit KeptField(const Field& original)
        : field(original), choices(std::make_shared<const std::vector<Text>>(
                               original.choices.begin(), original.choices.end())) {
        field.choices = *choices;
    }

    Field field;
    std::shared_ptr<const std::vector<Text>> choices;
};

void addValue(skill::EditableProperty& property, const Subject& subject,
              const Description& description) {
    const KeptField kept(description.field);
    for (const Text& choice : *kept.choices) {
        property.choices.push_back(translated(choice));
    }
    property.text = [kept] { return kept.field.kind->text(kept.field); };
    if (kept.field.kind->isTyped() && !description.behaviour->isReadOnly) {
        property.setText = [kept, subject, id = description.property](std::wstring_view typed) {
            State state = kept.field.kind->setText(kept.field, typed);
            if (state) {
                publishChange(subject, id);
            }
            return state;
        };
    }
}

void addRows(skill::EditableProperty& property, RowList& rows, bool isReadOnly) {
    property.forEachSubElement =
        [&rows](const utils::core::function_ref<void(skill::SubElement&)>& callback) {
            for (std::size_t index = 0; index < rows.size(); ++index) {
                callback(rows.rowAt(index));
            }
        };
    if (isReadOnly) {
        return;
    }
    property.insertSubElement = [&rows](std::size_t index) -> State {
        if (index > rows.size()) {
            return noSuchRow();
        }
        rows.insertRow(index);
        return {};
    };
    property.removeSubElement = [&rows](std::size_t index) -> State {
        if (index >= rows.size()) {
            return noSuchRow();
        }
        rows.removeRow(index);
        return {};
    };
    property.moveSubElement = [&rows](std::size_t from, std::size_t to) -> State {
        if (from >= rows.size() || to >= rows.size()) {
            return noSuchRow();
        }
        rows.moveRow(from, to);
        return {};
    };
}

} // namespace

void ListingForm::take(Description& description) {
    using enum Description::Subject;
    if (description.subject != Setting && description.subject != Derived) {
        return;
    }
    skill::EditableProperty property;
    property.name = description.name;
    property.displayName = displayNameOf(description);
    property.property = owner().propertyHandle(description.property);
    property.toolTip = description.behaviour->toolTip.empty()
                           ? std::wstring()
                           : translated(description.behaviour->toolTip);
    if (description.subject == Derived) {
        property.text = std::move(description.behaviour->derivedText);
    } else {
        property.editor = description.field.kind->editor();
        addValue(property, subject(), description);
        if (description.rows != nullptr) {
            addRows(property, *description.rows, description.behaviour->isReadOnly);
        }
    }
    callback_(property);
}

} // namespace corvane::workbench::kit::internal
