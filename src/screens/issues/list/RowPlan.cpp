#include "screens/issues/list/RowPlan.h"

#include "screens/issues/face/TextMeasure.h"
#include "screens/issues/list/RowFit.h"
#include "screens/issues/list/RowStyle.h"
#include "screens/kit/painters/SymbolPainter.h"
#include "screens/theme/Metrics.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double margin = Metrics::rowPadding;
constexpr double gap = Metrics::rowGap;

double withGap(double width)
{
    return width > 0 ? width + gap : 0;
}

/// Allocates the columns one after the other. The first one has no gap before it.
class Places
{
public:
    explicit Places(double start) : m_start(start), m_end(start) {}

    double take(bool isShown, double width)
    {
        if (!isShown)
            return RowPlan::absent;
        const double place = m_end > m_start ? m_end + gap : m_end;
        m_end = place + width;
        return place;
    }
    double end() const { return m_end; }

private:
    double m_start;
    double m_end;
};

/// The total width of the columns after the due date.
double trailingWidth(const RowContents &contents)
{
    Places places(0);
    places.take(contents.display.assignee, Metrics::rowPicker);
    places.take(contents.display.updated, contents.updatedWidth);
    return places.end();
}

void placeLeading(RowPlan &plan, Places &places, const RowContents &contents)
{
    plan.check = places.take(true, Metrics::checkBox);
    plan.priority = places.take(contents.display.priority, Metrics::rowPicker);
    plan.key = places.take(contents.display.key, contents.keyWidth);
    plan.status = places.take(true, Metrics::rowPicker);
    plan.type = places.take(contents.display.type, Metrics::rowType);
}

void placeTrailing(RowPlan &plan, double start, const RowContents &contents)
{
    Places places(start);
    plan.assignee = places.take(contents.display.assignee, Metrics::rowPicker);
    plan.updated = places.take(contents.display.updated, contents.updatedWidth);
    plan.updatedWidth = contents.updatedWidth;
}

/// Places labels, due date and summary from right to left, in the forms that fit between the other columns.
void placeMiddle(RowPlan &plan, const RowContents &contents, double start, double end)
{
    const bool hasDue = contents.display.dueDate && !contents.dueText.isEmpty();
    const bool hasLabels = contents.display.labels && !contents.labels.isEmpty();
    const double namesWidth = hasLabels ? RowFitting::labelsWidth(contents.labels) : 0;
    const double dots = hasLabels ? RowFitting::dotsWidth(contents.labels) : 0;
    const double dueWidth = hasDue ? RowFitting::dueWidth(contents.dueText) : 0;
    const auto fit =
        RowFitting::fit(end - start, withGap(namesWidth), withGap(dots), withGap(dueWidth),
                        hasDue ? withGap(Metrics::rowDueCompact) : 0);
    plan.showsLabelNames = fit.showsLabelNames;
    plan.showsDueText = fit.showsDueText;
    double right = end;
    if (hasDue) {
        plan.dueWidth = fit.showsDueText ? dueWidth : Metrics::rowDueCompact;
        plan.due = right - plan.dueWidth;
        right = plan.due - gap;
    }
    if (hasLabels) {
        plan.labels = right - (fit.showsLabelNames ? namesWidth : dots);
        right = plan.labels - gap;
    }
    plan.summary = start;
    plan.summaryWidth = std::max(0.0, right - start);
}

/// Places the parent after the summary, if the summary leaves enough width.
void placeParent(RowPlan &plan, const RowContents &contents)
{
    if (contents.parentSummary.isEmpty())
        return;
    // The chevron is a picture, which is sharp only at a whole pixel.
    const double start =
        std::ceil(TextMeasure::width(contents.summary, RowStyle::titleFont())) + Metrics::gapSmall;
    const double width =
        RowPlan::parentText() + TextMeasure::width(contents.parentSummary, RowStyle::parentFont());
    if (start + width <= plan.summaryWidth)
        plan.parent = plan.summary + start;
}

} // namespace

double RowPlan::parentText()
{
    // The space between the chevron and the summary.
    constexpr double markGap = 3;
    return symbolSide(parentMark) + markGap;
}

RowPlan rowPlan(const RowContents &contents, double width)
{
    RowPlan plan;
    Places leading(margin);
    placeLeading(plan, leading, contents);
    const double trailing = width - margin - trailingWidth(contents);
    placeTrailing(plan, trailing, contents);
    placeMiddle(plan, contents, leading.end() + gap, trailing - gap);
    placeParent(plan, contents);
    return plan;
}
