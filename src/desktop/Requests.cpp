#include "desktop/Requests.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

QByteArray Requests::ofAction(const QString &id)
{
    const QByteArray wanted = "--" + id.toUtf8();
    const std::array known{QByteArray(NewIssue), QByteArray(Palette), QByteArray(Refresh)};
    return std::ranges::find(known, wanted) == known.end() ? QByteArray() : wanted;
}

QByteArray Requests::toOpen(const QString &key)
{
    return (u"velmora:"_s + key).toUtf8();
}
