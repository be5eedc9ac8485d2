#include "screens/issues/menus/MenuSection.h"

bool MenuChoice::hasIcon() const
{
    return !std::holds_alternative<OptionIcon::None>(icon.value) &&
           !std::holds_alternative<OptionIcon::Symbol>(icon.value);
}

QString MenuChoice::symbol() const
{
    const auto *symbol = std::get_if<OptionIcon::Symbol>(&icon.value);
    return symbol ? symbol->name : QString();
}
