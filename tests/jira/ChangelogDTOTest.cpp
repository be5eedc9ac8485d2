#include "jira/wire/ChangelogDTO.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using History = ChangelogDTO::History;

const QDateTime Noon({2026, 10, 29}, {12, 0}, Qt::UTC);

History::Item status(const QString &name)
{
    return {.field = {}, .fieldId = u"status"_s, .fromString = {}, .toString = name};
}

History entry(const std::optional<QDateTime> &date, const QList<History::Item> &items)
{
    return {.author = {}, .created = date, .items = items};
}

/// The names of the statuses in the order of the events; "créé" for the creation at noon.
QStringList namesOf(const ChangelogDTO &changelog)
{
    QStringList names;
    for (const ActivityEvent &event : changelog.events({Noon, {}, ActivityEvent::Created{}}))
        names.append(event.isCreation() ? u"créé"_s : event.statusChange()->to);
    return names;
}

TEST(ChangelogDTO, EntriesFromTheLatestToTheFirstAreSorted)
{
    EXPECT_EQ(namesOf({{{entry(Noon.addSecs(2), {status(u"b"_s)}),
                         entry(Noon.addSecs(1), {status(u"a"_s)})}}}),
              QStringList({u"créé"_s, u"a"_s, u"b"_s}));
}

TEST(ChangelogDTO, AnEntryBeforeTheCreationStaysBefore)
{
    EXPECT_EQ(namesOf({{{entry(Noon.addSecs(-1), {status(u"a"_s)})}}}),
              QStringList({u"a"_s, u"créé"_s}));
}

TEST(ChangelogDTO, EqualDatesKeepTheirOrderAfterTheCreation)
{
    EXPECT_EQ(namesOf({{{entry(Noon, {status(u"b"_s), status(u"a"_s)}),
                         entry(Noon, {status(u"d"_s), status(u"c"_s)})}}}),
              QStringList({u"créé"_s, u"b"_s, u"a"_s, u"d"_s, u"c"_s}));
}

TEST(ChangelogDTO, EntriesWithoutDateOrItemsAreIgnored)
{
    EXPECT_EQ(
        namesOf({{{entry({}, {status(u"a"_s)}), {.author = {}, .created = Noon, .items = {}}}}}),
        QStringList({u"créé"_s}));
    EXPECT_EQ(namesOf({}), QStringList({u"créé"_s}));
}

} // namespace
