#include "screens/kit/overlays/ContextMenuKey.h"

#include <QKeyEvent>

#include <memory>

namespace {

bool asksForMenu(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

} // namespace

ContextMenuKey::ContextMenuKey(QObject *item) : QObject(item)
{
    item->installEventFilter(this);
}

ContextMenuKey *ContextMenuKey::qmlAttachedProperties(QObject *item)
{
    // The item owns the attached object.
    return std::make_unique<ContextMenuKey>(item).release();
}

bool ContextMenuKey::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !asksForMenu(static_cast<const QKeyEvent &>(*event)))
        return false;
    event->accept();
    Q_EMIT pressed();
    return true;
}
