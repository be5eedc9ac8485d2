#pragma once

#include <QString>

/// What is inside a file, as far as its media type and its name tell. It chooses the symbol of the file and how it is
/// previewed. The content is never examined.
enum class FileKind { Picture, Pdf, Text, Code, Sheet, Audio, Video, Archive, Other };

/// How a file is previewed.
enum class PreviewKind {
    /// Decoded and drawn.
    Picture,
    /// Pages.
    Pdf,
    /// Numbered lines.
    Text,
    /// Only its symbol, name and size.
    Facts
};

/// True for the media types that the site calls pictures, whether or not the program can decode them.
bool isPictureType(const QString &mimeType);

/// The media type decides. If it is absent, or says nothing more than that the file has bytes, the extension decides.
FileKind fileKind(const QString &mimeType, const QString &filename);

/// Only the picture formats that the program decodes are previewed as pictures. SVG is shown as the text that it is,
/// because a picture may refer to other addresses.
PreviewKind previewKind(const QString &mimeType, const QString &filename);

/// The name of the symbol that stands for the file.
QString fileSymbol(const QString &mimeType, const QString &filename);
