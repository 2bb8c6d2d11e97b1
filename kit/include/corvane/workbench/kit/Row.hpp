#pragma once

#include <corvane/workbench/bindings/PropertyHandle.hpp>
#include <corvane/workbench/kit/internal/Subject.hpp>
#include <corvane/workbench/kit/internal/fieldId.hpp>
#include <corvane/workbench/skill/SubElement.hpp>

#include <string>
#include <vector>

namespace corvane::workbench::kit {

class Form;

namespace internal {
class RowList;
}

/// A row of a list setting, described by itself. A subclass has fields with the values and
/// overrides describe(). It needs a default constructor and a copy constructor; those that the
/// compiler makes are right.
///
/// Every change of a row's setting publishes the list, so that a rule of the list, which looks at
/// all rows, is computed again.
class Row : public skill::SubElement {
public:
    Row() = default;
    /// A copy belongs to no list yet.
    Row(const Row& other) : SubElement(other) {}
    Row& operator=(const Row&) = delete;
    ~Row() override = 0;

    [[nodiscard]] std::wstring displayName() const override;
    void forEachEditableProperty(
        utils::core::function_ref<void(const skill::EditableProperty&)> callback) override;

    /// The property of the setting that a field holds.
    template <class T>
    [[nodiscard]] bindings::PropertyHandle property(const T& field) {
        return propertyHandle(internal::fieldId(*this, &field));
    }

protected:
    /// Names the settings of the row. See Form for what it may do.
    virtual void describe(Form& form) = 0;

    /// The object that has the list: an element of the class T, or a row that has rows itself. For
    /// rules and other functions of a description, not for the description itself or a constructor.
    /// Throws std::logic_error for a row that is in no list, std::bad_cast for an owner of another
    /// class.
    template <class T>
    [[nodiscard]] T& owner() const {
        return dynamic_cast<T&>(ownerOfList());
    }

    /// Tells everybody that the skill has changed the value in a field.
    template <class T>
    void changed(const T& field) {
        publishChange(internal::fieldId(*this, &field));
    }

    void configureProperties(PropertyConfigurationContext& context) override;

private:
    friend class internal::RowList;

    static const internal::Subject::Type kSubjectType;

    [[nodiscard]] internal::Subject subject() const noexcept;
    [[nodiscard]] bindings::PropertyController& ownerOfList() const;
    void publishChange(const bindings::PropertyId& property);

    const internal::RowList* list_ = nullptr;
    /// Hear of changes of references and lists that something follows from; mostly none.
    std::vector<Subscription> triggers_;
};

} // namespace corvane::workbench::kit
