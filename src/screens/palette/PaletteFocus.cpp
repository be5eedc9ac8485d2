#include "screens/palette/PaletteFocus.h"

#include "screens/kit/overlays/OpenPopups.h"

#include <QKeyEvent>

#include <algorithm>

void PaletteFocus::setPalette(CommandPalette *palette)
{
    if (m_palette == palette)
        return;
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette) {
        connect(m_palette, &CommandPalette::isOpenChanged, this, &PaletteFocus::follow);
        connect(m_palette, &CommandPalette::modeChanged, this, &PaletteFocus::follow);
    }
    Q_EMIT paletteChanged();
}

void PaletteFocus::follow()
{
    if (!m_window || !m_field || !m_palette)
        return;
    if (m_palette->isOpen())
        begin();
    else if (m_isHolding)
        end();
}

void PaletteFocus::begin()
{
    if (!std::exchange(m_isHolding, true)) {
        // These would otherwise appear above the palette.
        OpenPopups::close(*m_window);
        m_before.clear();
        m_pointer.reset();
        for (QQuickItem *item = m_window->activeFocusItem(); item; item = item->parentItem())
            m_before.append(item);
        // Qt asks the event filter that was installed last first.
        m_window->installEventFilter(this);
    }
    m_field->forceActiveFocus(Qt::PopupFocusReason);
}

void PaletteFocus::end()
{
    m_isHolding = false;
    m_window->removeEventFilter(this);
    // The action of the palette may have removed the former focus item from the window before it is destroyed. In that
    // case the surrounding focus scope gives the focus to the item that replaces it.
    const auto left = std::ranges::find_if(m_before, [&](const QPointer<QQuickItem> &item) {
        return item && item->window() == m_window && item->isVisible() && item->isEnabled() &&
               (item == m_before.constFirst() || item->isFocusScope());
    });
    if (left != m_before.end())
        (*left)->forceActiveFocus(Qt::PopupFocusReason);
    // From now on the palette receives no more key presses.
    if (m_field->hasActiveFocus())
        m_field->setFocus(false);
    m_before.clear();
}

bool PaletteFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window || !m_palette)
        return false;
    if (event->type() == QEvent::MouseMove)
        notePointer(static_cast<const QMouseEvent &>(*event).globalPosition());
    if (event->type() == QEvent::Wheel)
        m_palette->noteScrolled();
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto press = KeyPress::from(static_cast<const QKeyEvent &>(*event));
    // Items below the palette cannot be reached by the pointer.
    if (m_palette->isOpen() && (press.key == Qt::Key_Tab || press.key == Qt::Key_Backtab))
        return true;
    return m_palette->handle(press);
}

void PaletteFocus::notePointer(const QPointF &place)
{
    // Some systems also report a resting pointer when a window appears below it.
    const bool wasKnown = m_pointer.has_value();
    if (std::exchange(m_pointer, place) != place && wasKnown)
        m_palette->notePointerMoved();
}
