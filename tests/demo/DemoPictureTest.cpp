#include "demo/DemoPicture.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QColor accent = QColor::fromRgbF(0.92F, 0.32F, 0.32F);
/// The same and the background in eight bits per component. QColor::name would round down.
const QString accentName = u"#eb5252"_s;
const QString backgroundName = u"#f5f5f7"_s;

class DemoPictureTest : public testing::Test
{
protected:
    QByteArray contentOf(const QString &name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QImage drawn() const
    {
        DemoPicture::write(m_folder.filePath(u"a.png"_s), accent);
        return QImage(m_folder.filePath(u"a.png"_s));
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(DemoPictureTest, hasItsSizeAndIsOpaque)
{
    const QImage picture = drawn();
    EXPECT_EQ(picture.size(), QSize(1200, 760));
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(1199, 759).alpha(), 255);
}

/// The points are measured from the top left, the shapes from the bottom left.
TEST_F(DemoPictureTest, hasItsShapes)
{
    const QImage picture = drawn();
    const auto at = [&](int x, int y) { return picture.pixelColor(x, y).name(); };
    EXPECT_EQ(at(600, 750), backgroundName);
    EXPECT_EQ(at(600, 30), u"#ffffff"_s);
    EXPECT_EQ(at(35, 33), u"#ff5e57"_s);
    EXPECT_EQ(at(59, 33), u"#ffbd2e"_s);
    EXPECT_EQ(at(83, 33), u"#29c940"_s);
    EXPECT_EQ(at(600, 110), accentName);
    EXPECT_EQ(at(100, 136), u"#ffffff"_s);
    EXPECT_EQ(at(1050, 242), accentName);
    EXPECT_EQ(at(600, 242), u"#ffffff"_s);
}

TEST_F(DemoPictureTest, hasRoundCorners)
{
    const QImage picture = drawn();
    EXPECT_EQ(picture.pixelColor(40, 100), picture.pixelColor(20, 100));
    EXPECT_EQ(picture.pixelColor(54, 100).name(), accentName);
}

TEST_F(DemoPictureTest, titlesOfTheCardsGrowDownwards)
{
    const QImage picture = drawn();
    int y = 760 - 470 - 61;
    for (const int width : {260, 330, 400, 470}) {
        EXPECT_NE(picture.pixelColor(70 + width - 10, y).name(), u"#ffffff"_s) << width;
        EXPECT_EQ(picture.pixelColor(70 + width + 2, y).name(), u"#ffffff"_s) << width;
        y += 120;
    }
}

TEST_F(DemoPictureTest, isTheSameEachTime)
{
    DemoPicture::write(m_folder.filePath(u"a.png"_s), accent);
    DemoPicture::write(m_folder.filePath(u"b.png"_s), accent);
    EXPECT_FALSE(contentOf(u"a.png"_s).isEmpty());
    EXPECT_EQ(contentOf(u"a.png"_s), contentOf(u"b.png"_s));
}

TEST_F(DemoPictureTest, anExistingFileIsKept)
{
    QFile file(m_folder.filePath(u"a.png"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("à moi");
    file.close();
    DemoPicture::write(file.fileName(), accent);
    EXPECT_EQ(contentOf(u"a.png"_s), "à moi");
}

TEST_F(DemoPictureTest, withoutItsFolderThereIsNoFile)
{
    DemoPicture::write(m_folder.filePath(u"rien/a.png"_s), accent);
    EXPECT_FALSE(QFile::exists(m_folder.filePath(u"rien/a.png"_s)));
}
