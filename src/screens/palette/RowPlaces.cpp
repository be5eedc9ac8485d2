#include "screens/palette/RowPlaces.h"

#include "screens/options/OptionIconValue.h"

#include <cmath>

RowPlaces::RowPlaces(QObject *parent) : QAbstractListModel(parent)
{
    connect(this, &RowPlaces::heightsChanged, this, &RowPlaces::addPlaces);
    connect(this, &RowPlaces::heightsChanged, this, &RowPlaces::followRows);
}

void RowPlaces::setPalette(CommandPalette *palette)
{
    if (m_palette == palette)
        return;
    if (m_palette)
        m_palette->disconnect(this);
    m_palette = palette;
    if (m_palette) {
        connect(m_palette, &CommandPalette::updated, this, &RowPlaces::followRows);
        connect(m_palette, &CommandPalette::highlightedChanged, this, &RowPlaces::reveal);
        connect(m_palette, &CommandPalette::begun, this, &RowPlaces::reveal);
    }
    followRows();
    Q_EMIT paletteChanged();
}

void RowPlaces::addPlaces()
{
    if (m_rowHeight <= 0)
        return;
    // One more than fits, because the first and the last row may be partly visible.
    const int wanted = int(std::ceil(m_highest / m_rowHeight)) + 1;
    if (wanted <= m_places.size())
        return;
    beginInsertRows({}, int(m_places.size()), wanted - 1);
    m_places.resize(wanted);
    endInsertRows();
}

void RowPlaces::setTop(qreal top)
{
    if (m_top == top)
        return;
    m_top = top;
    fill();
    Q_EMIT topChanged();
}

void RowPlaces::followRows()
{
    if (!m_palette)
        return;
    measure();
    fill();
    setTop(m_geometry.bounded(m_top, m_viewHeight));
}

void RowPlaces::measure()
{
    const qreal contentBefore = contentHeight();
    m_rows = m_palette->rows();
    m_geometry = RowGeometry({.row = m_rowHeight,
                              .title = m_titleHeight,
                              .above = m_above,
                              .below = m_below,
                              .fade = m_fade},
                             m_rows);
    const qreal viewHeight = std::clamp(contentHeight(), 0.0, std::max(0.0, m_highest));
    const bool isOtherView = std::exchange(m_viewHeight, viewHeight) != viewHeight;
    if (contentHeight() != contentBefore)
        Q_EMIT contentHeightChanged();
    if (isOtherView)
        Q_EMIT viewHeightChanged();
}

void RowPlaces::reveal()
{
    setTop(m_geometry.topShowing(m_palette->highlighted(), m_top, m_viewHeight));
}

void RowPlaces::fill()
{
    if (!m_palette || m_places.isEmpty())
        return;
    const int places = int(m_places.size());
    const auto seen = m_geometry.between(m_top, m_top + m_viewHeight);
    for (int place = 0; place < places; ++place) {
        Place now = m_places[place];
        const int row = seen.first + place;
        now.isShown = place < seen.count;
        if (now.isShown) {
            now.row = row;
            now.top = m_geometry.top(row);
            now.content = m_rows[row];
        }
        put(place, now);
    }
}

void RowPlaces::put(int place, const Place &now)
{
    const auto roles = changedRoles(m_places[place], now);
    if (roles.isEmpty())
        return;
    m_places[place] = now;
    Q_EMIT dataChanged(index(place), index(place), roles);
}

QList<int> RowPlaces::changedRoles(const Place &before, const Place &now)
{
    const OptionItem &was = before.content.option;
    const OptionItem &is = now.content.option;
    const std::initializer_list<std::pair<int, bool>> changes{
        {RowRole, before.row != now.row},
        {PlaceRole, before.top != now.top},
        {IsShownRole, before.isShown != now.isShown},
        {SectionTitleRole, before.content.sectionTitle != now.content.sectionTitle},
        {TitleRole, was.title != is.title},
        {SubtitleRole, was.subtitle != is.subtitle},
        {IconRole, was.icon != is.icon},
        {IsSelectedRole, was.isSelected != is.isSelected},
        {ShortcutRole, was.shortcut != is.shortcut}};
    QList<int> roles;
    for (const auto &[role, isChanged] : changes) {
        if (isChanged)
            roles.append(role);
    }
    return roles;
}

int RowPlaces::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_places.size());
}

QVariant RowPlaces::data(const QModelIndex &index, int role) const
{
    Q_ASSERT(checkIndex(index, CheckIndexOption::IndexIsValid));
    const Place &place = m_places[index.row()];
    const OptionItem &option = place.content.option;
    switch (role) {
    case RowRole:
        return place.row;
    case PlaceRole:
        return place.top;
    case IsShownRole:
        return place.isShown;
    case SectionTitleRole:
        return place.content.sectionTitle;
    case Qt::DisplayRole:
    case TitleRole:
        return option.title;
    case SubtitleRole:
        return option.subtitle.value_or(QString());
    case IconRole:
        return QVariant::fromValue(OptionIconValue(option.icon));
    case IsSelectedRole:
        return option.isSelected;
    case ShortcutRole:
        return option.shortcut.value_or(QString());
    }
    return {};
}

QHash<int, QByteArray> RowPlaces::roleNames() const
{
    return {{RowRole, "row"},          {PlaceRole, "place"},
            {IsShownRole, "isShown"},  {SectionTitleRole, "sectionTitle"},
            {TitleRole, "title"},      {SubtitleRole, "subtitle"},
            {IconRole, "icon"},        {IsSelectedRole, "isSelected"},
            {ShortcutRole, "shortcut"}};
}
