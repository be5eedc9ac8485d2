#include "jira/SiteAnswers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

ProjectSearchDTO page(qsizetype projects, std::optional<bool> isLast)
{
    ProjectSearchDTO result;
    result.values.resize(projects);
    result.isLast = isLast;
    return result;
}

/// The start indexes of the pages of a site with the given number of projects, which returns 100 per page.
QList<qsizetype> pageStarts(qsizetype projects)
{
    QList<qsizetype> starts;
    qsizetype gathered = 0;
    std::optional<qsizetype> start = 0;
    while (start) {
        starts.append(*start);
        const qsizetype size = std::min<qsizetype>(100, projects - *start);
        gathered += size;
        start = SiteAnswers::nextProjects(page(size, *start + size >= projects), *start, gathered);
    }
    return starts;
}

TEST(Projects, ASiteWith130TakesTwoRequests)
{
    EXPECT_EQ(pageStarts(130), QList<qsizetype>({0, 100}));
}

TEST(Projects, ASiteWith600StopsAt500)
{
    EXPECT_EQ(pageStarts(600), QList<qsizetype>({0, 100, 200, 300, 400}));
}

TEST(Projects, APageWithoutIsLastEndsTheList)
{
    EXPECT_EQ(SiteAnswers::nextProjects(page(100, {}), 0, 100), std::nullopt);
}

TEST(Projects, AnEmptyPageEndsTheListThoughItIsNotTheLast)
{
    EXPECT_EQ(SiteAnswers::nextProjects(page(0, false), 100, 100), std::nullopt);
}

TEST(Projects, AShortPageMovesOnByItsSize)
{
    EXPECT_EQ(SiteAnswers::nextProjects(page(50, false), 50, 100), 100);
}

UserDTO user(const QString &name, std::optional<QString> accountType = {},
             std::optional<bool> active = {})
{
    UserDTO result;
    result.accountId = name;
    result.displayName = name;
    result.accountType = std::move(accountType);
    result.active = active;
    return result;
}

QStringList names(const QList<JiraUser> &users)
{
    QStringList result;
    for (const JiraUser &user : users)
        result.append(user.name);
    return result;
}

const QLocale French(QLocale::French, QLocale::France);

TEST(Users, ACustomerIsFoundButNotAssignable)
{
    const QList<UserDTO> users{user(u"Cléo"_s, u"customer"_s)};
    EXPECT_EQ(names(SiteAnswers::foundUsers(users)), QStringList({u"Cléo"_s}));
    EXPECT_EQ(names(SiteAnswers::assignableUsers(users, French)), QStringList());
}

TEST(Users, AnApplicationIsInNeither)
{
    const QList<UserDTO> users{user(u"Robot"_s, u"app"_s)};
    EXPECT_EQ(names(SiteAnswers::foundUsers(users)), QStringList());
    EXPECT_EQ(names(SiteAnswers::assignableUsers(users, French)), QStringList());
}

TEST(Users, AnInactiveUserIsInNeither)
{
    const QList<UserDTO> users{user(u"Ancien"_s, u"atlassian"_s, false)};
    EXPECT_EQ(names(SiteAnswers::foundUsers(users)), QStringList());
    EXPECT_EQ(names(SiteAnswers::assignableUsers(users, French)), QStringList());
}

TEST(Users, WithoutTypeAndActivityAUserIsInBoth)
{
    const QList<UserDTO> users{user(u"Léa"_s), user(u"Max"_s, u"atlassian"_s, true)};
    EXPECT_EQ(names(SiteAnswers::foundUsers(users)), QStringList({u"Léa"_s, u"Max"_s}));
    EXPECT_EQ(names(SiteAnswers::assignableUsers(users, French)),
              QStringList({u"Léa"_s, u"Max"_s}));
}

TEST(Users, AssignableOnesGoByNameInTheOrderOfTheLocale)
{
    EXPECT_EQ(names(SiteAnswers::assignableUsers(
                  {user(u"Zoé"_s), user(u"émile"_s), user(u"Fanny"_s), user(u"Anna"_s)}, French)),
              QStringList({u"Anna"_s, u"émile"_s, u"Fanny"_s, u"Zoé"_s}));
}

TEST(Users, NamesakesKeepTheOrderOfTheServer)
{
    UserDTO second = user(u"Léa"_s);
    second.accountId = u"2"_s;
    const auto sorted =
        SiteAnswers::assignableUsers({user(u"Léa"_s), second, user(u"Anna"_s)}, French);
    EXPECT_EQ(sorted[1].id, u"Léa"_s);
    EXPECT_EQ(sorted[2].id, u"2"_s);
}

TEST(Users, FoundOnesKeepTheOrderOfTheServer)
{
    EXPECT_EQ(names(SiteAnswers::foundUsers({user(u"Zoé"_s), user(u"Anna"_s)})),
              QStringList({u"Zoé"_s, u"Anna"_s}));
}

TEST(Statuses, OneForEachGroupKeyInOrderOfFirstAppearance)
{
    const StatusDTO progress{u"3"_s, u"En cours"_s, StatusDTO::Category{u"indeterminate"_s}};
    const StatusDTO todo{u"1"_s, u"À faire"_s, StatusDTO::Category{u"new"_s}};
    const StatusDTO other{u"7"_s, u"In Progress"_s, StatusDTO::Category{u"indeterminate"_s}};
    EXPECT_EQ(SiteAnswers::statuses({{{progress, todo}}, {{other, todo}}}),
              QList<IssueStatus>({progress.model(), todo.model()}));
}

CommentDTO comment(std::optional<bool> jsdPublic)
{
    CommentDTO result;
    result.jsdPublic = jsdPublic;
    return result;
}

bool isInternal(std::optional<bool> jsdPublic, CommentAudience audience)
{
    return SiteAnswers::storedComment(comment(jsdPublic), audience, {}).isInternal;
}

TEST(StoredComment, AnInternalOneIsInternalWhateverTheAnswerSays)
{
    EXPECT_TRUE(isInternal({}, CommentAudience::Agents));
    EXPECT_TRUE(isInternal(true, CommentAudience::Agents));
}

TEST(StoredComment, APublicOneIsWhatTheAnswerSays)
{
    EXPECT_FALSE(isInternal({}, CommentAudience::Everyone));
    EXPECT_TRUE(isInternal(false, CommentAudience::Everyone));
}

TEST(DetailedIssue, HasDetailsWhereTheRecordOfAListHasNot)
{
    IssueDTO wire;
    wire.fields.description = ADFNode{.type = u"doc"_s};
    EXPECT_TRUE(SiteAnswers::detailedIssue(wire, {}).hasDetails);
    EXPECT_FALSE(wire.model({}).hasDetails);
}

} // namespace
