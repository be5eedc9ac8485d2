#include "screens/issues/toolbar/Filters.h"

void Filters::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::filtersChanged, this, &Filters::update);
        connect(m_store, &AppStore::issuesChanged, this, &Filters::update);
        connect(m_store, &AppStore::calendarChanged, this, &Filters::update);
        update();
    }
    Q_EMIT storeChanged();
}

FilterSources Filters::sources() const
{
    return {m_store->derivation().menus(), m_store->issues(), m_store->calendar().locale};
}

void Filters::update()
{
    // The menu contents are computed only while a filter is active, because only then are they needed.
    const bool isEmpty = m_store->filters().isEmpty();
    const auto chips = isEmpty ? m_chips : filterChips(m_store->filters(), sources());
    if (m_isEmpty == isEmpty && m_chips == chips)
        return;
    m_isEmpty = isEmpty;
    m_chips = chips;
    Q_EMIT changed();
}

QList<MenuSection> Filters::sections() const
{
    return m_store ? filterSections(m_store->filters(), sources()) : QList<MenuSection>();
}

void Filters::toggle(const QString &section, const QString &choice)
{
    const auto set = filterSetFromId(section);
    if (m_store && set)
        m_store->setFilters(toggledFilter(m_store->filters(), *set, choice, sources()));
}

void Filters::remove(const QString &chip)
{
    const auto set = filterSetFromId(chip);
    if (m_store && set)
        m_store->setFilters(emptiedFilter(m_store->filters(), *set));
}

void Filters::clear()
{
    if (m_store)
        m_store->setFilters({});
}
