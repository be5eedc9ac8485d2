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
    setSelection(afterMove(selection(), delta, move, visiblePath()));
}

void AppStore::handleClick(const QString &key, int modifiers)
{
    const auto kind = clickKind(Qt::KeyboardModifiers(modifiers));
    setSelection(afterClick(selection(), key, kind, visiblePath()));
}

void AppStore::toggleCheck(const QString &key)
{
    setSelection(afterToggleCheck(selection(), key));
}

void AppStore::openInInspector(const QString &key)
{
    // Both are copies, because the key may refer to a field that changes.
    Selection opened = selection();
    opened.focusedKey = key;
    opened.inspectorKey = key;
    setSelection(opened);
}

void AppStore::togglePeek()
{
    setSelection(afterTogglePeek(selection(), visiblePath()));
}

void AppStore::setShowInspector(bool shown)
{
    setSelection(shown ? withInspectorShown(selection()) : withInspectorHidden(selection()));
}

QStringList AppStore::actionTargets() const
{
    return ::actionTargets(selection());
}

QStringList AppStore::contextKeys(const QString &key) const
{
    return ::contextKeys(selection(), key);
}

void AppStore::newIssue(const std::optional<QString> &projectKey)
{
    if (*m_phase != Phase::Ready)
        return;
    const Batch batch(*this);
    const auto *project = m_scope->asProject();
    m_createProjectKey.set(projectKey || !project ? projectKey : std::optional(project->key));
    m_isCreating.set(true);
}

Selection AppStore::selection() const
{
    return {*m_focusedKey, *m_checked, *m_inspectorKey};
}

void AppStore::setSelection(const Selection &selection)
{
    const Batch batch(*this);
    m_checked.set(selection.checked);
    m_focusedKey.set(selection.focusedKey);
    m_inspectorKey.set(selection.inspectorKey);
}
