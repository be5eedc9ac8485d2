#include "update/ReleaseOrder.h"

#include "model/ParsedInteger.h"

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Removes the digits at the start of `text` and returns them without leading zeros.
QStringView takeNumber(QStringView &text)
{
    const auto end = std::ranges::find_if_not(text, isDigit);
    QStringView digits = text.first(std::distance(text.begin(), end));
    text = text.sliced(digits.size());
    while (digits.startsWith(u'0'))
        digits = digits.sliced(1);
    return digits;
}

int compareNumbers(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

} // namespace

int ReleaseOrder::numericCompare(QStringView a, QStringView b)
{
    while (!a.isEmpty() && !b.isEmpty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const QStringView left = takeNumber(a);
            const QStringView right = takeNumber(b);
            if (const int order = compareNumbers(left, right))
                return order;
        } else if (a.front() != b.front()) {
            return a.front() < b.front() ? -1 : 1;
        } else {
            a = a.sliced(1);
            b = b.sliced(1);
        }
    }
    return int(!a.isEmpty()) - int(!b.isEmpty());
}

bool ReleaseOrder::isNewer(const ReleaseInfo &release, const QString &currentVersion,
                           const QString &currentBuild)
{
    const auto offered = parsedInteger(release.build);
    const auto running = parsedInteger(currentBuild);
    if (offered && running && *offered != *running)
        return *running < *offered;
    return numericCompare(release.version, currentVersion) > 0;
}

ReleaseOrder::SystemVersion ReleaseOrder::systemVersion(const QString &text)
{
    QList<qint64> numbers;
    for (const QStringView part : QStringView(text).split(u'.')) {
        if (const auto number = parsedInteger(part))
            numbers.append(*number);
    }
    return {numbers.value(0), numbers.value(1)};
}
