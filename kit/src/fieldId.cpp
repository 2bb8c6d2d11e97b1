#include <corvane/workbench/kit/internal/fieldId.hpp>

#include <corvane/workbench/bindings/PropertyController.hpp>
#include <corvane/workbench/model/internal/BasicElementReference.hpp>

#include <bit>
#include <cstdint>

namespace corvane::workbench::kit::internal {

namespace {

// Words that no identifier made from an address has, since its second word is 0.
constexpr std::uint64_t kField = 0x6b69'745f'6669'656c;
constexpr std::uint64_t kName = 0x6b69'745f'6e61'6d65;
constexpr std::uint64_t kRow = 0x6b69'745f'726f'7763;

// Identifiers of data are minted by controllers only.
class Mint : private bindings::PropertyController {
public:
    static bindings::PropertyId of(std::uint64_t first, std::uint64_t second) noexcept {
        return propertyId({first, second});
    }
};

} // namespace

bindings::PropertyId fieldId(const bindings::PropertyController& owner,
                             const void* field) noexcept {
    const auto place = std::bit_cast<std::uintptr_t>(field) -
                       std::bit_cast<std::uintptr_t>(static_cast<const void*>(&owner));
    return Mint::of(place, kField);
}

bindings::PropertyId fieldId(const bindings::PropertyController& /*owner*/,
                             const model::internal::BasicElementReference* field) noexcept {
    return field->propertyId();
}

bindings::PropertyId nameId(std::string_view name) noexcept {
    // FNV-1a
    std::uint64_t hash = 0xcbf2'9ce4'8422'2325;
    for (const char character : name) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100'0000'01b3;
    }
    return Mint::of(hash, kName);
}

bindings::PropertyId rowChangedId() noexcept {
    return Mint::of(0, kRow);
}

} // namespace corvane::workbench::kit::internal
