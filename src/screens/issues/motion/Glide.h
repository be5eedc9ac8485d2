#pragma once

#include "screens/issues/motion/GlideGhost.h"
#include "state/AppStore.h"

#include <QHash>
#include <QPointer>
#include <QQuickItem>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

/// Animates rows and cards from the positions where they were last visible to the positions that a change of the issues
/// has given them. They take their new positions at once and are only drawn with an offset for a while. A further
/// change starts from the drawn positions. Rows that were not visible before fade in. A change to another list, layout
/// or search is not animated. The participating items are the descendants of `view` that have a property `glideKey`,
/// which identifies them.
class Glide : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY changed REQUIRED FINAL)
    /// The item that contains the rows. Positions are relative to its upper left corner.
    Q_PROPERTY(QQuickItem *view MEMBER m_view NOTIFY changed REQUIRED FINAL)
    /// The model whose changes are animated. Set one of the two.
    Q_PROPERTY(IssueListModel *rows READ rows WRITE setRows NOTIFY changed FINAL)
    Q_PROPERTY(BoardModel *columns READ columns WRITE setColumns NOTIFY changed FINAL)
    /// An item above the view that shows the cards that move between columns, as copies created from `ghost`. Set both
    /// or neither.
    Q_PROPERTY(QQuickItem *carrier MEMBER m_carrier NOTIFY changed FINAL)
    Q_PROPERTY(QQmlComponent *ghost MEMBER m_ghost NOTIFY changed FINAL)
    /// The duration in milliseconds. 0 disables the animation.
    Q_PROPERTY(int duration MEMBER m_duration NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY runningChanged FINAL)

public:
    explicit Glide(QObject *parent = nullptr);

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    IssueListModel *rows() const { return m_rows; }
    void setRows(IssueListModel *rows) { follow(m_rows, rows); }
    BoardModel *columns() const { return m_columns; }
    void setColumns(BoardModel *columns) { follow(m_columns, columns); }
    /// The visible item with a key. Null if there is none.
    Q_INVOKABLE QQuickItem *itemOf(const QString &key) const;
    bool isRunning() const { return m_run.state() == QAbstractAnimation::Running; }

Q_SIGNALS:
    void changed();
    void runningChanged();

private:
    struct Rider
    {
        QPointer<QQuickItem> item;
        QString key;
        /// The offset from the item's position to the position where it was last visible.
        QPointF from;
        bool isNew = false;
        /// The copy of a card that moves to another column.
        std::unique_ptr<GlideGhost> ghost = nullptr;
    };
    /// The values that must be unchanged for a change to be animated.
    struct Occasion
    {
        IssueScope scope;
        QString filterText;
        IssueFilters filters;

        bool operator==(const Occasion &) const = default;
    };

    template <typename Model>
    void follow(QPointer<Model> &followed, Model *model);
    void remember();
    void skipTurn();
    void playLater();
    void play();
    std::unique_ptr<GlideGhost> ghostOf(const Rider &rider) const;
    void draw(double progress);
    void rest();
    Occasion occasion() const;
    std::vector<QQuickItem *> seenItems() const;

    QPointer<AppStore> m_store;
    QPointer<QQuickItem> m_view;
    QPointer<QQuickItem> m_carrier;
    QPointer<QQmlComponent> m_ghost;
    QPointer<IssueListModel> m_rows;
    QPointer<BoardModel> m_columns;
    int m_duration = 0;
    /// Absent during an event loop iteration that changes the layout, because the positions that were visible before
    /// are obsolete.
    std::optional<Occasion> m_occasion;
    /// The last visible position of each key, while a change waits for its frame.
    QHash<QString, QPointF> m_places;
    bool m_isPending = false;
    std::vector<Rider> m_riders;
    QVariantAnimation m_run;
};

template <typename Model>
void Glide::follow(QPointer<Model> &followed, Model *model)
{
    if (followed == model)
        return;
    if (followed)
        followed->disconnect(this);
    followed = model;
    if (model) {
        connect(model, &Model::aboutToUpdate, this, &Glide::remember);
        connect(model, &Model::updated, this, &Glide::playLater);
    }
    Q_EMIT changed();
}
