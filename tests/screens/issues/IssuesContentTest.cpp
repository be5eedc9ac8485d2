#include "screens/issues/IssuesContent.h"

#include "state/AppStoreFixture.h"

using namespace Qt::StringLiterals;

class IssuesContentTest : public AppStoreFixture
{
protected:
    IssuesContentTest()
    {
        startSession();
        content.setStore(store.get());
    }

    QString title() const { return content.empty().title; }

    IssuesContent content;
};

TEST_F(IssuesContentTest, InAnEmptyListTheScreenFollowsTheText)
{
    ASSERT_EQ(content.kind(), IssuesContent::Kind::Empty);
    store->setFilterText(u"jeton"_s);
    EXPECT_EQ(title(), u"Aucun ticket ne correspond"_s);
    store->setFilterText({});
    EXPECT_EQ(title(), u"Rien à faire ici"_s);
}

TEST_F(IssuesContentTest, InAnEmptyListTheScreenFollowsTheFilters)
{
    IssueFilters filters;
    filters.labels = {u"api"_s};
    store->setFilters(filters);
    EXPECT_EQ(title(), u"Aucun ticket ne correspond"_s);
    store->setFilters({});
    EXPECT_EQ(title(), u"Rien à faire ici"_s);
}

TEST_F(IssuesContentTest, TheActionOfAnEmptyListRequestsANewIssue)
{
    ASSERT_FALSE(store->isCreating());
    content.runEmptyAction();
    EXPECT_TRUE(store->isCreating());
}
