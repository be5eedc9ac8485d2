#include "screens/theme/IdentityPalette.h"

#include "screens/theme/IdentityColors.h"

QColor IdentityPalette::inProgress() const
{
    return IdentityColors::inProgress();
}

QColor IdentityPalette::review() const
{
    return IdentityColors::review();
}

QColor IdentityPalette::urgent() const
{
    return IdentityColors::urgent();
}

QColor IdentityPalette::neutral() const
{
    return IdentityColors::neutral();
}

QColor IdentityPalette::internalNote() const
{
    return IdentityColors::internalNote();
}

QColor IdentityPalette::type(Model::IssueTypeKind kind) const
{
    return IdentityColors::type(kind);
}

QColor IdentityPalette::label(const QString &name) const
{
    return IdentityColors::label(name);
}

QColor IdentityPalette::project(const QString &key) const
{
    return IdentityColors::project(key);
}

QColor IdentityPalette::accent(Model::AccentChoice choice) const
{
    return IdentityColors::accent(choice);
}

QColor IdentityPalette::accentFill(Model::AccentChoice choice) const
{
    return IdentityColors::accentFill(choice);
}

QColor IdentityPalette::accentTextOnLight(Model::AccentChoice choice) const
{
    return IdentityColors::accentText(choice, IdentityColors::Ground::Light);
}

QColor IdentityPalette::accentTextOnDark(Model::AccentChoice choice) const
{
    return IdentityColors::accentText(choice, IdentityColors::Ground::Dark);
}
