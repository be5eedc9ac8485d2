#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <optional>

class QHoverEvent;
class QKeyEvent;
class QWheelEvent;

/// Scrolls the rows of a menu and moves its highlight. It covers the `ListView` that shows the rows and is not
/// interactive itself. Its implicit size is that of all rows together. Rows out of view stay empty until they are
/// scrolled into view, so that long menus open without delay.
///
/// It takes Up, Down, Home, End, Page Up and Page Down, and finds entries by the letters that the user types. An entry
/// that is highlighted by a key is scrolled into view. Rows that are disabled or have no height are passed over.
class MenuRows : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject *menu READ menu WRITE setMenu NOTIFY menuChanged FINAL REQUIRED)
    Q_PROPERTY(QQuickItem *list READ list WRITE setList NOTIFY listChanged FINAL REQUIRED)
    Q_PROPERTY(qreal signHeight READ signHeight WRITE setSignHeight NOTIFY signHeightChanged FINAL)
    Q_PROPERTY(qreal offset READ offset WRITE scrollTo NOTIFY scrolled FINAL)
    Q_PROPERTY(qreal furthest READ furthest NOTIFY scrolled FINAL)

public:
    /// The time without a key press after which the typed letters start a new search, in milliseconds.
    static constexpr quint64 searchPause = 1000;

    explicit MenuRows(QQuickItem *parent = nullptr);

    QObject *menu() const { return m_menu; }
    /// The `Menu` whose rows are shown.
    void setMenu(QObject *menu);
    QQuickItem *list() const { return m_list; }
    /// The list that is the content item of the menu. It must keep all rows in its layout.
    void setList(QQuickItem *list);
    /// The height of the scroll signs, which cover the first and the last visible rows, in logical pixels.
    qreal signHeight() const { return m_signHeight; }
    void setSignHeight(qreal height);

    /// The distance by which the rows are scrolled up, between 0 and `furthest`, in logical pixels.
    qreal offset() const { return m_offset; }
    qreal furthest() const;
    /// Scrolls as the pointer does: the highlight moves to another row if its row leaves the view.
    void scrollTo(qreal offset);

    /// Whether the pointer has moved to this position of the scene. It is false while the pointer rests where it was, or
    /// where it was when the menu opened, and only the rows have moved below it.
    Q_INVOKABLE bool hasPointerMovedTo(QPointF position);

    /// Prepares the rows for a menu that opens.
    Q_INVOKABLE void begin();
    /// Aligns the titles, measures the rows and places them. It happens by itself before each frame after a change.
    void measure();

Q_SIGNALS:
    void menuChanged();
    void listChanged();
    void signHeightChanged();
    void scrolled();

protected:
    bool eventFilter(QObject *row, QEvent *event) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;
    void wheelEvent(QWheelEvent *event) override;

private Q_SLOTS:
    void followHighlight();
    void remeasure();

private:
    QQuickItem *row(int index) const { return m_rows.value(index); }
    int current() const;
    void highlight(int index);
    /// Highlights an entry because of a key, and scrolls it into view.
    void goTo(int index);
    bool canBeChosen(int index) const;
    bool isInView(int index) const;
    /// The next row from `index` on, in the direction of `step`, that can be chosen. -1 if there is none.
    int choosableFrom(int index, int step) const;
    int onePageFrom(int index, int step) const;
    void reveal(int index);
    void follow(const QList<QPointer<QQuickItem>> &rows);
    /// Measures the rows if they have changed since the last time.
    void refresh();
    void place();
    void setOffset(qreal offset);
    void mendHighlight();
    bool take(const QKeyEvent &event);
    bool takeSteps(int key);
    bool takeText(const QKeyEvent &event);
    int found(const QString &words, int from) const;
    bool isFromRestingPointer(const QHoverEvent &event);

    QPointer<QObject> m_menu;
    QPointer<QQuickItem> m_list;
    QList<QPointer<QQuickItem>> m_rows;
    QList<qreal> m_tops;
    qreal m_total = 0;
    qreal m_offset = 0;
    qreal m_signHeight = 0;
    QString m_searched;
    quint64 m_typedAt = 0;
    /// The last position of the pointer in the scene since the menu opened. While keys move the highlight, rows that scroll below the resting pointer do
    /// not take it.
    std::optional<QPointF> m_pointer;
    bool m_isKeyed = false;
    /// The press of the space bar belonged to a search, so that its release does too.
    bool m_holdsSpace = false;
    bool m_isStale = true;
};
