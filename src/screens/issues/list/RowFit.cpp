#include "screens/issues/list/RowFit.h"

#include "screens/kit/painters/ChipPainter.h"
#include "screens/theme/TypeScale.h"

#include <QFontMetricsF>
#include <QHash>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Measures widths in one font, and each text only once.
class Ruler
{
public:
    explicit Ruler(const QFont &font) : m_metrics(font) {}

    double width(const QString &text)
    {
        const auto known = m_widths.constFind(text);
        return known != m_widths.cend()
                   ? *known
                   : *m_widths.insert(text, std::ceil(m_metrics.horizontalAdvance(text)));
    }

private:
    QFontMetricsF m_metrics;
    QHash<QString, double> m_widths;
};

double chipWidth(const QString &label)
{
    static Ruler ruler(TypeScale().font(TypeScale::Caption, QFont::Medium));
    return ruler.width(label) + ChipLayout::labelFrame;
}

double moreWidth(qsizetype count)
{
    static Ruler ruler(TypeScale().font(TypeScale::Caption));
    return ruler.width(u'+' + QString::number(count));
}

} // namespace

RowFit RowFitting::fit(double room, double labelNames, double labelDots, double dueText,
                       double dueIcon)
{
    RowFit fit;
    fit.showsLabelNames = room - labelNames - dueText >= summaryMinimum;
    const double labels = fit.showsLabelNames ? labelNames : labelDots;
    fit.showsDueText = room - labels - dueText >= summaryMinimum || dueText <= dueIcon;
    return fit;
}

double RowFitting::labelsWidth(const QStringList &labels)
{
    const qsizetype shown = std::min(labelsShown, labels.size());
    double width = 0;
    for (qsizetype i = 0; i < shown; ++i)
        width += chipWidth(labels[i]) + (i > 0 ? Metrics::chipGap : 0);
    return labels.size() > shown ? width + Metrics::chipGap + moreWidth(labels.size() - shown)
                                 : width;
}

double RowFitting::dotsWidth(const QStringList &labels)
{
    const auto count = double(std::min(dotsShown, labels.size()));
    return count > 0 ? count * Metrics::labelDot + (count - 1) * Metrics::labelDotGap : 0;
}

double RowFitting::dueWidth(const QString &text)
{
    static Ruler ruler(TypeScale().font(TypeScale::Badge, TypeScale::roleWeight, true));
    return ruler.width(text) + ChipLayout::dueFrame;
}
