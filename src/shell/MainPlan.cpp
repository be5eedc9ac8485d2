#include "shell/MainPlan.h"

#include <algorithm>

namespace {

/// The width of a row with all its columns and the minimum summary, plus the margins of the list.
constexpr int detailMinimum = 532;
/// Below this width a list beside the inspector would show almost nothing of the summaries.
constexpr int detailLeast = 350;

} // namespace

MainPlan mainPlan(const MainWishes &wishes)
{
    MainPlan plan;
    plan.sidebar = boundedSidebar(wishes.sidebar);
    plan.inspector = wishes.hasInspector ? boundedInspector(wishes.inspector) : 0;
    const int least = boundedSidebar(0) + (wishes.hasInspector ? boundedInspector(0) : 0);
    plan.hasSidebar = wishes.window >= least + detailMinimum;
    const int sidebar = plan.hasSidebar ? plan.sidebar : 0;
    if (wishes.hasInspector) {
        const int room = wishes.window - sidebar - detailMinimum;
        plan.inspector = std::clamp(room, boundedInspector(0), plan.inspector);
        plan.coversDetail = wishes.window - plan.inspector < detailLeast;
    }
    if (plan.hasSidebar)
        plan.sidebar = std::min(plan.sidebar, wishes.window - plan.inspector - detailMinimum);
    if (plan.coversDetail)
        plan.inspector = wishes.window;
    return plan;
}
