#pragma once

#include "platform/decoding/Decoders.h"

#include <QCoro/QCoroTask>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>

#include <chrono>
#include <memory>

/// The maximum number of pixels that are decoded, which need 128 MB. A JPEG may have three times as many, because it can
/// be decoded at a fraction of its size.
constexpr qint64 MaximumPixels = qint64(32) * 1024 * 1024;

/// One frame of a picture.
struct PictureFrame
{
    /// The frame, and the same at a half, a quarter and so on, so that it can be drawn small without losing details.
    /// Empty if it cannot be decoded.
    QList<QImage> levels;
    /// How long it is shown before the next one.
    std::chrono::milliseconds delay{0};
    /// The size of the whole picture, as it is shown.
    QSize whole;
    bool isAnimated = false;
    /// Why there is no frame, for the user.
    QString problem;

    bool isNull() const { return levels.isEmpty(); }
};

/// Reads a picture file frame by frame. It is decoded in another process, with a limit on the memory that it needs.
class PictureReader
{
public:
    /// The decoders must outlive this object.
    explicit PictureReader(QString path, Decoders &decoders = Decoders::shared())
        : m_path(std::move(path)), m_decoders(decoders)
    {
    }

    /// The next frame. After the last frame of an animation, the first one again, for which the file is opened anew.
    /// Must not be called again before the task has ended.
    static QCoro::Task<PictureFrame> next(std::shared_ptr<PictureReader> reader);

private:
    const QString m_path;
    Decoders &m_decoders;
    DecodingInput m_input;
    int m_index = 0;
};

/// "Cette image est trop grande pour être affichée (60 000 × 60 000 pixels)."
QString tooLargePictureText(QSize size);
