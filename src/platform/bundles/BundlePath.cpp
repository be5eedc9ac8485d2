#include "platform/bundles/BundlePath.h"

#include <QByteArrayList>

#include <algorithm>

namespace {

constexpr qsizetype LongestPath = 1000;
constexpr qsizetype LongestPart = 200;
constexpr qsizetype LongestShown = 120;

bool isPrintable(char c)
{
    return c >= ' ' && c <= '~';
}

bool isValidPart(QByteArrayView part)
{
    return !part.isEmpty() && part.size() <= LongestPart && part != "." && !part.contains('\\') &&
           std::ranges::all_of(part, isPrintable);
}

} // namespace

BundlePath::Fault BundlePath::faultOf(QByteArrayView path)
{
    if (path.startsWith('/'))
        return Fault::Absolute;
    const QList<QByteArray> parts = path.toByteArray().split('/');
    if (parts.contains(".."))
        return Fault::LeadsOut;
    if (path.size() > LongestPath || !std::ranges::all_of(parts, isValidPart))
        return Fault::Invalid;
    return Fault::None;
}

QString BundlePath::shown(QByteArrayView path)
{
    QString text;
    for (const char c : path.first(std::min(path.size(), LongestShown)))
        text += isPrintable(c) ? QLatin1Char(c) : QLatin1Char('?');
    return path.size() > LongestShown ? text + u'…' : text;
}
