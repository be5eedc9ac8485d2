#include "state/drafts/SentDescriptions.h"

#include <algorithm>

SentDescriptions &SentDescriptions::of(AppStore &store)
{
    auto *known = store.findChild<SentDescriptions *>({}, Qt::FindDirectChildrenOnly);
    return known ? *known : *new SentDescriptions(store);
}

SentDescriptions::SentDescriptions(AppStore &store) : QObject(&store), m_store(store)
{
    connect(&store, &AppStore::writeRefused, this, &SentDescriptions::takeRefusal);
    connect(&store.writes(), &PendingWrites::countChanged, this, &SentDescriptions::takeAnswers);
    connect(&AbandonedTexts::of(store), &AbandonedTexts::sessionEnded, this,
            [this] { m_sent.clear(); });
}

std::optional<ADFNode> SentDescriptions::shown(const QString &key) const
{
    const auto issue = m_store.issue(key);
    return issue ? (*issue)->description : std::nullopt;
}

void SentDescriptions::save(const QString &markdown, const QString &key)
{
    auto place = AbandonedTexts::of(m_store).place(AbandonedTexts::Kind::Description, key);
    const auto before = shown(key);
    const int refusals = m_refusals;
    m_store.setDescription(markdown, key);
    const auto after = shown(key);
    if (before != after)
        m_sent.append({key, markdown, place, before, after});
    else if (m_refusals != refusals)
        place.keep({.body = markdown});
}

/// The store reports which write was refused only by restoring what it had changed.
void SentDescriptions::takeRefusal()
{
    ++m_refusals;
    for (qsizetype i = 0; i < m_sent.size(); ++i) {
        if (!isRefused(m_sent[i], i))
            continue;
        Sent refused = m_sent.takeAt(i);
        // A later edit that is refused too restores what was there before this one.
        for (Sent &later : m_sent) {
            if (later.key == refused.key && later.before == refused.after)
                later.before = refused.before;
        }
        refused.place.keep({.body = refused.markdown});
        return;
    }
}

/// A refusal restores the description from before the edit, or the newest one that the site has returned since then.
bool SentDescriptions::isRefused(const Sent &sent, qsizetype index) const
{
    const auto present = shown(sent.key);
    if (present == sent.before)
        return true;
    const bool isNewest =
        std::ranges::none_of(m_sent.begin() + index + 1, m_sent.end(),
                             [&](const Sent &later) { return later.key == sent.key; });
    return isNewest && present != sent.after;
}

void SentDescriptions::takeAnswers()
{
    if (m_store.writes().count() == 0)
        m_sent.clear();
}
