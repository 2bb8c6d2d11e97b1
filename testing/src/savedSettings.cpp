#include <corvane/workbench/testing/savedSettings.hpp>

#include <corvane/utils/json/encoder/Document.hpp>
#include <corvane/utils/json/encoder/Object.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/json/internal/StringOutputStream.hpp>
#include <corvane/workbench/skill/internal/ElementAccess.hpp>

namespace corvane::workbench::testing {

std::string savedSettings(const skill::Element& element) {
    using utils::json::encoder::Document;
    json::internal::StringOutputStream stream;
    Document document(stream, Document::Format::Compact);
    auto object = document.root().writeObject();
    skill::internal::ElementAccess::save(element, object);
    document.close();
    return stream.take();
}

} // namespace corvane::workbench::testing
