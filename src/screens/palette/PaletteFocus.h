#pragma once

#include "screens/palette/CommandPalette.h"

#include <QPointer>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QQuickWindow>

/// Closes what is open over the content of a window when the palette opens there, gives the palette every key press before
/// the search field sees it, and takes the focus back to where
/// it was when the palette closes: to the same item, or, if that is gone or cannot be seen any more, to the nearest that
/// held it.
class PaletteFocus : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL REQUIRED)
    Q_PROPERTY(
        CommandPalette *palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL REQUIRED)
    /// What has the focus while the palette is open.
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
    /// Where the pointer was last told to be since the palette opened.
    std::optional<QPointF> m_pointer;
    /// The item that had the focus and all around it, the innermost first.
    QList<QPointer<QQuickItem>> m_before;
};
