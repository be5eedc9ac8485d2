#include "screens/issues/RowFit.h"

RowFit RowFitting::fit(double room, double labelNames, double labelDots, double dueText,
                       double dueIcon)
{
    RowFit fit;
    fit.showsLabelNames = room - labelNames - dueText >= summaryMinimum;
    const double labels = fit.showsLabelNames ? labelNames : labelDots;
    fit.showsDueText = room - labels - dueText >= summaryMinimum || dueText <= dueIcon;
    return fit;
}
