#include "screens/composer/MentionOptions.h"

#include <algorithm>
#include <utility>

void MentionOptions::setComposition(Composition *composition)
{
    if (m_composition == composition)
        return;
    if (m_composition)
        m_composition->disconnect(this);
    m_composition = composition;
    if (m_composition)
        connect(m_composition, &Composition::changed, this, &MentionOptions::update);
    Q_EMIT compositionChanged();
    update();
}

void MentionOptions::update()
{
    const auto users = m_composition ? m_composition->suggestions() : QList<JiraUser>();
    if (users.isEmpty())
        return;
    QList<OptionItem> items;
    for (const JiraUser &user : users)
        items.append({.id = user.id,
                      .title = user.name,
                      .subtitle = user.email,
                      .icon = {OptionIcon::User{user}}});
    m_isUpdating = true;
    if (std::exchange(m_items, items) != items)
        Q_EMIT itemsChanged();
    Q_EMIT highlightMoved(m_composition->highlighted());
    m_isUpdating = false;
}

void MentionOptions::run(const OptionItem &item)
{
    const auto users = m_composition ? m_composition->suggestions() : QList<JiraUser>();
    const auto user = std::ranges::find(users, item.id, &JiraUser::id);
    if (user != users.end())
        m_composition->pick(int(user - users.begin()));
}
