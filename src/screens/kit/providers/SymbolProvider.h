#pragma once

#include <QQuickImageProvider>

/// Serves `image://symbol/<name>?f=<font size>&w=<weight>&c=<colour>`: a symbol in its square of side 1.15 × font size
/// with a margin of `symbolBorder` around it, at the device pixels that the item requests. The weights are regular,
/// medium, semibold, bold and heavy. An unknown name gives an empty picture and a warning.
class SymbolProvider : public QQuickImageProvider
{
public:
    SymbolProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// The margin around the square of a symbol in its picture, in logical pixels. It leaves space for strokes and for
/// symbols with corrected sizes.
int symbolBorder(int side);
