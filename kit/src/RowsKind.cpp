#include "forms/LoadingForm.hpp"
#include "forms/SavingForm.hpp"
#include <corvane/utils/json/decoder/Array.hpp>
#include <corvane/utils/json/decoder/Value.hpp>
#include <corvane/utils/json/encoder/Array.hpp>
#include <corvane/utils/json/encoder/Value.hpp>
#include <corvane/workbench/kit/internal/RowList.hpp>
#include <corvane/workbench/kit/internal/kinds.hpp>
#include <corvane/workbench/kit/translate.hpp>

namespace corvane::workbench::kit::internal {

namespace {

/// Rows are edited by operations of their own.
class RowsKind final : public SettingKind {
    static RowList& rows(const Field& field) noexcept {
        return *static_cast<RowList*>(field.address);
    }

    [[nodiscard]] skill::EditableProperty::Editor editor() const noexcept override {
        return skill::EditableProperty::Editor::SubElementList;
    }
    [[nodiscard]] bool isEmpty(const Field& field) const override { return rows(field).empty(); }
    void read(const Field& field, utils::json::decoder::Value& value,
              config::Context& context) const override {
        for (utils::json::decoder::Value& row : value.asArray()) {
            LoadingForm(rows(field).appendRow(), context).load(row);
        }
    }
    void write(const Field& field, utils::json::encoder::Value& value) const override {
        utils::json::encoder::Array array = value.writeArray();
        for (std::size_t index = 0; index < rows(field).size(); ++index) {
            utils::json::encoder::Value row = array.addElement();
            SavingForm(rows(field).subject(index)).save(row);
        }
    }
    [[nodiscard]] std::wstring text(const Field& field) const override {
        const std::size_t count = rows(field).size();
        if (count == 0) {
            return kit::text("no rows");
        }
        return count == 1 ? kit::text("1 row") : kit::text("{} rows", count);
    }
    [[nodiscard]] bool isTyped() const noexcept override { return false; }
};

} // namespace

const SettingKind& rowsKind() noexcept {
    static constinit const RowsKind kKind;
    return kKind;
}

} // namespace corvane::workbench::kit::internal
