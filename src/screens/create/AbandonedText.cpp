#include "screens/create/AbandonedText.h"

void AbandonedText::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store, &AppStore::sessionChanged, this, &AbandonedText::clear);
    Q_EMIT storeChanged();
}

void AbandonedText::keep(const QString &summary, const QString &details)
{
    if (summary.trimmed().isEmpty() && details.trimmed().isEmpty())
        return;
    m_summary = summary;
    m_details = details;
    Q_EMIT changed();
}

void AbandonedText::forget(const QString &summary, const QString &details)
{
    if (m_summary == summary && m_details == details)
        clear();
}

void AbandonedText::clear()
{
    if (isEmpty())
        return;
    m_summary.clear();
    m_details.clear();
    Q_EMIT changed();
}
