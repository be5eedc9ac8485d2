#include "screens/options/OptionIconAddresses.h"

#include "screens/kit/drawn/IconAddresses.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int StatusSize = 14;
constexpr int PrioritySize = 14;
constexpr int TypeSize = 12;
constexpr int ProjectSize = 16;
constexpr int SymbolSize = 13;

int withBorder(const IconAddresses &addresses, int side, int symbolSide)
{
    return side + 2 * addresses.symbolBorder(symbolSide);
}

int sideOf(OptionIcons::Kind kind)
{
    const IconAddresses addresses;
    using enum OptionIcons::Kind;
    switch (kind) {
    case Status:
        return StatusSize;
    case Priority:
        return PrioritySize;
    case Type:
        return withBorder(addresses, TypeSize + 2, addresses.symbolSide(TypeSize));
    case Project:
        return ProjectSize;
    case Symbol:
        return withBorder(addresses, addresses.symbolSide(SymbolSize),
                          addresses.symbolSide(SymbolSize));
    case None:
    case User:
    case Label:
        return 0;
    }
    return 0;
}

} // namespace

QSize OptionIconAddresses::size(const OptionIconValue &icon) const
{
    const int side = sideOf(OptionIcons::Kind(icon.kind()));
    return {side, side};
}

QUrl OptionIconAddresses::source(const OptionIconValue &icon, const QColor &ink) const
{
    const IconAddresses addresses;
    using enum OptionIcons::Kind;
    switch (OptionIcons::Kind(icon.kind())) {
    case Status:
        return addresses.status(icon.status(), StatusSize, ink);
    case Priority:
        return addresses.priority(Model::PriorityLevel(icon.level()), PrioritySize, ink);
    case Type:
        return addresses.type(icon.type(), TypeSize);
    case Project:
        return addresses.project(icon.project(), ProjectSize);
    case Symbol:
        return addresses.symbol(icon.symbol(), SymbolSize, u"regular"_s, ink);
    case None:
    case User:
    case Label:
        return {};
    }
    return {};
}

QString OptionIconAddresses::meaning(const OptionIconValue &icon) const
{
    using enum OptionIcons::Kind;
    switch (OptionIcons::Kind(icon.kind())) {
    case Status:
        return icon.status().displayName();
    case Priority:
        return IconAddresses().priorityName(Model::PriorityLevel(icon.level()));
    case Type:
        return icon.type().name;
    case Project:
        return icon.project().name;
    case Symbol:
    case None:
    case User:
    case Label:
        return {};
    }
    return {};
}
