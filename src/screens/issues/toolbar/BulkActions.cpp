#include "screens/issues/toolbar/BulkActions.h"

using namespace Qt::StringLiterals;

QString selectedWord(int count)
{
    return count < 2 ? u"sélectionné"_s : u"sélectionnés"_s;
}

QString BulkActions::countText() const
{
    return QString::number(m_count) + u' ' + countWord();
}

void BulkActions::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::checkedChanged, this, &BulkActions::update);
        update();
    }
    Q_EMIT storeChanged();
}

void BulkActions::update()
{
    if (m_store->isSelecting())
        m_count = m_store->checkedCount();
    Q_EMIT changed();
}

void BulkActions::clear()
{
    if (m_store)
        m_store->setChecked({});
}
