#include "screens/options/OptionPictures.h"

#include "screens/kit/drawn/Pictures.h"

using namespace Qt::StringLiterals;
using enum OptionIcons::Kind;

namespace {

constexpr int StatusSize = 14;
constexpr int PrioritySize = 14;
constexpr int TypeSize = 12;
constexpr int ProjectSize = 16;
constexpr int SymbolSize = 13;

int withBorder(const Pictures &pictures, int side, int symbolSide)
{
    return side + 2 * pictures.symbolBorder(symbolSide);
}

int sideOf(OptionIcons::Kind kind)
{
    const Pictures pictures;
    switch (kind) {
    case Status:
        return StatusSize;
    case Priority:
        return PrioritySize;
    case Type:
        return withBorder(pictures, TypeSize + 2, pictures.symbolSide(TypeSize));
    case Project:
        return ProjectSize;
    case Symbol:
        return withBorder(pictures, pictures.symbolSide(SymbolSize),
                          pictures.symbolSide(SymbolSize));
    case None:
    case User:
    case Label:
        return 0;
    }
    return 0;
}

} // namespace

QSize OptionPictures::size(const OptionIconValue &icon) const
{
    const int side = sideOf(OptionIcons::Kind(icon.kind()));
    return {side, side};
}

QUrl OptionPictures::source(const OptionIconValue &icon, const QColor &ink) const
{
    const Pictures pictures;
    switch (OptionIcons::Kind(icon.kind())) {
    case Status:
        return pictures.status(icon.status(), StatusSize, ink);
    case Priority:
        return pictures.priority(Model::PriorityLevel(icon.level()), PrioritySize, ink);
    case Type:
        return pictures.type(icon.type(), TypeSize);
    case Project:
        return pictures.project(icon.project(), ProjectSize);
    case Symbol:
        return pictures.symbol(icon.symbol(), SymbolSize, u"regular"_s, ink);
    case None:
    case User:
    case Label:
        return {};
    }
    return {};
}

QString OptionPictures::meaning(const OptionIconValue &icon) const
{
    switch (OptionIcons::Kind(icon.kind())) {
    case Status:
        return icon.status().displayName();
    case Priority:
        return Pictures().priorityName(Model::PriorityLevel(icon.level()));
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
