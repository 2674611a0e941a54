#include "quillgrid/pads/Formulas.h"

#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

Formulas::Pointer Formulas::Add(FormulaArguments arguments) {
    const bool inside = arguments.Index >= 1 && arguments.Index <= Count();
    auto formula = std::make_shared<Formula>();
    formula->key_ = arguments.Key;
    formula->index_ = inside ? arguments.Index : Count() + 1;
    formula->text_ = std::move(arguments.Text);
    formula->tooltipText_ = std::move(arguments.TooltipText);
    if (arguments.ListImage) formula->listImage_ = std::move(*arguments.ListImage);
    if (!list_.Insert(inside ? static_cast<std::size_t>(arguments.Index) : 0, arguments.Key, formula))
        throw RaiseControlError(20093, "Formulas.Add Method");
    return formula;
}

Formulas::Pointer Formulas::Item(ItemKey which) const {
    auto formula = Find(which);
    if (!formula) throw RaiseControlError(20092, "Formulas.Item Property Get");
    return formula;
}

void Formulas::Remove(ItemKey which) {
    if (!list_.RemoveAt(FindPosition(list_, which))) throw RaiseControlError(20092, "Formulas.Remove Method");
}

} // namespace quillgrid
