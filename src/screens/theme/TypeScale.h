#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The type scale: each role of a text, with its family, size, line height, weight and tracking.
class TypeScale : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    enum Role {
        Display,  ///< 28/34 bold, the tagline of the first screen
        Title1,   ///< 22/28 semibold, an issue's title
        Title2,   ///< 20/25 bold
        Title3,   ///< 17/22 semibold, titles of empty screens
        Field17,  ///< 17/22 regular, the palette's field
        Headline, ///< 15/19 semibold, window titles
        Body14,   ///< 14/19 regular, descriptions
        Body,     ///< 13/18 regular, every control
        Small,    ///< 12/16 regular, keys, counts, dates
        Badge,    ///< 11.5/14 medium, due dates
        Caption,  ///< 11/14 regular, hints
        Micro,    ///< 10.5/14 medium, key caps
        Nano,     ///< 10/13 regular
        Code,     ///< 12/18 in the code family
    };
    Q_ENUM(Role)

    /// Selects the weight of the role.
    static constexpr int roleWeight = -1;

    /// The font of a role. `weight` is a `QFont::Weight`, or `roleWeight`. With `tabular`, the family whose digits all
    /// have the same width is used, up to weight DemiBold, for keys, counts and dates. Badge and Micro always use it.
    Q_INVOKABLE QFont font(TypeScale::Role role, int weight = roleWeight,
                           bool tabular = false) const;
    /// The line height of a role, in logical pixels.
    Q_INVOKABLE qreal lineHeight(TypeScale::Role role) const;

    /// The space above and below the text within its line height, in logical pixels.
    Q_INVOKABLE qreal halfLeading(TypeScale::Role role) const;

    /// The font of a role with its own weight, for C++.
    static QFont fontOf(Role role);
    /// A font of the text family at a size in logical pixels, rounded up to a whole number.
    static QFont textFont(qreal pixels, QFont::Weight weight);
};
