#include "quillgrid/grid/CellRules.h"

#include "quillgrid/base/Text.h"

namespace quillgrid {

bool IsDataVisible(const Cell& cell, std::int32_t userLevel) {
    return cell.DataVisible() && userLevel >= cell.UserLevelDataVisible();
}

bool IsEditable(const Cell& cell, std::int32_t userLevel) {
    return cell.Enabled() && !cell.Locked() && userLevel >= cell.UserLevelEnabled() &&
           IsDataVisible(cell, userLevel);
}

std::string MaskOf(const GridSettings& settings) {
    const std::string_view mask = FirstCharacters(settings.PasswordChar, 1);
    return mask.empty() ? "*" : std::string(mask);
}

std::string ShownText(const Cell& cell, const GridSettings& settings) {
    if (cell.Template() != qgctPassword) return cell.Text();
    const std::string mask = MaskOf(settings);
    std::string shown;
    for (std::size_t i = CharacterCount(cell.Text()); i > 0; --i)
        shown += mask;
    return shown;
}

InputRules RulesOf(const Cell& cell) {
    const auto bound = [](const Variant& value) { return value.IsNull() ? nullptr : &value; };
    return {cell.ValidationRule(), cell.MaxLength(), bound(cell.Min()),
            bound(cell.Max()),     cell.Charlist(),  cell.AllowEmpty()};
}

std::string_view WithoutUnit(std::string_view text, const std::string& unit) {
    if (unit.empty()) return text;
    std::string_view rest = text;
    std::size_t characters = CharacterCount(unit);
    while (characters-- > 0 && !rest.empty())
        rest.remove_suffix(DecodeLast(rest).Bytes);
    if (!EqualIgnoreCase(text.substr(rest.size()), unit) || !rest.ends_with(' ')) return text;
    return TrimBlanks(rest);
}

} // namespace quillgrid
