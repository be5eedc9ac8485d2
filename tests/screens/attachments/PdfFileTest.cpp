#include "platform/ProcessFigures.h"
#include "screens/attachments/preview/PdfWork.h"
#include "support/TaskResult.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

class PdfFileTest : public testing::Test
{
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(u"doc.pdf"_s);

    static PdfFile read(const QString &path)
    {
        const TaskResult file(PdfFile::read(path, &Decoders::shared()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return file.isDone(); }));
        return file.isDone() ? file.value() : PdfFile();
    }
    PdfFile fileOf(const QByteArray &content) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        file.close();
        return read(path);
    }
    /// A PDF with this tree of pages, without the table that says where its objects are.
    static QByteArray pdfWith(const QByteArray &pages)
    {
        return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages" +
               pages +
               ">>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 100]>>endobj\n"
               "trailer<</Root 1 0 R>>\n%%EOF\n";
    }
};

} // namespace

TEST_F(PdfFileTest, HasTheSizesOfItsPages)
{
    const PdfFile file = fileOf(pdfWith("/Count 1/Kids[3 0 R]"));
    EXPECT_EQ(file.problem, u""_s);
    EXPECT_EQ(file.pages, QList<QSizeF>({{200, 100}}));
}

TEST_F(PdfFileTest, ThatClaimsAMillionPagesIsReadAsFarAsTheyAreShown)
{
    const PdfFile file = fileOf(pdfWith("/Count 1000000/Kids[3 0 R]"));
    EXPECT_LE(file.pages.size(), MaximumDecodedPages);
}

TEST_F(PdfFileTest, WhosePagesContainThemselvesEnds)
{
    const PdfFile file = fileOf(pdfWith("/Count 3/Kids[2 0 R 2 0 R 3 0 R]"));
    EXPECT_LE(file.pages.size(), 3);
}

TEST_F(PdfFileTest, ThatIsCutOffOrDamagedAnywhereIsReadOrTold)
{
    const QByteArray whole = pdfWith("/Count 1/Kids[3 0 R]");
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        const PdfFile file = fileOf(whole.first(length));
        EXPECT_NE(file.problem.isEmpty(), file.pages.isEmpty()) << length;
    }
}

TEST_F(PdfFileTest, OfTwoGigabytesIsToldToBeDamagedWithLittleMemory)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(pdfWith("/Count 1/Kids[3 0 R]"));
    // The rest takes no place on the disk.
    ASSERT_TRUE(file.resize(2'000'000'000));
    file.close();
    const auto before = ProcessFigures::residentBytes();
    const PdfFile read = PdfFileTest::read(path);
    EXPECT_EQ(read.problem, u"Ce PDF est endommagé."_s);
    EXPECT_TRUE(read.pages.isEmpty());
    constexpr qint64 little = 64'000'000;
    EXPECT_LT(ProcessFigures::residentBytes().value() - before.value(), little);
    EXPECT_EQ(fileOf(pdfWith("/Count 1/Kids[3 0 R]")).pages.size(), 1) << "the next file is read";
}

TEST_F(PdfFileTest, ThatIsMissingIsToldAndAPipeIsNotWaitedFor)
{
    const QString gone = u"Le fichier n'est plus là."_s;
    EXPECT_EQ(read(path).problem, gone);
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    EXPECT_EQ(read(path).problem, gone);
}
