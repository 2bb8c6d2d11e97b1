#include <corvane/workbench/host/LoadedSkill.hpp>

#include <algorithm>
#include <mutex>
#include <utility>

namespace corvane::workbench::host {

namespace {

/// All that there are, the newest first. The lock is for those who change the list.
std::atomic<LoadedSkill*> newestSkill = nullptr;
std::mutex newestSkillLock;

} // namespace

LoadedSkill::LoadedSkill(
    const skill::Skill::Class& skillClass, std::unique_ptr<skill::Skill> instance,
    std::vector<std::reference_wrapper<const skill::Element::Class>> elementClasses,
    std::filesystem::path library)
    : skillClass_(skillClass), instance_(std::move(instance)),
      elementClasses_(std::move(elementClasses)), library_(std::move(library)),
      id_(skillClass.id()) {
    for (const skill::Element::Class& elementClass : elementClasses_) {
        elementClassIds_.emplace_back(elementClass.id());
    }
    const std::scoped_lock lock(newestSkillLock);
    next_ = newestSkill.load();
    newestSkill = this;
}

LoadedSkill::~LoadedSkill() {
    const std::scoped_lock lock(newestSkillLock);
    std::atomic<LoadedSkill*>* link = &newestSkill;
    while (*link != this) {
        link = &link->load()->next_;
    }
    *link = next_.load();
}

std::string_view LoadedSkill::idOfSkillWith(const skill::Element::Class& elementClass) noexcept {
    for (const LoadedSkill* loaded = newestSkill; loaded != nullptr; loaded = loaded->next_) {
        for (const skill::Element::Class& own : loaded->elementClasses_) {
            if (&own == &elementClass) {
                return loaded->id_;
            }
        }
    }
    return {};
}

std::string_view LoadedSkill::idOfSkillWith(std::string_view elementClassId) noexcept {
    for (const LoadedSkill* loaded = newestSkill; loaded != nullptr; loaded = loaded->next_) {
        const auto& ids = loaded->elementClassIds_;
        if (std::find(ids.begin(), ids.end(), elementClassId) != ids.end()) {
            return loaded->id_;
        }
    }
    return {};
}

} // namespace corvane::workbench::host
