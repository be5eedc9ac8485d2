#include "state/AppStore.h"

void AppStore::toggleGroup(const QString &id)
{
    QSet<QString> groups = *m_collapsedGroups;
    if (!groups.remove(id))
        groups.insert(id);
    m_collapsedGroups.set(groups);
}

void AppStore::moveFocus(int delta, FocusMove move)
{
    setSelection(
        afterMove({*m_focusedKey, *m_checked, *m_inspectorKey}, delta, move, flatVisibleKeys()));
}

void AppStore::setSelection(const Selection &selection)
{
    const Batch batch(*this);
    m_checked.set(selection.checked);
    m_focusedKey.set(selection.focusedKey);
    m_inspectorKey.set(selection.inspectorKey);
}
