#include "jira/MultipartForm.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(MultipartForm, HoldsTheFilesByteForByte)
{
    const QByteArray content("a\0\r\n--b", 8);
    EXPECT_EQ(MultipartForm::body({{u"une image.PNG"_s, content}, {u"vide"_s, {}}}, "B"),
              "--B\r\n"
              "Content-Disposition: form-data; name=\"file\"; filename=\"une image.PNG\"\r\n"
              "Content-Type: image/png\r\n\r\n" +
                  content +
                  "\r\n"
                  "--B\r\n"
                  "Content-Disposition: form-data; name=\"file\"; filename=\"vide\"\r\n"
                  "Content-Type: application/octet-stream\r\n\r\n"
                  "\r\n"
                  "--B--\r\n");
}

TEST(MultipartForm, ADoubleQuoteInANameGoesOutAsASingleOne)
{
    const QByteArray body = MultipartForm::body({{u"l'\"été\" à 20 %.txt"_s, {}}}, "B");
    EXPECT_TRUE(body.contains("filename=\"l''été' à 20 %.txt\"\r\n"));
}

TEST(MultipartForm, ALineBreakInANameEndsNoLine)
{
    const QByteArray body = MultipartForm::body({{u"a\r\nX-Header: b.txt"_s, {}}}, "B");
    EXPECT_TRUE(body.contains("filename=\"a  X-Header: b.txt\"\r\n"));
}

TEST(MultipartForm, AnEndingTellsTheMediaType)
{
    EXPECT_EQ(MultipartForm::mediaType(u"a.pdf"_s), "application/pdf");
    EXPECT_EQ(MultipartForm::mediaType(u"a.tar.GZ"_s), "application/x-compressed-tar");
}

TEST(MultipartForm, WithoutAKnownEndingAFileIsBytes)
{
    for (const QString &name : {u"Makefile"_s, u"a.nosuchending"_s, u"point."_s, QString()})
        EXPECT_EQ(MultipartForm::mediaType(name), "application/octet-stream") << name.toStdString();
}

TEST(MultipartForm, EachBoundaryIsNew)
{
    static const QRegularExpression form(
        u"^Velmora-[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"_s);
    QSet<QByteArray> seen;
    for (int i = 0; i < 100; ++i) {
        const QByteArray boundary = MultipartForm::newBoundary();
        EXPECT_TRUE(form.match(QString::fromLatin1(boundary)).hasMatch()) << boundary.toStdString();
        seen.insert(boundary);
    }
    EXPECT_EQ(seen.size(), 100);
}

} // namespace
