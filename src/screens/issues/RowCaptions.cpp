#include "screens/issues/RowCaptions.h"

#include "screens/issues/RowFit.h"
#include "screens/theme/TypeScale.h"

namespace {

constexpr qsizetype namesShown = 2;
constexpr double chipGap = 4;
/// Before the name in its chip, and before the date in its badge.
constexpr double nameInset = 19;
constexpr double dateInset = 23;

RowCaption caption(double x, const QString &text, TypeScale::Role role, int weight,
                   const QColor &color)
{
    const TypeScale scale;
    const bool isTabular = role == TypeScale::Badge;
    return {x, text, scale.font(role, weight, isTabular), scale.halfLeading(role), color};
}

void addNames(QList<RowCaption> &captions, const QStringList &labels, double x, const QColor &color)
{
    for (const auto &label : labels.first(std::min(namesShown, labels.size()))) {
        captions += caption(x + nameInset, label, TypeScale::Caption, QFont::Medium, color);
        x += RowFitting::labelsWidth({label}) + chipGap;
    }
    if (labels.size() > namesShown)
        captions += caption(x, u'+' + QString::number(labels.size() - namesShown),
                            TypeScale::Caption, TypeScale::roleWeight, color);
}

} // namespace

QList<RowCaption> rowCaptions(const RowContents &contents, const RowPlan &plan,
                              const RowStyle &style, bool isOverdue)
{
    QList<RowCaption> captions;
    if (plan.labels != RowPlan::absent && plan.showsLabelNames)
        addNames(captions, contents.labels, plan.labels, style.quiet);
    if (plan.due != RowPlan::absent && plan.showsDueText)
        captions += caption(plan.due + dateInset, contents.dueText, TypeScale::Badge,
                            TypeScale::roleWeight, isOverdue ? style.late : style.quiet);
    return captions;
}
