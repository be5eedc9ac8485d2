#pragma once

#include "screens/palette/CommandPalette.h"
#include "screens/palette/RowGeometry.h"

#include <QAbstractListModel>

#include <optional>

/// The visible rows of the palette, in a fixed number of slots: as many as fit into the view, regardless of the number
/// of rows. Typing and scrolling reassign the slots to other rows, so that no item is created or destroyed while the
/// user types. The slots stay in the order of the rows, because screen readers read them in that order. This model also
/// decides the positions of the rows and the scroll position: the highlighted row is scrolled into view whenever the
/// highlight moves or the query changes.
class RowPlaces : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        CommandPalette *palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL REQUIRED)
    /// In logical pixels, as in `RowHeights`.
    Q_PROPERTY(qreal rowHeight MEMBER m_rowHeight NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal titleHeight MEMBER m_titleHeight NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal above MEMBER m_above NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal below MEMBER m_below NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal fade MEMBER m_fade NOTIFY heightsChanged FINAL)
    /// The maximum height of the view. With fewer rows the view is only as high as its rows.
    Q_PROPERTY(qreal highest MEMBER m_highest NOTIFY heightsChanged FINAL)
    /// The height of the scrolled content, and the height of the view.
    Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY contentHeightChanged FINAL)
    Q_PROPERTY(qreal viewHeight READ viewHeight NOTIFY viewHeightChanged FINAL)
    /// The scroll position. It is not limited when written, because a view may be dragged past its end.
    Q_PROPERTY(qreal top READ top WRITE setTop NOTIFY topChanged FINAL)

public:
    enum Role {
        /// The index of the slot's row in the palette.
        RowRole = Qt::UserRole,
        /// The top of the row within the scrolled content.
        PlaceRole,
        /// False for a slot that has no row at present. The other roles then keep their values.
        IsShownRole,
        /// The section title above the row. Empty for most rows.
        SectionTitleRole,
        TitleRole,
        /// Empty if there is none.
        SubtitleRole,
        IconRole,
        IsSelectedRole,
        /// The digit shown at the end of the row. Empty if there is none.
        ShortcutRole
    };
    Q_ENUM(Role)

    explicit RowPlaces(QObject *parent = nullptr);

    CommandPalette *palette() const { return m_palette; }
    void setPalette(CommandPalette *palette);
    qreal contentHeight() const { return m_geometry.height(); }
    qreal viewHeight() const { return m_viewHeight; }
    qreal top() const { return m_top; }
    void setTop(qreal top);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void paletteChanged();
    void heightsChanged();
    void contentHeightChanged();
    void viewHeightChanged();
    void topChanged();

private:
    struct Place
    {
        int row = -1;
        qreal top = 0;
        bool isShown = false;
        PaletteRow content;
    };

    void addPlaces();
    /// Adopts the palette's new rows.
    void followRows();
    void measure();
    void reveal();
    void fill();
    void put(int place, const Place &now);
    static QList<int> changedRoles(const Place &before, const Place &now);

    QPointer<CommandPalette> m_palette;
    qreal m_rowHeight = 0;
    qreal m_titleHeight = 0;
    qreal m_above = 0;
    qreal m_below = 0;
    qreal m_fade = 0;
    qreal m_highest = 0;
    /// The rows that `m_geometry` places. The palette may have others until it says so.
    QList<PaletteRow> m_rows;
    RowGeometry m_geometry;
    qreal m_viewHeight = 0;
    qreal m_top = 0;
    QList<Place> m_places;
};
