#include "screens/attachments/facts/FileKind.h"

#include "screens/kit/painters/SymbolPainter.h"

#include <gtest/gtest.h>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct Sample
{
    QString mimeType;
    QString name;
    FileKind kind;
    PreviewKind preview;
};

void PrintTo(const Sample &sample, std::ostream *out)
{
    *out << sample.mimeType.toStdString() << ' ' << sample.name.toStdString();
}

} // namespace

class KindOfFile : public testing::TestWithParam<Sample>
{
};

INSTANTIATE_TEST_SUITE_P(
    Types, KindOfFile,
    testing::Values(
        Sample{u"image/png"_s, u"a.png"_s, FileKind::Picture, PreviewKind::Picture},
        Sample{u"image/jpeg; q=1"_s, u"a"_s, FileKind::Picture, PreviewKind::Picture},
        Sample{u"image/tiff"_s, u"a.tiff"_s, FileKind::Picture, PreviewKind::Facts},
        Sample{u"image/svg+xml"_s, u"a.svg"_s, FileKind::Code, PreviewKind::Text},
        Sample{u"application/pdf"_s, u"a.pdf"_s, FileKind::Pdf, PreviewKind::Pdf},
        Sample{u"text/plain"_s, u"a.log"_s, FileKind::Text, PreviewKind::Text},
        Sample{u"text/x-log"_s, u"a.log"_s, FileKind::Text, PreviewKind::Text},
        Sample{u"text/csv"_s, u"a.csv"_s, FileKind::Sheet, PreviewKind::Text},
        Sample{u"application/vnd.ms-excel"_s, u"a.xls"_s, FileKind::Sheet, PreviewKind::Facts},
        Sample{u"application/json"_s, u"a.json"_s, FileKind::Code, PreviewKind::Text},
        Sample{u"text/x-c++src"_s, u"a.cpp"_s, FileKind::Code, PreviewKind::Text},
        Sample{u"audio/mpeg"_s, u"a.mp3"_s, FileKind::Audio, PreviewKind::Facts},
        Sample{u"video/mp4"_s, u"a.mp4"_s, FileKind::Video, PreviewKind::Facts},
        Sample{u"application/zip"_s, u"a.zip"_s, FileKind::Archive, PreviewKind::Facts},
        Sample{u"application/octet-stream"_s, u"a.png"_s, FileKind::Picture, PreviewKind::Picture},
        Sample{u""_s, u"folder/trace.log"_s, FileKind::Text, PreviewKind::Text},
        Sample{u""_s, u"facture\u202Egpj.exe"_s, FileKind::Other, PreviewKind::Facts},
        Sample{u"pas un type"_s, u""_s, FileKind::Other, PreviewKind::Facts}));

TEST_P(KindOfFile, FollowsItsTypeAndThenItsName)
{
    const auto &[mimeType, name, kind, preview] = GetParam();
    EXPECT_EQ(int(fileKind(mimeType, name)), int(kind));
    EXPECT_EQ(int(previewKind(mimeType, name)), int(preview));
}

TEST_P(KindOfFile, HasASymbolThatIsDrawn)
{
    const QString symbol = fileSymbol(GetParam().mimeType, GetParam().name);
    EXPECT_TRUE(symbolNames().contains(symbol)) << symbol.toStdString();
}
