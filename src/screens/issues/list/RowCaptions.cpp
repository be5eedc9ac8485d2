#include "screens/issues/list/RowCaptions.h"

#include "screens/issues/face/IssueCaptions.h"
#include "screens/issues/face/TextMeasure.h"
#include "screens/issues/list/RowFit.h"
#include "screens/kit/painters/ChipPainter.h"

namespace {

Caption at(double x, const Caption &caption, const RowCaptionsInput &row)
{
    return IssueCaptions::inMiddle({x, 0}, row.height, caption);
}

/// A key or a date.
Caption figures(const QString &text, const RowCaptionsInput &row)
{
    return IssueCaptions::caption(text, TypeScale::Small, TypeScale::roleWeight, row.style.quiet,
                                  true);
}

void addKey(QList<Caption> &captions, const RowCaptionsInput &row)
{
    Caption key = at(row.plan.key, figures(row.key, row), row);
    key.width = row.style.keyWidth;
    captions += key;
}

void addSummaries(QList<Caption> &captions, const RowCaptionsInput &row)
{
    Caption title =
        IssueCaptions::caption(row.contents.summary, TypeScale::Body, QFont::Medium, row.style.ink);
    title.width = row.plan.summaryWidth;
    captions += at(row.plan.summary, title, row);
    if (row.plan.parent != RowPlan::absent)
        captions += at(row.plan.parent + RowPlan::parentText(),
                       IssueCaptions::caption(row.contents.parentSummary, TypeScale::Small,
                                              TypeScale::roleWeight, row.style.parentInk),
                       row);
}

/// "à l'instant" is wider than the column and also uses part of the gap before it.
void addDate(QList<Caption> &captions, const RowCaptionsInput &row)
{
    const Caption date = figures(row.updatedText, row);
    const double end = row.plan.updated + row.plan.updatedWidth;
    captions += at(end - TextMeasure::width(date.text, date.font), date, row);
}

void addNames(QList<Caption> &captions, const RowCaptionsInput &row)
{
    const auto &labels = row.contents.labels;
    double x = row.plan.labels;
    for (const auto &label : labels.first(std::min(RowFitting::labelsShown, labels.size()))) {
        captions +=
            at(x + ChipLayout::labelText, IssueCaptions::label(label, row.style.quiet), row);
        x += RowFitting::labelsWidth({label}) + Metrics::chipGap;
    }
    if (labels.size() > RowFitting::labelsShown)
        captions += at(
            x, IssueCaptions::more(labels.size() - RowFitting::labelsShown, row.style.quiet), row);
}

} // namespace

QList<Caption> rowCaptions(const RowCaptionsInput &row)
{
    QList<Caption> captions;
    if (row.plan.key != RowPlan::absent)
        addKey(captions, row);
    addSummaries(captions, row);
    if (row.plan.labels != RowPlan::absent && row.plan.showsLabelNames)
        addNames(captions, row);
    if (row.plan.due != RowPlan::absent && row.plan.showsDueText) {
        const QColor color = row.isOverdue ? row.style.late : row.style.quiet;
        captions += at(row.plan.due + ChipLayout::dueText,
                       IssueCaptions::due(row.contents.dueText, color), row);
    }
    if (row.plan.updated != RowPlan::absent && !row.updatedText.isEmpty())
        addDate(captions, row);
    return captions;
}
