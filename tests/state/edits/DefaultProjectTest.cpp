#include "state/edits/DefaultProject.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QList<Project> projects()
{
    Project a;
    a.key = u"A"_s;
    Project b;
    b.key = u"B"_s;
    return {a, b};
}

} // namespace

TEST(DefaultProject, TheOneAskedForComesFirst)
{
    EXPECT_EQ(defaultProjectKey(u"C"_s, u"B"_s, projects()), u"C"_s);
}

TEST(DefaultProject, ThenTheLastOneUsed)
{
    EXPECT_EQ(defaultProjectKey({}, u"B"_s, projects()), u"B"_s);
}

TEST(DefaultProject, ALastProjectThatHasDisappearedIsIgnored)
{
    EXPECT_EQ(defaultProjectKey({}, u"Z"_s, projects()), u"A"_s);
}

TEST(DefaultProject, NothingWithoutProjects)
{
    EXPECT_EQ(defaultProjectKey({}, {}, {}), std::nullopt);
    EXPECT_EQ(defaultProjectKey({}, u"Z"_s, {}), std::nullopt);
}
