#include <corvane/workbench/skill/AbstractElementFactory.hpp>

namespace corvane::workbench::skill {

AbstractElementFactory::AbstractElementFactory() = default;
AbstractElementFactory::AbstractElementFactory(const AbstractElementFactory&) {}
AbstractElementFactory& AbstractElementFactory::operator=(const AbstractElementFactory&) {
    return *this;
}
AbstractElementFactory::~AbstractElementFactory() = default;

} // namespace corvane::workbench::skill
