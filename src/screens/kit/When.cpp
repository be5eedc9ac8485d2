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
    // Owned by this item, so that it is destroyed with it and not when the engine collects garbage.
    made.release()->setParent(this);
    place();
    m_content->completeCreate();
}

void When::drop()
{
    // Deleted later, because the child's own code may be what hides it.
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
