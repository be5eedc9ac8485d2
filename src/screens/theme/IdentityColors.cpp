#include "screens/theme/IdentityColors.h"

#include "model/TextFolding.h"

#include <array>

namespace {

constexpr QRgb opaque(unsigned rgb)
{
    return 0xff000000U | rgb;
}

struct AccentColors
{
    QRgb accent;
    QRgb fill;
    QRgb textOnLight;
    QRgb textOnDark;
};

// In the order of AccentChoice.
constexpr std::array<AccentColors, 7> accents{{
    {opaque(0x5E6AD2), opaque(0x5E6AD2), opaque(0x4F5BC2), opaque(0x96A0F5)},
    {opaque(0x2980F5), opaque(0x2574DF), opaque(0x2064BF), opaque(0x63A2F8)},
    {opaque(0x995CE6), opaque(0x9157DA), opaque(0x7F4CBF), opaque(0xB88DEE)},
    {opaque(0xE64D8F), opaque(0xCA447E), opaque(0xAF3B6D), opaque(0xED7DAD)},
    {opaque(0xF28029), opaque(0xB35F1E), opaque(0x9D531B), opaque(0xF2832D)},
    {opaque(0x29A86B), opaque(0x218656), opaque(0x1C744A), opaque(0x47B480)},
    {opaque(0x737887), opaque(0x717684), opaque(0x626673), opaque(0x9DA1AB)},
}};

constexpr std::array<QRgb, 8> labels{
    opaque(0x5C6BD1), opaque(0x26B575), opaque(0xF07338), opaque(0xDB4073),
    opaque(0x8C5CD9), opaque(0x219ED6), opaque(0xD9A81A), opaque(0x7D8F9E),
};

const AccentColors &colorsOf(AccentChoice choice)
{
    return accents[static_cast<size_t>(choice)];
}

QColor labelAt(int number)
{
    return QColor::fromRgb(labels[static_cast<size_t>(number) % labels.size()]);
}

} // namespace

QColor IdentityColors::inProgress()
{
    return {240, 191, 0};
}

QColor IdentityColors::review()
{
    return {38, 181, 117};
}

QColor IdentityColors::urgent()
{
    return {250, 111, 54};
}

QColor IdentityColors::neutral()
{
    return {143, 143, 143};
}

QColor IdentityColors::internalNote()
{
    return {237, 158, 26};
}

QColor IdentityColors::type(Model::IssueTypeKind kind)
{
    switch (kind) {
    case Model::IssueTypeKind::Epic:
        return {153, 92, 230};
    case Model::IssueTypeKind::Story:
        return review();
    case Model::IssueTypeKind::Bug:
        return {235, 77, 77};
    case Model::IssueTypeKind::Task:
        return {64, 140, 242};
    case Model::IssueTypeKind::Subtask:
    case Model::IssueTypeKind::Other:
        break;
    }
    return neutral();
}

QColor IdentityColors::label(QStringView name)
{
    return labelAt(stableHash(name));
}

QColor IdentityColors::project(QStringView key)
{
    // The hash is divided so that a project and a label with the same text do not always share a colour.
    return labelAt(stableHash(key) / 7);
}

QColor IdentityColors::person(QStringView accountId)
{
    return QColor::fromHsvF(static_cast<float>(stableHash(accountId) % 360) / 360.0F, 0.42F, 0.72F);
}

QColor IdentityColors::accent(AccentChoice choice)
{
    return QColor::fromRgb(colorsOf(choice).accent);
}

QColor IdentityColors::accentFill(AccentChoice choice)
{
    return QColor::fromRgb(colorsOf(choice).fill);
}

QColor IdentityColors::accentText(AccentChoice choice, Ground ground)
{
    const auto &colors = colorsOf(choice);
    return QColor::fromRgb(ground == Ground::Dark ? colors.textOnDark : colors.textOnLight);
}
