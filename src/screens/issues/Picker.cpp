#include "screens/issues/Picker.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString pickerPlaceholder(PickerKind kind)
{
    switch (kind) {
    case PickerKind::Status:
        return u"Statut…"_s;
    case PickerKind::Priority:
        return u"Priorité…"_s;
    case PickerKind::Assignee:
        return u"Assigner…"_s;
    case PickerKind::Labels:
        return u"Ajouter des étiquettes…"_s;
    }
    return {};
}

QString pickerTitle(PickerKind kind)
{
    switch (kind) {
    case PickerKind::Status:
        return u"Changer le statut"_s;
    case PickerKind::Priority:
        return u"Changer la priorité"_s;
    case PickerKind::Assignee:
        return u"Assigner"_s;
    case PickerKind::Labels:
        return u"Étiquettes"_s;
    }
    return {};
}

QStringList pickerCaps(const QStringList &keys)
{
    constexpr qsizetype most = 3;
    QStringList caps = keys.first(std::min(most, keys.size()));
    if (keys.size() > most)
        caps += u'+' + QString::number(keys.size() - most);
    return caps;
}

void Picker::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connect(m_store, &AppStore::paletteChanged, this, &Picker::followPalette);
        for (const auto change : {&AppStore::issuesChanged, &AppStore::detailsChanged,
                                  &AppStore::transitionsChanged, &AppStore::projectStatusesChanged,
                                  &AppStore::assignablesChanged, &AppStore::prioritiesChanged})
            connect(m_store, change, this, &Picker::refresh);
        followPalette();
    }
    Q_EMIT storeChanged();
}

void Picker::followPalette()
{
    const auto *picker = m_store->palette() ? m_store->palette()->asPicker() : nullptr;
    if (picker) {
        m_asked = *picker;
        Q_EMIT pickerChanged();
        setQuery({});
        setHighlighted(0);
        refresh();
    }
    const bool isOpen = picker != nullptr;
    if (std::exchange(m_isOpen, isOpen) != isOpen)
        Q_EMIT isOpenChanged();
}

void Picker::refresh()
{
    const bool isAskedFor = m_store && m_store->palette() && m_store->palette()->asPicker();
    if (!isAskedFor)
        return;
    const auto options = m_store->options(m_asked.kind, m_asked.keys);
    auto rows = pickerRows(options, m_query);
    m_newLabel = m_asked.kind == PickerKind::Labels ? newLabel(options, m_query) : std::nullopt;
    if (m_newLabel)
        rows.append(newLabelRow(*m_newLabel));
    m_rows.update(rows);
    Q_EMIT updated();
}

void Picker::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    setHighlighted(0);
    refresh();
}

void Picker::setHighlighted(int row)
{
    if (std::exchange(m_highlighted, row) != row)
        Q_EMIT highlightedChanged();
}

void Picker::activate(int row)
{
    if (!m_isOpen || row < 0 || row >= m_rows.rowCount())
        return;
    if (m_newLabel && row == m_rows.rowCount() - 1)
        return createLabel();
    // A copy: carrying it out changes the rows.
    const OptionItem option = m_rows.rows()[row].option;
    m_store->run(option.run);
    if (!option.keepsOpen)
        close();
}

void Picker::createLabel()
{
    const QString label = *m_newLabel;
    const QStringList keys = m_asked.keys;
    for (const auto &key : keys) {
        const auto issue = m_store->issue(key);
        if (issue && !(*issue)->labels.contains(label))
            m_store->setLabels((*issue)->labels + QStringList{label}, key);
    }
    setQuery({});
}

void Picker::close()
{
    if (m_isOpen)
        m_store->closePalette();
}

bool Picker::handle(const KeyPress &press)
{
    switch (press.key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activate(m_highlighted);
        return true;
    case Qt::Key_Down:
        moveHighlight(1);
        return true;
    case Qt::Key_Up:
        moveHighlight(-1);
        return true;
    case Qt::Key_Escape:
        leave();
        return true;
    default:
        return activateDigit(press);
    }
}

void Picker::moveHighlight(int delta)
{
    setHighlighted(std::clamp(m_highlighted + delta, 0, std::max(m_rows.rowCount() - 1, 0)));
}

void Picker::leave()
{
    if (m_query.isEmpty())
        close();
    else
        setQuery({});
}

bool Picker::activateDigit(const KeyPress &press)
{
    const auto digit = press.digit();
    if (!digit || !m_query.isEmpty() || press.flags() != Qt::NoModifier)
        return false;
    const auto row = std::ranges::find(m_rows.rows(), std::optional(QString::number(*digit)),
                                       [](const PickerRow &r) { return r.option.shortcut; });
    if (row == m_rows.rows().end())
        return false;
    activate(int(row - m_rows.rows().begin()));
    return true;
}
