#include "screens/options/PropertyOptions.h"

using namespace Qt::StringLiterals;

namespace {

PickerKind pickerKind(PropertyOptions::Kind kind)
{
    switch (kind) {
    case PropertyOptions::Status:
        return PickerKind::Status;
    case PropertyOptions::Priority:
        return PickerKind::Priority;
    case PropertyOptions::Assignee:
        return PickerKind::Assignee;
    case PropertyOptions::Labels:
        break;
    }
    return PickerKind::Labels;
}

} // namespace

void PropertyOptions::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::transitionsChanged, &AppStore::projectStatusesChanged,
                                  &AppStore::assignablesChanged, &AppStore::prioritiesChanged})
            connect(m_store, change, this, &OptionSource::itemsChanged);
    }
    Q_EMIT storeChanged();
    Q_EMIT itemsChanged();
}

void PropertyOptions::setKind(Kind kind)
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
    switch (m_kind) {
    case Status:
        return u"Statut…"_s;
    case Priority:
        return u"Priorité…"_s;
    case Assignee:
        return u"Assigner…"_s;
    case Labels:
        break;
    }
    return u"Ajouter des étiquettes…"_s;
}

QList<OptionItem> PropertyOptions::items() const
{
    return m_store ? m_store->options(pickerKind(m_kind), m_keys) : QList<OptionItem>();
}

void PropertyOptions::run(const OptionItem &item)
{
    if (m_store)
        m_store->run(item.run);
}

QString PropertyOptions::createLabel(const QString &candidate) const
{
    return u"Créer l'étiquette « "_s + candidate + u" »"_s;
}

void PropertyOptions::create(const QString &label)
{
    // A copy, because the edits may destroy the object that holds the keys.
    const QStringList keys = m_keys;
    for (const auto &key : keys)
        addLabel(label, key);
}

void PropertyOptions::addLabel(const QString &label, const QString &key)
{
    const auto issue = m_store ? m_store->issue(key) : std::nullopt;
    if (issue && !(*issue)->labels.contains(label))
        m_store->setLabels((*issue)->labels + QStringList{label}, key);
}
