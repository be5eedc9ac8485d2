#include "screens/options/PropertyOptions.h"

#include "commands/NewLabel.h"
#include "commands/PickerWords.h"

void PropertyOptions::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : AppStore::optionSources)
            connect(m_store, change, this, &OptionSource::itemsChanged);
    }
    Q_EMIT storeChanged();
    Q_EMIT itemsChanged();
}

void PropertyOptions::setKind(PickerKind kind)
{
    if (m_kind == kind)
        return;
    m_kind = kind;
    Q_EMIT kindChanged();
    Q_EMIT itemsChanged();
}

void PropertyOptions::setKeys(const QStringList &keys)
{
    if (m_keys == keys)
        return;
    m_keys = keys;
    Q_EMIT keysChanged();
    Q_EMIT itemsChanged();
}

QString PropertyOptions::placeholder() const
{
    return pickerPlaceholder(m_kind);
}

QList<OptionItem> PropertyOptions::items() const
{
    return m_store ? m_store->options(m_kind, m_keys) : QList<OptionItem>();
}

void PropertyOptions::run(const OptionItem &item)
{
    if (m_store)
        m_store->run(item.run);
}

QString PropertyOptions::createLabel(const QString &candidate) const
{
    return newLabelTitle(candidate);
}

void PropertyOptions::create(const QString &label)
{
    if (m_store)
        m_store->addLabel(label, m_keys);
}
