#include "screens/attachments/AttachmentStage.h"
#include "screens/theme/IdentityPalette.h"

#include <QTest>

#include <list>

using namespace Qt::StringLiterals;

namespace {

const QUrl NewFile = QUrl::fromLocalFile(u"/tmp/neuf.log"_s);
const auto Cancel = u"Annuler l'envoi de neuf.log"_s;
const auto UploadName = u"Envoi de neuf.log"_s;

class UploadTilesTest : public AttachmentStage
{
protected:
    /// Two files, before which uploads stand in the same row of three tiles.
    void openTwo()
    {
        open({cached(u"a"_s, u"a.txt"_s, u"text/plain"_s, "a"),
              cached(u"b"_s, u"b.txt"_s, u"text/plain"_s, "b")});
    }
    /// Uploads so many files to the issue on screen, whose tiles then exist.
    void startUpload(int files = 1)
    {
        m_uploads.emplace_back(store->uploadAttachments(u"WEB-1"_s, QList<QUrl>(files, NewFile)));
        ASSERT_TRUE(awaits(QAccessible::ListItem, UploadName));
    }
    QString focusedButton()
    {
        for (const Spoken &button : spokenIn(window(), QAccessible::Button)) {
            if (button.state.focused)
                return button.name;
        }
        return {};
    }
    Spoken tile(const QString &name)
    {
        return spokenIn(window(), QAccessible::ListItem, name).value(0);
    }
    /// The width of what is drawn in the accent colour in the lower part of the tile of the upload.
    int barWidth()
    {
        const QImage picture = window().grabWindow();
        const QRect box = tile(UploadName).box;
        const QColor accent = IdentityPalette().accent(Model::AccentChoice::Indigo);
        int widest = 0;
        for (int y = box.bottom() - 30; y < box.bottom() - 10; ++y) {
            int width = 0;
            for (int x = box.left(); x < box.right(); ++x)
                width += picture.pixelColor(x, y) == accent ? 1 : 0;
            widest = std::max(widest, width);
        }
        return widest;
    }

private:
    std::list<TaskResult<QList<Attachment>>> m_uploads;
};

} // namespace

TEST_F(UploadTilesTest, TellHowMuchWasSentInStepsOfTen)
{
    open({});
    startUpload();
    EXPECT_EQ(tile(UploadName).description, u""_s);
    EXPECT_EQ(barWidth(), 0);
    service->uploadObservers[0]({44, 100});
    EXPECT_EQ(tile(UploadName).description, u"Envoyé à 40\u00A0%"_s);
    EXPECT_NEAR(barWidth(), 44, 3) << "of a bar of 101";
    service->uploadObservers[0]({100, 100});
    clock.advance(Uploads::Pace);
    EXPECT_EQ(tile(UploadName).description, u"Envoyé à 100\u00A0%"_s);
    EXPECT_NEAR(barWidth(), 101, 3);
}

TEST_F(UploadTilesTest, TabReachesTheButtonThatCancels)
{
    openTwo();
    startUpload();
    goToTiles();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedButton(), Cancel);
    EXPECT_EQ(focusedTile(), u""_s);
    press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(focusedTile(), UploadName);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_TRUE(service->uploadAttachmentsCalls[0].wasStopped());
    EXPECT_TRUE(awaitsNo(QAccessible::ListItem, UploadName));
    EXPECT_TRUE(store->toasts().isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return focusedTile() == u"b.txt"_s; }));
}

TEST_F(UploadTilesTest, TheArrowKeysGoFromTheButtonBackToTheTiles)
{
    openTwo();
    startUpload();
    goToTiles();
    press(Qt::Key_Tab);
    ASSERT_EQ(focusedButton(), Cancel);
    press(Qt::Key_Left);
    EXPECT_EQ(focusedTile(), u"b.txt"_s);
    EXPECT_EQ(focusedButton(), u""_s);
    EXPECT_EQ(revealed(), tile(u"b.txt"_s).box);
}

TEST_F(UploadTilesTest, TheTileWhoseButtonIsReachedAsksToBeSeen)
{
    openTwo();
    startUpload();
    goToTiles();
    press(Qt::Key_Tab);
    EXPECT_EQ(revealed(), tile(UploadName).box);
}

TEST_F(UploadTilesTest, OneClickCancelsAllFilesOfAnUploadAndNoOthers)
{
    open({});
    startUpload(2);
    startUpload();
    EXPECT_EQ(namesOf(QAccessible::ListItem).size(), 3);
    window().grabWindow();
    const auto buttons =
        spokenIn(window(), QAccessible::Button, u"Annuler l'envoi des 2 fichiers"_s);
    ASSERT_EQ(buttons.size(), 2);
    QTest::mouseClick(&window(), Qt::LeftButton, {}, buttons[1].box.center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return namesOf(QAccessible::ListItem).size() == 1; }));
    EXPECT_TRUE(service->uploadAttachmentsCalls[0].wasStopped());
    EXPECT_FALSE(service->uploadAttachmentsCalls[1].wasStopped());
}

TEST_F(UploadTilesTest, DeleteCancelsTheUploadOfTheTile)
{
    openTwo();
    startUpload();
    goToTiles();
    press(Qt::Key_End);
    press(Qt::Key_Delete);
    EXPECT_TRUE(service->uploadAttachmentsCalls[0].wasStopped());
    EXPECT_TRUE(spokenIn(window(), QAccessible::Heading, u"Supprimer"_s).isEmpty());
}

TEST_F(UploadTilesTest, AfterTheOnlyUploadIsCancelledTheKeysStayInTheSection)
{
    open({});
    startUpload();
    goToTiles();
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    ASSERT_TRUE(awaitsNo(QAccessible::ListItem, UploadName));
    press(Qt::Key_Tab);
    EXPECT_EQ(focusedButton(), u"Joindre"_s);
}
