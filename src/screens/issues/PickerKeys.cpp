#include "screens/issues/PickerKeys.h"

#include <QKeyEvent>
#include <QQuickItem>

void PickerKeys::setPicker(Picker *picker)
{
    if (m_picker == picker)
        return;
    if (m_picker)
        m_picker->disconnect(this);
    m_picker = picker;
    if (m_picker)
        connect(m_picker, &Picker::isOpenChanged, this, &PickerKeys::followPicker);
    Q_EMIT pickerChanged();
}

void PickerKeys::followPicker()
{
    if (!m_window || !m_field)
        return;
    if (m_picker->isOpen())
        begin();
    else
        end();
}

void PickerKeys::begin()
{
    m_returnTo = m_window->activeFocusItem();
    m_field->forceActiveFocus(Qt::PopupFocusReason);
    // The last filter installed is asked first.
    m_window->installEventFilter(this);
}

void PickerKeys::end()
{
    m_window->removeEventFilter(this);
    if (m_returnTo)
        m_returnTo->forceActiveFocus(Qt::PopupFocusReason);
    m_returnTo = nullptr;
}

bool PickerKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || watched != m_window || !m_picker)
        return false;
    return m_picker->handle(KeyPress::from(static_cast<const QKeyEvent &>(*event)));
}
