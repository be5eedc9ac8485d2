#include "model/IssueScope.h"

#include <QHash>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QSet<IssueScope> distinctScopes()
{
    return {
        IssueScope::myIssues(),
        IssueScope::recent(),
        IssueScope::reported(),
        IssueScope::project(u"APP"_s, ProjectView::All),
        IssueScope::project(u"APP"_s, ProjectView::Active),
        IssueScope::project(u"WEB"_s, ProjectView::All),
        IssueScope::activity({ActivityRange::Week, 0, false}),
        IssueScope::activity({ActivityRange::Month, 0, false}),
        IssueScope::activity({ActivityRange::Week, -1, false}),
        IssueScope::activity({ActivityRange::Week, 0, true}),
    };
}

TEST(IssueScope, StartsAtMyIssues)
{
    EXPECT_EQ(IssueScope(), IssueScope::myIssues());
}

TEST(IssueScope, ProjectsAreEqualByKeyAndView)
{
    const auto all = IssueScope::project(u"APP"_s, ProjectView::All);
    EXPECT_EQ(all, IssueScope::project(u"APP"_s, ProjectView::All));
    EXPECT_NE(all, IssueScope::project(u"APP"_s, ProjectView::Active));
    EXPECT_NE(all, IssueScope::project(u"WEB"_s, ProjectView::All));
}

TEST(IssueScope, ViewsOfOneProjectAreSeparateKeysOfACache)
{
    QHash<IssueScope, int> cache;
    cache[IssueScope::project(u"APP"_s, ProjectView::All)] = 1;
    cache[IssueScope::project(u"APP"_s, ProjectView::Active)] = 2;
    EXPECT_EQ(cache.size(), 2);
    EXPECT_EQ(cache.value(IssueScope::project(u"APP"_s, ProjectView::All)), 1);
}

TEST(IssueScope, ActivitiesAreEqualByRangeOffsetAndTeam)
{
    const auto activity = IssueScope::activity({ActivityRange::Week, -1, true});
    EXPECT_EQ(activity, IssueScope::activity({ActivityRange::Week, -1, true}));
    EXPECT_NE(activity, IssueScope::activity({ActivityRange::Month, -1, true}));
    EXPECT_NE(activity, IssueScope::activity({ActivityRange::Week, -2, true}));
    EXPECT_NE(activity, IssueScope::activity({ActivityRange::Week, -1, false}));
}

TEST(IssueScope, DifferentScopesAreDifferentKeysAndHashes)
{
    EXPECT_EQ(distinctScopes().size(), 10);
    QSet<size_t> hashes;
    for (const IssueScope &scope : distinctScopes())
        hashes.insert(qHash(scope));
    EXPECT_EQ(hashes.size(), 10);
}

TEST(IssueScope, TellsItsPayload)
{
    const auto project = IssueScope::project(u"APP"_s, ProjectView::Backlog);
    ASSERT_NE(project.asProject(), nullptr);
    EXPECT_EQ(project.asProject()->key, u"APP"_s);
    EXPECT_EQ(project.asProject()->view, ProjectView::Backlog);
    EXPECT_EQ(project.asActivity(), nullptr);
    const auto activity = IssueScope::activity({ActivityRange::Month, -3, false});
    ASSERT_NE(activity.asActivity(), nullptr);
    EXPECT_EQ(activity.asActivity()->offset, -3);
    EXPECT_EQ(activity.asProject(), nullptr);
}

} // namespace
