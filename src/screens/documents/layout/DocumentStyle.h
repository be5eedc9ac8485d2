#pragma once

#include "screens/documents/content/DocumentBlocks.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The colours and fonts that all documents share. QML binds the colours to the theme, once for the whole program.
class DocumentStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The primary and the secondary colour of texts.
    Q_PROPERTY(QColor primary MEMBER primary NOTIFY changed FINAL)
    Q_PROPERTY(QColor secondary MEMBER secondary NOTIFY changed FINAL)
    /// The accent for fills, and the one in which text can be read.
    Q_PROPERTY(QColor accent MEMBER accent NOTIFY changed FINAL)
    Q_PROPERTY(QColor accentText MEMBER accentText NOTIFY changed FINAL)
    /// The colours of panels.
    Q_PROPERTY(QColor blue MEMBER blue NOTIFY changed FINAL)
    Q_PROPERTY(QColor orange MEMBER orange NOTIFY changed FINAL)
    Q_PROPERTY(QColor red MEMBER red NOTIFY changed FINAL)
    Q_PROPERTY(QColor green MEMBER green NOTIFY changed FINAL)
    Q_PROPERTY(QColor purple MEMBER purple NOTIFY changed FINAL)
    Q_PROPERTY(QColor divider MEMBER divider NOTIFY changed FINAL)
    Q_PROPERTY(QColor selection MEMBER selection NOTIFY changed FINAL)
    Q_PROPERTY(QColor focusRing MEMBER focusRing NOTIFY changed FINAL)
    Q_PROPERTY(QColor scrollThumb MEMBER scrollThumb NOTIFY changed FINAL)
    /// The factor of all font sizes. Values outside 0.5 to 4 count as the nearest of the two.
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY fontsChanged FINAL)

public:
    using QObject::QObject;

    double textScale() const { return m_textScale; }
    void setTextScale(double scale);

    /// The primary colour at an opacity, 0 to 1.
    QColor ink(double opacity) const;
    QColor panel(PanelColor color) const;
    QColor textColor(const TextBlock &text, const InlineRun &run) const;

    /// The font of a text without marks. `bodySize` is that of paragraphs, in logical pixels.
    QFont font(TextBlock::Role role, double bodySize) const;
    QFont font(TextBlock::Role role, double bodySize, const InlineRun &run) const;
    /// The font of the markers of lists, whose digits have the same width.
    QFont markerFont(TextBlock::Role role, double bodySize) const;

    QColor primary;
    QColor secondary;
    QColor accent;
    QColor accentText;
    QColor blue;
    QColor orange;
    QColor red;
    QColor green;
    QColor purple;
    QColor divider;
    QColor selection;
    QColor focusRing;
    QColor scrollThumb;

Q_SIGNALS:
    void changed();
    void fontsChanged();

private:
    QFont scaled(QFont font) const;

    double m_textScale = 1;
};
