#include "state/AppStoreFixture.h"
#include "state/recap/ActivitySamples.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

const QLocale French(QLocale::French, QLocale::France);
// Two time zones whose dates differ by one day at every instant.
const UserCalendar West{French, QTimeZone("Pacific/Pago_Pago")};
const UserCalendar East{French, QTimeZone("Pacific/Tongatapu")};

class AppStoreCalendarTest : public AppStoreFixture
{
protected:
    void SetUp() override
    {
        startSession();
        store->setCalendar(West);
    }

    QString dueText(const IssueListModel *rows, const QString &key) const
    {
        return rows->data(rows->index(rows->rowOfKey(key)), IssueListModel::DueTextRole).toString();
    }

    /// An issue that is due on the calendar's current day.
    Issue dueToday(const QString &key, const UserCalendar &calendar) const
    {
        Issue issue = sampleIssue(key);
        issue.dueDate = calendar.day(clock.now());
        return issue;
    }
};

TEST_F(AppStoreCalendarTest, theRowsTellTheirDatesInTheNewTimeZone)
{
    reloadWith({dueToday(u"WEB-1"_s, West)});
    ASSERT_EQ(dueText(store->issueList(), u"WEB-1"_s), u"Aujourd'hui"_s);
    const QSignalSpy changes(store->issueList(), &QAbstractItemModel::dataChanged);
    const QSignalSpy told(store.get(), &AppStore::calendarChanged);
    store->setCalendar(East);

    EXPECT_EQ(dueText(store->issueList(), u"WEB-1"_s), u"Hier"_s);
    EXPECT_EQ(told.count(), 1);
    ASSERT_FALSE(changes.isEmpty());
    EXPECT_TRUE(changes.first()[2].value<QList<int>>().contains(IssueListModel::DueTextRole));
    EXPECT_EQ(store->calendar().zone, East.zone);
}

TEST_F(AppStoreCalendarTest, soDoTheCardsOfTheBoardAndThoseThatComeLater)
{
    store->setLayout(LayoutMode::Board);
    reloadWith({dueToday(u"WEB-1"_s, West)});
    ASSERT_EQ(dueText(store->board()->cards(0), u"WEB-1"_s), u"Aujourd'hui"_s);
    store->setCalendar(East);
    EXPECT_EQ(dueText(store->board()->cards(0), u"WEB-1"_s), u"Hier"_s);

    reloadWith({dueToday(u"WEB-2"_s, East)});
    EXPECT_EQ(dueText(store->board()->cards(0), u"WEB-2"_s), u"Aujourd'hui"_s);
}

TEST_F(AppStoreCalendarTest, aRecapTellsItsPeriodAndItsEventsInTheNewLanguage)
{
    answerEverything();
    service->issuesCalls.answerWith(
        {Sample::issue(u"WEB-1"_s, {Sample::statusEvent(u"À faire"_s, u"En cours"_s, 27)})});
    store->select(IssueScope::activity({ActivityRange::Month, 0, false}));
    const QSignalSpy titles(store.get(), &AppStore::activityHeaderChanged);
    const auto before = store->activityHeader().rangeLabel;
    const QSignalSpy changes(store->issueList(), &QAbstractItemModel::dataChanged);
    store->setCalendar({QLocale(QLocale::German, QLocale::Germany), QTimeZone("Asia/Tokyo")});

    EXPECT_EQ(titles.count(), 1);
    EXPECT_NE(store->activityHeader().rangeLabel, before);
    EXPECT_TRUE(std::ranges::any_of(changes, [](const QList<QVariant> &change) {
        return change[2].value<QList<int>>().contains(IssueListModel::BadgeRole);
    }));
}

TEST_F(AppStoreCalendarTest, namesAreSortedByTheNewLanguage)
{
    Issue last = sampleIssue(u"WEB-1"_s);
    last.labels = {u"Åland"_s, u"Zone"_s};
    reloadWith({last});
    ASSERT_EQ(store->derivation().menus().labels, (QStringList{u"Åland"_s, u"Zone"_s}));
    store->setCalendar({QLocale(QLocale::Swedish, QLocale::Sweden), East.zone});
    EXPECT_EQ(store->derivation().menus().labels, (QStringList{u"Zone"_s, u"Åland"_s}));
}

} // namespace
