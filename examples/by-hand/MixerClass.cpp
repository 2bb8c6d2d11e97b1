#include "MixerClass.hpp"

#include "Mixer.hpp"

namespace by_hand {

std::unique_ptr<workbench::skill::Element> MixerFactory::createElement() const {
    return std::make_unique<Mixer>();
}

std::unique_ptr<workbench::skill::Element>
MixerFactory::copyElement(const workbench::skill::Element& other) const {
    return std::make_unique<Mixer>(dynamic_cast<const Mixer&>(other));
}

utils::core::Uuid MixerClass::uuid() const {
    return utils::core::Uuid::parse("5f0c2a8e-93b7-4d8e-a1c4-2f6d0b9e7713").value();
}

} // namespace by_hand
