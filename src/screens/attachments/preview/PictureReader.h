#pragma once

#include <QImage>
#include <QImageReader>
#include <QList>
#include <QSize>
#include <QString>

#include <chrono>
#include <memory>

/// The maximum number of pixels that are decoded, which need 128 MB.
constexpr qint64 MaximumPixels = qint64(32) * 1024 * 1024;
/// The maximum for a JPEG, which can be decoded at a fraction of its size.
constexpr qint64 MaximumJpegPixels = qint64(96) * 1024 * 1024;

/// One frame of a picture.
struct PictureFrame
{
    /// The frame, and the same at a half, a quarter and so on, so that it can be drawn small without losing details.
    /// Empty after the last frame, or if it cannot be decoded.
    QList<QImage> levels;
    /// How long it is shown before the next one.
    std::chrono::milliseconds delay{0};

    bool isNull() const { return levels.isEmpty(); }
};

/// Decodes a picture file frame by frame, with a limit on the memory that it needs. It may be used from any thread, but
/// from one at a time.
class PictureReader
{
public:
    explicit PictureReader(QString path);

    /// Why the picture cannot be shown, for the user; empty if it can. The declared size is checked before anything is
    /// decoded.
    QString problem();
    /// The size of the whole picture, as it is shown.
    QSize size() const { return m_size; }
    bool isAnimated() const { return m_isAnimated; }
    /// The next frame. After the last frame of an animation, the first one again.
    PictureFrame next();

private:
    void open();
    PictureFrame read();

    QString m_path;
    std::unique_ptr<QImageReader> m_reader;
    QSize m_size;
    bool m_isAnimated = false;
};

/// "Cette image est trop grande pour être affichée (60 000 × 60 000 pixels)."
QString tooLargePictureText(QSize size);
