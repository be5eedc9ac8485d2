#include "app/Spoken.h"

#include <QQuickWindow>

namespace {

void collect(QAccessibleInterface *node, const QPoint &origin, QList<Spoken> &found)
{
    if (!node || node->state().invisible)
        return;
    found.push_back({node->role(), node->text(QAccessible::Name),
                     node->text(QAccessible::Description), node->text(QAccessible::Value),
                     node->state(), node->rect().translated(-origin)});
    for (int i = 0; i < node->childCount(); ++i)
        collect(node->child(i), origin, found);
}

QAccessibleInterface *nodeOf(QAccessibleInterface *node, QAccessible::Role role,
                             const QString &nameContains)
{
    if (!node || node->state().invisible)
        return nullptr;
    if (node->role() == role && node->text(QAccessible::Name).contains(nameContains))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (auto *found = nodeOf(node->child(i), role, nameContains))
            return found;
    }
    return nullptr;
}

} // namespace

QList<Spoken> spokenIn(QQuickWindow &window)
{
    QList<Spoken> found;
    collect(QAccessible::queryAccessibleInterface(&window), window.mapToGlobal(QPoint()), found);
    return found;
}

QList<Spoken> spokenIn(QQuickWindow &window, QAccessible::Role role, const QString &nameContains)
{
    QList<Spoken> found = spokenIn(window);
    found.removeIf([&](const Spoken &thing) {
        return thing.role != role || !thing.name.contains(nameContains);
    });
    return found;
}

bool pressAction(QQuickWindow &window, QAccessible::Role role, const QString &nameContains)
{
    auto *node = nodeOf(QAccessible::queryAccessibleInterface(&window), role, nameContains);
    auto *actions = node ? node->actionInterface() : nullptr;
    const QString press = QAccessibleActionInterface::pressAction();
    const bool isOffered = actions && actions->actionNames().contains(press);
    if (isOffered)
        actions->doAction(press);
    return isOffered;
}
