#include "state/edits/TransitionChoice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const IssueStatus wished(u"5"_s, u"Terminé"_s, u"done"_s);
const WorkflowTransition toItsLike{u"11"_s, u"Clore"_s,
                                   IssueStatus(u"50"_s, u"Closed"_s, u"done"_s)};
const WorkflowTransition toIt{u"12"_s, u"Finir"_s, wished};
const WorkflowTransition elsewhere{u"13"_s, u"Reprendre"_s,
                                   IssueStatus(u"3"_s, u"En cours"_s, u"indeterminate"_s)};

} // namespace

TEST(TransitionChoice, TheVeryStatusComesBeforeItsLike)
{
    EXPECT_EQ(transitionTo(wished, {elsewhere, toItsLike, toIt}), toIt);
}

TEST(TransitionChoice, AStatusOfAnotherWorkflowFindsItsCounterpart)
{
    EXPECT_EQ(transitionTo(wished, {elsewhere, toItsLike}), toItsLike);
}

TEST(TransitionChoice, NothingReachesTheStatus)
{
    EXPECT_EQ(transitionTo(wished, {elsewhere}), std::nullopt);
    EXPECT_EQ(transitionTo(wished, {}), std::nullopt);
}
