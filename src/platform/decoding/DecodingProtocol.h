#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>
#include <QSizeF>

#include <optional>

/// What the helper process is asked to decode.
enum class DecodingKind : quint8 {
    /// A whole picture that is shown small: for an animation its first frame.
    Picture = 1,
    /// A frame of a picture in its own size. A picture that is no animation has one frame.
    Frame,
    /// The sizes of the pages of a PDF.
    Pages,
    /// A page of a PDF.
    Page
};

enum class DecodingStatus : quint8 {
    Done,
    /// There is no frame with this index.
    End,
    /// The file is damaged or of a format that is not decoded, or the helper failed.
    Unreadable,
    /// The picture declares more pixels than may be decoded.
    TooLarge,
    /// The PDF requires a password.
    Protected
};

/// The maximum number of pages of a PDF whose sizes are told.
constexpr int MaximumDecodedPages = 1000;
/// The maximum length of a side of what is decoded, in pixels.
constexpr int MaximumDecodedSide = 65535;

/// What is sent to the helper, with two open files: one to read from and one for the result.
struct DecodingRequest
{
    DecodingKind kind = DecodingKind::Picture;
    /// Requests with the same number have the same file, so that the helper need not begin again.
    quint64 source = 0;
    qint64 inputBytes = 0;
    /// The number of the frame or page, from 0.
    int index = 0;
    /// For a picture the box that it is scaled down to, for a page its size, in pixels. Unused otherwise.
    QSize bound;
    /// The maximum number of pixels that a picture may declare. A JPEG frame may declare three times as many, because it
    /// can be decoded at a fraction of its size. At most the square of `MaximumDecodedSide`.
    qint64 mostPixels = 0;

    bool operator==(const DecodingRequest &) const = default;
};

/// What the helper answers. The pixels or the sizes of pages are in the file for the result.
struct DecodingAnswer
{
    DecodingStatus status = DecodingStatus::Unreadable;
    /// The helper ends after this answer.
    bool isLast = false;
    bool isAnimated = false;
    bool hasAlpha = false;
    /// The size of the result, which has four bytes for each pixel and no gaps between its lines.
    QSize pixels;
    /// The declared size of the picture.
    QSize whole;
    /// How long the frame is shown, in milliseconds.
    int delay = 0;
    /// The number of pages in the file, 0 if it is not known.
    int pageCount = 0;

    bool operator==(const DecodingAnswer &) const = default;
};

/// The lengths of encoded requests and answers, in bytes.
constexpr qsizetype RequestBytes = 48;
constexpr qsizetype AnswerBytes = 36;

QByteArray encoded(const DecodingRequest &request);
QByteArray encoded(const DecodingAnswer &answer);

/// The request in these bytes. None if they are not one of this version of the protocol, or if it asks for nothing that
/// could be given.
std::optional<DecodingRequest> requestIn(const QByteArray &bytes);
/// The answer in these bytes. None if they are not one of this version of the protocol, or if it does not fit the
/// request: a helper that a malicious picture has taken over may answer anything.
std::optional<DecodingAnswer> answerIn(const QByteArray &bytes, const DecodingRequest &request);

/// The size of the file for the result, in bytes.
qint64 outputBytesOf(const DecodingRequest &request);
/// The sizes of pages as bytes of the result, and back. A size that is not possible is read as an empty one.
QByteArray encodedPages(const QList<QSizeF> &pages);
QList<QSizeF> pagesIn(const QByteArray &bytes);
