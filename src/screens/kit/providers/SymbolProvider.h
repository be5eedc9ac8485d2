#pragma once

#include <QQuickImageProvider>

/// Serves `image://symbol/<name>?f=<font size>&w=<weight>&c=<colour>`: a symbol in its square of side 1.15 × font size
/// and a border of `symbolBorder` round it, at the device pixels that the item asks for. Weights: regular, medium,
/// semibold, bold, heavy. An unknown name gives an empty picture and a warning.
class SymbolProvider : public QQuickImageProvider
{
public:
    SymbolProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

/// What a picture of a symbol has round the symbol's square, in logical pixels: room for strokes and corrected sizes.
int symbolBorder(int side);
