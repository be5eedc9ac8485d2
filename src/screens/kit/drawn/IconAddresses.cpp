#include "screens/kit/drawn/IconAddresses.h"

#include "model/IssuePriority.h"
#include "screens/kit/painters/BadgePainter.h"
#include "screens/kit/painters/GlyphPainter.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/kit/providers/SymbolProvider.h"
#include "screens/theme/IdentityColors.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {

using Values = std::initializer_list<std::pair<QString, QString>>;

// Escapes a text, so that it does not end the query value that contains it.
QString escaped(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QUrl address(const QString &provider, const QString &path, const Values &values)
{
    QUrlQuery query;
    for (const auto &[key, value] : values)
        query.addQueryItem(key, escaped(value));
    QUrl url;
    url.setScheme(u"image"_s);
    url.setHost(provider);
    url.setPath(u'/' + path);
    url.setQuery(query);
    return url;
}

QString number(qreal value)
{
    return QString::number(value);
}

template <typename E>
QString number(E value)
    requires std::is_enum_v<E>
{
    return QString::number(static_cast<int>(value));
}

QString hex(const QColor &color)
{
    return color.name(QColor::HexArgb);
}

} // namespace

QUrl IconAddresses::status(const IssueStatus &status, qreal size, const QColor &accent) const
{
    return address(u"icon"_s, u"status"_s,
                   {{u"v"_s, number(status.category())},
                    {u"p"_s, number(status.progress())},
                    {u"s"_s, number(size)},
                    {u"c"_s, hex(accent)}});
}

QUrl IconAddresses::priority(Model::PriorityLevel level, qreal size, const QColor &tint) const
{
    return address(u"icon"_s, u"priority"_s,
                   {{u"v"_s, number(level)}, {u"s"_s, number(size)}, {u"c"_s, hex(tint)}});
}

QUrl IconAddresses::type(const IssueType &type, qreal size) const
{
    return address(u"icon"_s, u"type"_s, {{u"v"_s, number(type.kind())}, {u"s"_s, number(size)}});
}

QUrl IconAddresses::project(const Project &project, qreal size) const
{
    return address(u"icon"_s, u"project"_s,
                   {{u"t"_s, badgeLetter(project.name)},
                    {u"s"_s, number(size)},
                    {u"c"_s, hex(IdentityColors::project(project.key))}});
}

QUrl IconAddresses::avatar(const JiraUser &user, qreal size) const
{
    return address(u"icon"_s, u"avatar"_s,
                   {{u"t"_s, user.initials()},
                    {u"s"_s, number(size)},
                    {u"c"_s, hex(IdentityColors::person(user.id))}});
}

QUrl IconAddresses::avatarAddress(const JiraUser &user) const
{
    return user.avatarURL.value_or(QUrl());
}

QUrl IconAddresses::nobody(qreal size) const
{
    return address(u"icon"_s, u"nobody"_s, {{u"s"_s, number(size)}});
}

QUrl IconAddresses::spinner(qreal size, const QColor &color) const
{
    return address(u"icon"_s, u"spinner"_s, {{u"s"_s, number(size)}, {u"c"_s, hex(color)}});
}

QUrl IconAddresses::glyph(qreal size) const
{
    return address(u"icon"_s, u"glyph"_s, {{u"s"_s, number(size)}});
}

int IconAddresses::glyphMargin(qreal size) const
{
    return static_cast<int>(appGlyphMargin(size));
}

QUrl IconAddresses::symbol(const QString &name, qreal fontSize, const QString &weight,
                           const QColor &color) const
{
    return address(u"symbol"_s, name,
                   {{u"f"_s, number(fontSize)}, {u"w"_s, weight}, {u"c"_s, hex(color)}});
}

int IconAddresses::symbolSide(qreal fontSize) const
{
    return ::symbolSide(fontSize);
}

int IconAddresses::symbolBorder(int side) const
{
    return ::symbolBorder(side);
}

QString IconAddresses::priorityName(Model::PriorityLevel level) const
{
    return displayName(level);
}
