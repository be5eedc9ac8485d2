#include "model/LocalizedComparator.h"

#include "model/dates/UserCalendar.h"

#include <optional>

LocalizedComparator::LocalizedComparator(const QLocale &locale)
    : m_collator(UserCalendar::localeFor(locale))
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

int localizedCompare(const QString &a, const QString &b, const QLocale &locale)
{
    return LocalizedComparator(locale).compare(a, b);
}
