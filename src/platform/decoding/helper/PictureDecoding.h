#pragma once

#include "platform/decoding/DecodingProtocol.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <memory>

/// A picture or a frame that was read, or why it was not.
struct ReadPicture
{
    DecodingStatus status = DecodingStatus::Unreadable;
    QImage image;
    /// The declared size, as the picture is shown.
    QSize whole;
    bool isAnimated = false;
    /// In milliseconds, as the file says.
    int delay = 0;
};

struct PictureBounds
{
    /// The box that the picture is scaled down to.
    QSize bound;
    /// The maximum number of pixels that it may declare.
    qint64 mostPixels = 0;
};

/// Reads a picture, rotates it according to its orientation tag and scales it down; of an animation the first frame. A
/// drawing (SVG) that is small is drawn larger, because it has no pixels to lose. A truncated picture is unreadable. The
/// declared size is checked before anything is decoded.
ReadPicture decodedPicture(const QByteArray &bytes, const PictureBounds &bounds);

/// Reads a picture frame by frame. SVG is not read. Of a truncated picture that is no animation, what is there.
class FrameReader
{
public:
    /// The bytes must outlive this object.
    FrameReader(const QByteArray &bytes, qint64 mostPixels);

    /// The frame with an index, from 0. Reading them in order is fast; otherwise it begins again.
    ReadPicture frame(int index);

private:
    /// Begins at the first frame.
    void open();
    ReadPicture facts();
    ReadPicture next();

    QByteArray m_bytes;
    QByteArray m_decoder;
    qint64 m_mostPixels;
    QBuffer m_buffer;
    std::unique_ptr<QImageReader> m_reader;
    /// What is known before the first frame; its status is `Done` if there may be one.
    ReadPicture m_facts;
    int m_next = 0;
};
