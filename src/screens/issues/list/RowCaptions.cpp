#include "screens/issues/list/RowCaptions.h"

#include "screens/issues/face/IssueCaptions.h"
#include "screens/issues/list/RowFit.h"
#include "screens/kit/painters/ChipPainter.h"

namespace {

void addNames(QList<Caption> &captions, const RowCaptionsInput &row)
{
    const auto &labels = row.contents.labels;
    const auto at = [&row](double x, const Caption &caption) {
        return IssueCaptions::inMiddle({x, 0}, row.height, caption);
    };
    double x = row.plan.labels;
    for (const auto &label : labels.first(std::min(RowFitting::labelsShown, labels.size()))) {
        captions += at(x + ChipLayout::labelText, IssueCaptions::label(label, row.style.quiet));
        x += RowFitting::labelsWidth({label}) + Metrics::chipGap;
    }
    if (labels.size() > RowFitting::labelsShown)
        captions +=
            at(x, IssueCaptions::more(labels.size() - RowFitting::labelsShown, row.style.quiet));
}

} // namespace

QList<Caption> rowCaptions(const RowCaptionsInput &row)
{
    QList<Caption> captions;
    if (row.plan.labels != RowPlan::absent && row.plan.showsLabelNames)
        addNames(captions, row);
    if (row.plan.due != RowPlan::absent && row.plan.showsDueText) {
        const QColor color = row.isOverdue ? row.style.late : row.style.quiet;
        captions += IssueCaptions::inMiddle({row.plan.due + ChipLayout::dueText, 0}, row.height,
                                            IssueCaptions::due(row.contents.dueText, color));
    }
    return captions;
}
