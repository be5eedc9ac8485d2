#include "screens/detail/site/FaultMatrix.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const auto DraftOffer = u"Reprendre le brouillon"_s;

QString nameOf(const testing::TestParamInfo<std::tuple<Activity, Fault>> &info)
{
    static const QStringList activities{u"Title"_s,   u"Description"_s, u"Mention"_s,
                                        u"DueDate"_s, u"NewIssue"_s,    u"Comment"_s,
                                        u"Upload"_s,  u"Creation"_s};
    static const QStringList faults{u"Change"_s, u"Refusal"_s, u"OtherSession"_s,
                                    u"LostConnection"_s, u"SlowSite"_s};
    return activities[int(std::get<0>(info.param))] + faults[int(std::get<1>(info.param))];
}

} // namespace

QStringList FaultMatrix::stored()
{
    QStringList found;
    if (siteIssue().summary == typed)
        found += u"title"_s;
    const QString description =
        QString::fromUtf8(QJsonDocument(siteIssue().description).toJson(QJsonDocument::Compact));
    if (description.contains(typed))
        found += u"description"_s;
    if (siteIssue().due)
        found += siteIssue().due->toString(Qt::ISODate);
    for (const SiteComment &comment : siteIssue().comments) {
        if (QJsonDocument(comment.body).toJson().contains(typed.toUtf8()))
            found += u"comment"_s;
    }
    for (const SiteAttachment &file : siteIssue().attachments)
        found += file.filename;
    for (const SiteIssue &issue : site.site().issues()) {
        if (issue.key != key && issue.summary == typed)
            found += u"issue"_s;
    }
    return found;
}

QString FaultMatrix::wanted() const
{
    static const QStringList all{u"title"_s, u"description"_s, u"comment"_s,   u"2026-10-30"_s,
                                 u"issue"_s, u"comment"_s,     u"notes.txt"_s, u"issue"_s};
    return all[int(activity)];
}

qsizetype FaultMatrix::asked() const
{
    const bool isOtherEdit = fault == Fault::Refusal && !isWaiting();
    return 1 + (isOtherEdit || isWriteRefused() ? 1 : 0);
}

void FaultMatrix::expectForgotten(qsizetype writesBefore)
{
    EXPECT_TRUE(areWritesOver());
    EXPECT_EQ(writes().size(), writesBefore) << writes().join(u'\n').toStdString();
    EXPECT_LE(stored().size(), isWaiting() ? 1 : 0);
    for (QQuickWindow *each : {&mainWindow(), ownWindow(key)}) {
        if (!each)
            continue;
        use(*each);
        EXPECT_TRUE(isGone(QAccessible::Dialog, {})) << each->title().toStdString();
        for (const Spoken &thing : spokenIn(*each)) {
            EXPECT_FALSE(thing.value.contains(typed)) << thing.name.toStdString();
            EXPECT_NE(thing.name, DraftOffer);
        }
    }
    beginAgain();
    EXPECT_FALSE(has(QAccessible::Button, DraftOffer));
}

void FaultMatrix::beginAgain()
{
    if (isSheet())
        return openSheet();
    openIssue();
    EXPECT_FALSE(has(QAccessible::Button, DraftOffer));
    ASSERT_TRUE(pressAction(window(), QAccessible::Button, u"la description"_s));
    await(QAccessible::EditableText, u"Description"_s);
}

void FaultMatrix::expectStoredOnce()
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return writes().size() == asked(); }, patience));
    EXPECT_TRUE(areWritesOver());
    EXPECT_EQ(writes().size(), asked()) << writes().join(u'\n').toStdString();
    EXPECT_EQ(stored(), QStringList(wanted()));
    settle();
    if (isSheet()) {
        EXPECT_TRUE(isGone(QAccessible::EditableText, u"Titre du ticket"_s));
        return;
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return commentsShown() == siteIssue().comments.size(); },
                                patience))
        << commentsShown() << " comments";
    if (activity == Activity::Upload)
        expectLinkedOnce();
    if (activity == Activity::Comment || activity == Activity::Mention)
        EXPECT_EQ(place().text, QString());
}

void FaultMatrix::expectLinkedOnce()
{
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return place().text.contains(u"notes.txt"_s); }, patience));
    EXPECT_TRUE(place().text.startsWith(typed + u"\n📎 ["_s)) << place().text.toStdString();
    EXPECT_EQ(place().text.count(u"[notes.txt]"_s), 1);
    await(QAccessible::ListItem, u"notes.txt"_s);
}

TEST_P(FaultMatrix, LosesNothingThatWasTypedAndStoresItOnce)
{
    begin();
    const Place before = place();
    const auto writesBefore = writes().size();
    meetFault();
    if (fault == Fault::OtherSession)
        return expectForgotten(writesBefore);
    EXPECT_EQ(place(), before);
    if (activity == Activity::Mention)
        EXPECT_EQ(suggested(), mentioned);
    finish();
    expectStoredOnce();
}

INSTANTIATE_TEST_SUITE_P(
    Each, FaultMatrix,
    testing::Combine(testing::Values(Activity::Title, Activity::Description, Activity::Mention,
                                     Activity::DueDate, Activity::NewIssue, Activity::Comment,
                                     Activity::Upload, Activity::Creation),
                     testing::Values(Fault::Change, Fault::Refusal, Fault::OtherSession,
                                     Fault::LostConnection, Fault::SlowSite)),
    [](const auto &info) { return nameOf(info).toStdString(); });

/// The sheet for a new issue on a site that has not sent the types of the project yet.
class EarlyNewIssue : public SiteWindow
{
protected:
    EarlyNewIssue()
    {
        open();
        site.server().holdBack([](const RawRequest &request) { return request.method == "GET"; });
        store().run(Command::NewIssue);
        await(QAccessible::EditableText, u"Titre du ticket"_s);
        type(u"Imprimante en panne"_s);
        press(Qt::Key_Return, Qt::ControlModifier);
    }
};

TEST_F(EarlyNewIssue, IsCreatedWithItsTypeOnceTheTypesArrive)
{
    await(QAccessible::Animation, u"Création en cours"_s);
    EXPECT_EQ(writes(), QStringList());
    site.server().release();
    EXPECT_TRUE(isGone(QAccessible::EditableText, u"Titre du ticket"_s));
    EXPECT_EQ(writes(), QStringList(u"POST /rest/api/3/issue"_s));
    EXPECT_EQ(site.site().issues().last().summary, u"Imprimante en panne"_s);
}
