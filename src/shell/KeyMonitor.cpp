#include "shell/KeyMonitor.h"

#include "commands/CommandTable.h"
#include "commands/KeyPress.h"
#include "commands/KeyRouting.h"

#include <QKeyEvent>
#include <QQuickItem>

void KeyMonitor::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

void KeyMonitor::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    Q_EMIT storeChanged();
}

bool KeyMonitor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || watched != m_window || !m_store)
        return false;
    const KeyPress press = KeyPress::from(static_cast<const QKeyEvent &>(*event));
    const auto command = route(press);
    if (command && !isOffered(*command))
        return false;
    if (m_store->palette() || m_store->isCreating() || isTyping() || isInPopup() ||
        isWalkingAList(press.key) || isPressingAControl(press.key))
        return false;
    return give(press);
}

bool KeyMonitor::give(const KeyPress &press)
{
    const auto command = route(press);
    const bool isStep = command == Command::MoveDown || command == Command::MoveUp;
    const auto before = m_store->focusedKey();
    const bool isTaken = m_store->handleKey(press);
    if (isStep || m_store->focusedKey() != before)
        Q_EMIT walked();
    return isTaken;
}

bool KeyMonitor::isTyping() const
{
    const QQuickItem *item = m_window->activeFocusItem();
    return item && (item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit"));
}

bool KeyMonitor::isInPopup() const
{
    const QQuickItem *item = m_window->activeFocusItem();
    while (item && !item->inherits("QQuickPopupItem"))
        item = item->parentItem();
    return item != nullptr;
}

bool KeyMonitor::isPressingAControl(int key) const
{
    const QQuickItem *item = m_window->activeFocusItem();
    return item && item->property("visualFocus").toBool() &&
           (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space);
}

bool KeyMonitor::isWalkingAList(int key) const
{
    // A list forwards the focus to its current row.
    const QQuickItem *item = m_window->activeFocusItem();
    while (item && !item->property("walksItsRows").toBool())
        item = item->parentItem();
    return item && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Up ||
                    key == Qt::Key_Down);
}
