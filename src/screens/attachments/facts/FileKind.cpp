#include "screens/attachments/facts/FileKind.h"

#include <QMimeDatabase>
#include <QMimeType>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The formats that the decoder accepts.
constexpr std::array DecodedPictures{"image/png"_L1, "image/jpeg"_L1, "image/jpg"_L1,
                                     "image/gif"_L1, "image/webp"_L1};

constexpr std::array Sheets{"text/csv"_L1, "text/tab-separated-values"_L1,
                            "application/vnd.ms-excel"_L1,
                            "application/vnd.oasis.opendocument.spreadsheet"_L1,
                            "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"_L1};

constexpr std::array Archives{"application/zip"_L1,
                              "application/gzip"_L1,
                              "application/x-gzip"_L1,
                              "application/x-tar"_L1,
                              "application/x-compressed-tar"_L1,
                              "application/x-7z-compressed"_L1,
                              "application/x-xz"_L1,
                              "application/x-bzip2"_L1,
                              "application/vnd.rar"_L1,
                              "application/x-rar-compressed"_L1,
                              "application/java-archive"_L1};

/// Texts that are read by programs, besides those whose type is derived from a program's.
constexpr std::array Codes{"application/json"_L1, "application/xml"_L1,    "text/html"_L1,
                           "text/css"_L1,         "text/xml"_L1,           "image/svg+xml"_L1,
                           "application/sql"_L1,  "application/x-yaml"_L1, "text/javascript"_L1};

template <typename Types>
bool isAmong(const Types &types, const QMimeType &type)
{
    return std::ranges::any_of(types, [&](QLatin1StringView name) { return type.inherits(name); });
}

/// The media type without its parameters; the type of the extension if it says nothing.
QMimeType typeOf(const QString &mimeType, const QString &filename)
{
    const QMimeDatabase database;
    const QString name = mimeType.section(u';', 0, 0).trimmed().toLower();
    const QMimeType told = database.mimeTypeForName(name);
    if (told.isValid() && !told.isDefault())
        return told;
    // A name with a slash is not a path here.
    const QString inFolder = u"x/"_s + filename.section(u'/', -1);
    return database.mimeTypeForFile(inFolder, QMimeDatabase::MatchExtension);
}

bool isProgramText(const QMimeType &type)
{
    return type.name().startsWith("text/x-"_L1) || type.inherits(u"application/x-executable"_s) ||
           type.inherits(u"application/ecmascript"_s) || isAmong(Codes, type);
}

FileKind kindOf(const QMimeType &type)
{
    if (isAmong(DecodedPictures, type))
        return FileKind::Picture;
    if (type.inherits(u"application/pdf"_s))
        return FileKind::Pdf;
    if (isAmong(Sheets, type))
        return FileKind::Sheet;
    if (isAmong(Archives, type))
        return FileKind::Archive;
    if (type.inherits(u"text/plain"_s) || isAmong(Codes, type))
        return isProgramText(type) && type.name() != "text/x-log"_L1 ? FileKind::Code
                                                                     : FileKind::Text;
    if (type.name().startsWith("image/"_L1))
        return FileKind::Picture;
    if (type.name().startsWith("audio/"_L1))
        return FileKind::Audio;
    return type.name().startsWith("video/"_L1) ? FileKind::Video : FileKind::Other;
}

} // namespace

bool isPictureType(const QString &mimeType)
{
    return mimeType.startsWith("image/"_L1);
}

FileKind fileKind(const QString &mimeType, const QString &filename)
{
    return kindOf(typeOf(mimeType, filename));
}

PreviewKind previewKind(const QString &mimeType, const QString &filename)
{
    const QMimeType type = typeOf(mimeType, filename);
    if (isAmong(DecodedPictures, type))
        return PreviewKind::Picture;
    switch (kindOf(type)) {
    case FileKind::Pdf:
        return PreviewKind::Pdf;
    case FileKind::Text:
    case FileKind::Code:
        return PreviewKind::Text;
    case FileKind::Sheet:
        return type.inherits(u"text/plain"_s) ? PreviewKind::Text : PreviewKind::Facts;
    default:
        return PreviewKind::Facts;
    }
}

QString fileSymbol(const QString &mimeType, const QString &filename)
{
    switch (fileKind(mimeType, filename)) {
    case FileKind::Picture:
        return u"photo"_s;
    case FileKind::Pdf:
        return u"file.pdf"_s;
    case FileKind::Text:
        return u"file.text"_s;
    case FileKind::Code:
        return u"file.code"_s;
    case FileKind::Sheet:
        return u"file.sheet"_s;
    case FileKind::Audio:
        return u"file.audio"_s;
    case FileKind::Video:
        return u"file.video"_s;
    case FileKind::Archive:
        return u"file.zip"_s;
    case FileKind::Other:
        break;
    }
    return u"file"_s;
}
