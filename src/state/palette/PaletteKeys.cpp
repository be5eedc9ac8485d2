#include "state/palette/PaletteKeys.h"

namespace {

using Kind = PaletteKey::Kind;

/// The held modifiers, without the keypad modifier, which Qt sets for keys of the keypad.
Qt::KeyboardModifiers held(const KeyPress &press)
{
    return press.modifiers & ~Qt::KeyboardModifiers(Qt::KeypadModifier | Qt::GroupSwitchModifier);
}

std::optional<PaletteKey> digitKey(const KeyPress &press)
{
    const auto digit = held(press) == Qt::NoModifier ? press.digit() : std::nullopt;
    return digit ? std::optional(PaletteKey{Kind::Digit, *digit}) : std::nullopt;
}

} // namespace

std::optional<PaletteKey> paletteKey(const KeyPress &press, PaletteDigits digits)
{
    switch (press.key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return PaletteKey{held(press) == Qt::ControlModifier ? Kind::RunInWindow : Kind::Run};
    case Qt::Key_Escape:
        return PaletteKey{Kind::Back};
    case Qt::Key_Down:
        return PaletteKey{Kind::Down};
    case Qt::Key_Up:
        return PaletteKey{Kind::Up};
    default:
        return digits == PaletteDigits::PickRows ? digitKey(press) : std::nullopt;
    }
}
