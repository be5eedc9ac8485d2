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

/// Moves rows and cards softly from where they were seen to where a change of the issues has put them. They stand at
/// their new places at once and are only drawn beside them for a while; a further change takes up from what is seen.
/// Rows that were not seen before fade in. Another list, layout or search is no motion. The items that take part are
/// those below `view` that have a property `glideKey`, by which they are known again.
class Glide : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY changed REQUIRED FINAL)
    /// What shows the rows; places are told by its corner.
    Q_PROPERTY(QQuickItem *view MEMBER m_view NOTIFY changed REQUIRED FINAL)
    /// Whose changes are to be seen as motion: one of the two.
    Q_PROPERTY(IssueListModel *rows READ rows WRITE setRows NOTIFY changed FINAL)
    Q_PROPERTY(BoardModel *columns READ columns WRITE setColumns NOTIFY changed FINAL)
    /// Above the view: what goes from one column to another is seen in it, as a copy that `ghost` makes. Both or neither.
    Q_PROPERTY(QQuickItem *carrier MEMBER m_carrier NOTIFY changed FINAL)
    Q_PROPERTY(QQmlComponent *ghost MEMBER m_ghost NOTIFY changed FINAL)
    /// In milliseconds; 0 moves nothing.
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
    /// The item of a key among those in sight; null without one.
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
        /// From its place to where it was seen.
        QPointF from;
        bool isNew = false;
        /// Of one that goes from one column to another.
        std::unique_ptr<GlideGhost> ghost = nullptr;
    };
    /// What must stay the same for a change to be a motion.
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
    /// None in a turn that changes the layout: what was in sight before is long past.
    std::optional<Occasion> m_occasion;
    /// Where each key was last seen, while a change waits for its frame.
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
