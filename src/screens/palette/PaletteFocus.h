#pragma once

#include "screens/palette/CommandPalette.h"

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QQuickWindow>

/// Manages popups, keys and focus around the palette of a window. When the palette opens, it closes the popups above
/// the window's content. While the palette is open, the palette receives every key press before the search field does.
/// When the palette closes, the focus returns to the item that had it or, if that item is gone or hidden, to the
/// nearest surviving ancestor of it.
class PaletteFocus : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(
        CommandPalette *palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL REQUIRED)
    /// The item that has the focus while the palette is open.
    Q_PROPERTY(QQuickItem *field MEMBER m_field NOTIFY fieldChanged FINAL REQUIRED)

public:
    using QObject::QObject;

    CommandPalette *palette() const { return m_palette; }
    void setPalette(CommandPalette *palette);

    bool eventFilter(QObject *watched, QEvent *event) override;
    void classBegin() override {}
    void componentComplete() override { follow(); }

Q_SIGNALS:
    void windowChanged();
    void paletteChanged();
    void fieldChanged();

private:
    void follow();
    void begin();
    void end();
    void notePointer(const QPointF &place);

    QPointer<QQuickWindow> m_window;
    QPointer<CommandPalette> m_palette;
    QPointer<QQuickItem> m_field;
    bool m_isHolding = false;
    /// The last reported position of the pointer since the palette opened.
    std::optional<QPointF> m_pointer;
    /// The item that had the focus, and all its ancestors, innermost first.
    QList<QPointer<QQuickItem>> m_before;
};
