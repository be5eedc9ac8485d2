#include "platform/decoding/helper/PdfReader.h"

#include <gtest/gtest.h>

namespace {

/// A PDF with this tree of pages, without the table that says where its objects are.
QByteArray pdfWith(const QByteArray &pages)
{
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n2 0 obj<</Type/Pages" + pages +
           ">>endobj\n3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 100]>>endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}

} // namespace

TEST(PdfReader, HasTheSizesOfItsPages)
{
    const QByteArray bytes = pdfWith("/Count 1/Kids[3 0 R]");
    PdfReader reader(bytes);
    EXPECT_EQ(reader.status(), DecodingStatus::Done);
    EXPECT_EQ(reader.pages(), QList<QSizeF>({{200, 100}}));
    EXPECT_EQ(reader.page(0, {40, 20}).size(), QSize(40, 20));
    EXPECT_TRUE(reader.page(1, {40, 20}).isNull());
}

TEST(PdfReader, ThatClaimsAMillionPagesTellsTheFirstThousand)
{
    const QByteArray bytes = pdfWith("/Count 1000000/Kids[3 0 R]");
    EXPECT_LE(PdfReader(bytes).pages().size(), MaximumDecodedPages);
}

TEST(PdfReader, WhosePagesContainThemselvesEnds)
{
    const QByteArray bytes = pdfWith("/Count 3/Kids[2 0 R 2 0 R 3 0 R]");
    EXPECT_LE(PdfReader(bytes).pages().size(), 3);
}

TEST(PdfReader, ThatIsCutOffAnywhereHasPagesOrNone)
{
    const QByteArray whole = pdfWith("/Count 1/Kids[3 0 R]");
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        const QByteArray bytes = whole.first(length);
        const PdfReader reader(bytes);
        EXPECT_EQ(reader.status() == DecodingStatus::Done, !reader.pages().isEmpty()) << length;
    }
}
