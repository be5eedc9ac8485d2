#include "platform/files/linux/PortalFileDialogs.h"

#include "platform/PrivateBus.h"
#include "platform/files/FakeFileChooser.h"
#include "support/RunUntil.h"
#include "support/TaskResult.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Answers every question at once.
class OtherDialogs final : public FileDialogs
{
public:
    QCoro::Task<QList<QUrl>> filesToOpen(QString title, QPointer<QWindow>) override
    {
        asked += title;
        co_return {QUrl::fromLocalFile(u"/autre"_s)};
    }
    QCoro::Task<std::optional<QUrl>> placeToSave(QString, QString name, QPointer<QWindow>) override
    {
        asked += name;
        co_return QUrl::fromLocalFile(u"/autre"_s);
    }
    QStringList asked;
};

class PortalFileDialogsTest : public testing::Test
{
protected:
    PrivateBus bus;
    std::shared_ptr<OtherDialogs> other = std::make_shared<OtherDialogs>();
    PortalFileDialogs dialogs{bus.connection(u"program"_s), other};

    template <typename T>
    static T awaited(const TaskResult<T> &result)
    {
        EXPECT_TRUE(runUntil([&] { return result.isDone(); }));
        return result.value();
    }
    static void awaitQuestion(const FakeFileChooser &portal)
    {
        EXPECT_TRUE(runUntil([&] { return !portal.questions.isEmpty(); }));
    }
};

} // namespace

TEST_F(PortalFileDialogsTest, ThePortalIsAskedForSeveralFiles)
{
    FakeFileChooser portal(bus.connection(u"portal"_s));
    const TaskResult<QList<QUrl>> result(dialogs.filesToOpen(u"Joindre"_s, nullptr));
    awaitQuestion(portal);
    EXPECT_EQ(portal.questions.constFirst().method, u"OpenFile"_s);
    EXPECT_EQ(portal.questions.constFirst().title, u"Joindre"_s);
    EXPECT_TRUE(portal.questions.constFirst().options.value(u"multiple"_s).toBool());
    portal.respond(0, {u"file:///a%20b"_s, u"file:///c"_s});
    EXPECT_EQ(awaited(result),
              QList<QUrl>({QUrl::fromLocalFile(u"/a b"_s), QUrl::fromLocalFile(u"/c"_s)}));
    EXPECT_TRUE(other->asked.isEmpty());
}

TEST_F(PortalFileDialogsTest, ThePlaceToSaveIsAskedForWithTheProposedName)
{
    FakeFileChooser portal(bus.connection(u"portal"_s));
    const TaskResult<std::optional<QUrl>> result(
        dialogs.placeToSave(u"Enregistrer"_s, u"a.png"_s, nullptr));
    awaitQuestion(portal);
    EXPECT_EQ(portal.questions.constFirst().method, u"SaveFile"_s);
    EXPECT_EQ(portal.questions.constFirst().options.value(u"current_name"_s).toString(),
              u"a.png"_s);
    portal.respond(0, {u"file:///x/a.png"_s});
    EXPECT_EQ(awaited(result), QUrl::fromLocalFile(u"/x/a.png"_s));
}

TEST_F(PortalFileDialogsTest, ACancelledDialogGivesNothingAndShowsNoOther)
{
    FakeFileChooser portal(bus.connection(u"portal"_s));
    const TaskResult<QList<QUrl>> files(dialogs.filesToOpen(u"Joindre"_s, nullptr));
    awaitQuestion(portal);
    portal.respond(1);
    EXPECT_TRUE(awaited(files).isEmpty());
    EXPECT_TRUE(other->asked.isEmpty());
}

TEST_F(PortalFileDialogsTest, WithoutAPortalTheOtherDialogIsShown)
{
    const TaskResult<QList<QUrl>> files(dialogs.filesToOpen(u"Joindre"_s, nullptr));
    EXPECT_EQ(awaited(files), QList<QUrl>{QUrl::fromLocalFile(u"/autre"_s)});
    const TaskResult<std::optional<QUrl>> place(
        dialogs.placeToSave(u"Enregistrer"_s, u"a.png"_s, nullptr));
    EXPECT_EQ(awaited(place), QUrl::fromLocalFile(u"/autre"_s));
    EXPECT_EQ(other->asked, QStringList({u"Joindre"_s, u"a.png"_s}));
}

TEST_F(PortalFileDialogsTest, APortalThatCannotShowADialogLeavesItToTheOther)
{
    FakeFileChooser portal(bus.connection(u"portal"_s));
    const TaskResult<QList<QUrl>> files(dialogs.filesToOpen(u"Joindre"_s, nullptr));
    awaitQuestion(portal);
    portal.respond(2);
    EXPECT_EQ(awaited(files), QList<QUrl>{QUrl::fromLocalFile(u"/autre"_s)});
}
