#pragma once

#include "screens/palette/CommandPalette.h"
#include "screens/palette/RowGeometry.h"

#include <QAbstractListModel>

#include <optional>

/// The rows of the palette that can be seen, in a fixed number of places: as many as fit into the view, whatever the number
/// of rows. A letter typed and a view scrolled give the places other rows, so that no item is made or destroyed while
/// somebody types. The places stand in the order of the rows, in which screen readers read them. Where the rows lie and how far they are scrolled is settled
/// here: the highlighted row is in sight whenever the highlight moves or the query changes.
class RowPlaces : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        CommandPalette *palette READ palette WRITE setPalette NOTIFY paletteChanged FINAL REQUIRED)
    /// In logical pixels, as `RowHeights`.
    Q_PROPERTY(qreal rowHeight MEMBER m_rowHeight NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal titleHeight MEMBER m_titleHeight NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal above MEMBER m_above NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal below MEMBER m_below NOTIFY heightsChanged FINAL)
    Q_PROPERTY(qreal fade MEMBER m_fade NOTIFY heightsChanged FINAL)
    /// How high the view may become; it is as high as its rows below that.
    Q_PROPERTY(qreal highest MEMBER m_highest NOTIFY heightsChanged FINAL)
    /// How high all that scrolls is, and the view on it.
    Q_PROPERTY(qreal contentHeight READ contentHeight NOTIFY contentHeightChanged FINAL)
    Q_PROPERTY(qreal viewHeight READ viewHeight NOTIFY viewHeightChanged FINAL)
    /// How far the view is scrolled. Not bounded when written: a view may be dragged past its end.
    Q_PROPERTY(qreal top READ top WRITE setTop NOTIFY topChanged FINAL)

public:
    enum Role {
        /// The position of the place's row in the palette.
        RowRole = Qt::UserRole,
        /// Where it begins, from the upper end of what scrolls.
        PlaceRole,
        /// False for a place that has no row now; the other roles then stay as they were.
        IsShownRole,
        /// What stands above the row; empty for most.
        SectionTitleRole,
        TitleRole,
        /// Empty without one.
        SubtitleRole,
        IconRole,
        IsSelectedRole,
        /// The digit shown at the row's end; empty without one.
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
    /// The rows are others.
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
    RowGeometry m_geometry;
    qreal m_viewHeight = 0;
    qreal m_top = 0;
    QList<Place> m_places;
};
