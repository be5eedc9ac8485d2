#include "screens/theme/KeyColumn.h"

#include "screens/theme/Metrics.h"
#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

int keyColumnWidth(const QStringList &keys, const std::function<qreal(const QString &)> &advance)
{
    if (keys.isEmpty())
        return Metrics::rowKeyMinimum;
    qreal width = 0;
    for (const auto &key : keys)
        width = std::max(width, advance(key));
    return std::clamp(int(std::ceil(width)) + Metrics::rowKeySpare, Metrics::rowKeyMinimum,
                      Metrics::rowKeyMaximum);
}

int keyColumnWidth(const QStringList &keys)
{
    const QFontMetricsF metrics(TypeScale().font(TypeScale::Small, TypeScale::roleWeight, true));
    return keyColumnWidth(keys, [&](const QString &key) { return metrics.horizontalAdvance(key); });
}
