#pragma once

#include "screens/options/KeyHandler.h"
#include "screens/options/OptionListModel.h"
#include "screens/options/OptionSource.h"

#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// A searchable list of options without its window: what is searched for, what that finds, which row is highlighted, and
/// what keys and clicks do. The rows are the found items in their order and, last, the row that makes a new value where
/// there is one to make.
class OptionList : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OptionSource *source READ source WRITE setSource NOTIFY sourceChanged FINAL REQUIRED)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The position of the highlighted row; it may lie behind the last one when rows went.
    Q_PROPERTY(
        int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    Q_PROPERTY(OptionListModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY rowsChanged FINAL)
    /// The highlighted row and its place among the others, for screen readers, whose focus stays in the search field.
    Q_PROPERTY(QString spoken READ spoken NOTIFY spokenChanged FINAL)

public:
    using KeyHandler::KeyHandler;

    OptionSource *source() const { return m_source; }
    void setSource(OptionSource *source);
    const QString &query() const { return m_query; }
    /// A change takes the highlight back to the first row.
    void setQuery(const QString &query);
    int highlighted() const { return m_highlighted; }
    void setHighlighted(int row);
    OptionListModel *rows() { return &m_rows; }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }
    QString spoken() const;

    /// Runs the item of a row and, unless that keeps the list open, emits `done`; or makes the new value and empties the
    /// query. Nothing for a row that is not there.
    Q_INVOKABLE void activate(int row);
    /// The pointer is over a row, at a place in the window. It takes the highlight there only when it has moved: a list
    /// that opens below a pointer at rest, or rows that scroll there, don't count.
    Q_INVOKABLE void point(int row, QPointF where);
    /// Where the pointer lies in the window when the list comes.
    void setPointer(QPointF where) { m_pointer = where; }
    /// The same, as the system tells it for the window of `view`.
    Q_INVOKABLE void findPointer(const QQuickItem *view);
    bool handle(const KeyPress &press) override;

Q_SIGNALS:
    void sourceChanged();
    void queryChanged();
    void highlightedChanged();
    void rowsChanged();
    void spokenChanged();
    /// The list has served and can be closed.
    void done();

private:
    void refresh();
    void create();
    void moveHighlight(int delta);
    bool activateDigit(const KeyPress &press);

    QPointer<OptionSource> m_source;
    QList<OptionItem> m_found;
    std::optional<QString> m_candidate;
    OptionListModel m_rows;
    QString m_query;
    std::optional<QPointF> m_pointer;
    int m_highlighted = 0;
};
