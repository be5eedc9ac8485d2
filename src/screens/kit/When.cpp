#include "screens/kit/When.h"

#include <QQmlInfo>

When::When(QQuickItem *parent) : QQuickItem(parent) {}

When::~When()
{
    drop();
}

void When::setShown(bool shown)
{
    if (m_isShown == shown)
        return;
    m_isShown = shown;
    follow();
    Q_EMIT shownChanged();
}

void When::setContent(QQmlComponent *content)
{
    if (m_content == content)
        return;
    m_content = content;
    Q_EMIT contentChanged();
}

void When::componentComplete()
{
    QQuickItem::componentComplete();
    follow();
}

void When::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        place();
}

void When::follow()
{
    if (!isComponentComplete())
        return;
    if (m_isShown && !m_child)
        make();
    else if (!m_isShown)
        drop();
}

void When::make()
{
    if (!m_content)
        return;
    std::unique_ptr<QObject> made(m_content->beginCreate(m_content->creationContext()));
    m_child = qobject_cast<QQuickItem *>(made.get());
    if (!m_child) {
        qmlWarning(this) << m_content->errorString();
        return;
    }
    // It ends with this one, not when the engine finds no use of it.
    made.release()->setParent(this);
    place();
    m_content->completeCreate();
}

void When::drop()
{
    // Later: what it does may be what drops it.
    if (QQuickItem *child = std::exchange(m_child, nullptr)) {
        child->setParentItem(nullptr);
        child->deleteLater();
    }
}

void When::place()
{
    if (!m_child)
        return;
    m_child->setParentItem(parentItem());
    if (parentItem())
        m_child->stackBefore(this);
}
