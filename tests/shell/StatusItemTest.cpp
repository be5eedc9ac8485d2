#include "shell/StatusItem.h"

#include "shell/StatusIcons.h"
#include "state/AppStoreFixture.h"

#include <QAction>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class StatusItemTest : public AppStoreFixture
{
protected:
    void refreshWith(const IssueList &issues)
    {
        answerEverything();
        service->issuesCalls.answerWith(issues);
        const TaskResult<void> refreshed(store->refreshMyIssues());
        ASSERT_TRUE(refreshed.isDone());
        holdEverything();
    }
    static QStringList texts(const StatusItem &item)
    {
        QStringList list;
        for (const auto *action : const_cast<StatusItem &>(item).menu().actions())
            list += action->isSeparator() ? u"-"_s : action->text();
        return list;
    }
    static QAction *action(StatusItem &item, const QString &text)
    {
        for (auto *action : item.menu().actions()) {
            if (action->text() == text)
                return action;
        }
        ADD_FAILURE() << "no " << text.toStdString();
        return nullptr;
    }
};

TEST_F(StatusItemTest, BeforeASessionThereIsOnlyTheWayInAndTheWayOut)
{
    const StatusItem item(*store);
    EXPECT_EQ(texts(item), (QStringList{u"Ouvrir Velmora"_s, u"Quitter"_s}));
}

TEST_F(StatusItemTest, ItFollowsTheOpenIssuesOfADemoToo)
{
    StatusItem item(*store);
    startSession();
    EXPECT_EQ(texts(item).first(), u"Aucun ticket ouvert"_s);
    refreshWith({sampleIssue(u"MOB-1"_s)});
    EXPECT_EQ(texts(item).first(2),
              (QStringList{u"Mes tickets ouverts"_s, u"MOB-1  Résumé de MOB-1"_s}));
    EXPECT_FALSE(item.menu().actions().first()->isEnabled());
    EXPECT_FALSE(item.menu().actions().at(1)->icon().isNull());
    store->signOut();
    EXPECT_EQ(texts(item), (QStringList{u"Ouvrir Velmora"_s, u"Quitter"_s}));
}

TEST_F(StatusItemTest, AnAmpersandOfASummaryIsNoMark)
{
    StatusItem item(*store);
    startSession();
    Issue issue = sampleIssue(u"MOB-1"_s);
    issue.summary = u"R&D"_s;
    refreshWith({issue});
    EXPECT_EQ(texts(item).at(1), u"MOB-1  R&&D"_s);
}

TEST_F(StatusItemTest, ChoosingTellsWhatWasChosen)
{
    StatusItem item(*store);
    startSession();
    refreshWith({sampleIssue(u"MOB-1"_s)});
    QSignalSpy issue(&item, &StatusItem::issueChosen);
    QSignalSpy main(&item, &StatusItem::mainWindowChosen);
    QSignalSpy quit(&item, &StatusItem::quitChosen);
    action(item, u"MOB-1  Résumé de MOB-1"_s)->trigger();
    action(item, u"Ouvrir Velmora"_s)->trigger();
    action(item, u"Quitter"_s)->trigger();
    ASSERT_EQ(issue.count(), 1);
    EXPECT_EQ(issue.first().first(), u"MOB-1"_s);
    EXPECT_EQ(main.count(), 1);
    EXPECT_EQ(quit.count(), 1);
    EXPECT_EQ(action(item, u"Quitter"_s)->shortcut(), QKeySequence(QKeySequence::Quit));
}

TEST_F(StatusItemTest, RefreshingFetchesTheOpenIssues)
{
    StatusItem item(*store);
    startSession();
    const int before = service->issuesCalls.count();
    action(item, u"Actualiser"_s)->trigger();
    EXPECT_EQ(service->issuesCalls.count(), before + 1);
}

TEST_F(StatusItemTest, AFinishedStatusHasTheAccentsColour)
{
    const auto centreOf = [](AccentChoice accent) {
        const auto image = statusMenuIcon(IssueStatus::guessed(u"Terminé"_s), accent)
                               .pixmap(QSize(14, 14), 1)
                               .toImage();
        return image.pixelColor(2, 7);
    };
    EXPECT_EQ(centreOf(AccentChoice::Green), QColor(u"#29A86B"_s));
    EXPECT_EQ(centreOf(AccentChoice::Indigo), QColor(u"#5E6AD2"_s));
}
