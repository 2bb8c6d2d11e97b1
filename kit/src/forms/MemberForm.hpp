#pragma once

#include <corvane/utils/core/function_ref.hpp>
#include <corvane/workbench/kit/Form.hpp>

#include <string>
#include <string_view>

namespace corvane::workbench::kit::internal {

/// Calls back with the attributes, the events or the tasks that there are at the moment, until the
/// callback has seen enough.
template <class M>
class MemberForm final : public Form {
public:
    using Callback = utils::core::function_ref<bool(const M&)>;

    MemberForm(const Subject& subject, const Callback& callback)
        : Form(subject, kPurpose), callback_(callback) {}

    /// Returns whether the callback stopped the walk.
    bool visit() {
        fillIn();
        return isStopped_;
    }

private:
    static const Purpose kPurpose;
    static const Description::Subject kSubject;
    /// The member that is described.
    static M make(const Description& description);

    void take(Description& description) override {
        if (isStopped_ || description.subject != kSubject || !description.applies) {
            return;
        }
        isStopped_ = description.member != nullptr
                         ? callback_(*static_cast<const M*>(description.member))
                         : callback_(make(description));
    }

    const Callback& callback_;
    bool isStopped_ = false;
};

template <>
inline const Purpose MemberForm<model::Attribute>::kPurpose = Purpose::Attributes;
template <>
inline const Purpose MemberForm<process::Event>::kPurpose = Purpose::Events;
template <>
inline const Purpose MemberForm<process::Task>::kPurpose = Purpose::Tasks;

template <>
inline const Description::Subject MemberForm<model::Attribute>::kSubject =
    Description::Subject::Attribute;
template <>
inline const Description::Subject MemberForm<process::Event>::kSubject =
    Description::Subject::Event;
template <>
inline const Description::Subject MemberForm<process::Task>::kSubject = Description::Subject::Task;

template <>
inline model::Attribute MemberForm<model::Attribute>::make(const Description& description) {
    return {std::string(std::string_view(description.name)), description.access,
            description.dataType, description.directions};
}

template <>
inline process::Event MemberForm<process::Event>::make(const Description& description) {
    return {std::string(std::string_view(description.name)), description.directions};
}

template <>
inline process::Task MemberForm<process::Task>::make(const Description& description) {
    return process::Task(std::string(std::string_view(description.name)));
}

} // namespace corvane::workbench::kit::internal
