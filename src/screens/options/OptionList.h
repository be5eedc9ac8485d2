#pragma once

#include "commands/KeyPress.h"
#include "screens/kit/layers/KeyHandler.h"
#include "screens/options/OptionListModel.h"
#include "screens/options/OptionSource.h"

#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// The logic of a searchable list of options, without its window: the query, the matching items, the highlighted row,
/// and the effects of keys and clicks. The rows are the matching items in their order, followed by the row that creates
/// a new value where there is one to create.
class OptionList : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OptionSource *source READ source WRITE setSource NOTIFY sourceChanged FINAL REQUIRED)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The index of the highlighted row; 0 if there are no rows. The highlight stays on its item while the items change,
    /// and on its place if the item disappears.
    Q_PROPERTY(
        int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    Q_PROPERTY(OptionListModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY rowsChanged FINAL)
    /// The highlighted row and its position among the others, for screen readers, because the focus stays in the search
    /// field.
    Q_PROPERTY(QString spoken READ spoken NOTIFY spokenChanged FINAL)

public:
    using KeyHandler::KeyHandler;

    OptionSource *source() const { return m_source; }
    void setSource(OptionSource *source);
    const QString &query() const { return m_query; }
    /// A change moves the highlight back to the first row.
    void setQuery(const QString &query);
    int highlighted() const { return m_highlighted; }
    void setHighlighted(int row);
    OptionListModel *rows() { return &m_rows; }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }
    QString spoken() const;

    /// Runs the item of a row and, unless that item keeps the list open, emits `done`. For the row that creates a
    /// value, creates it and clears the query. Does nothing for an index outside the list.
    Q_INVOKABLE void activate(int row);
    /// Reports that the pointer is over a row, at a position in the window. The highlight moves there only if the
    /// pointer itself has moved: a list that opens below a resting pointer, or rows that scroll below it, do not count.
    Q_INVOKABLE void point(int row, QPointF where);
    /// Sets the position of the pointer in the window at the time the list opens.
    void setPointer(QPointF where) { m_pointer = where; }
    /// The same, with the position that the system reports for the window of `view`.
    Q_INVOKABLE void findPointer(const QQuickItem *view);
    /// Handles a key press before the search field sees it. False for a press that is left to the field.
    bool handle(const KeyPress &press);

    bool takes(const QKeyEvent &press) override { return handle(KeyPress::from(press)); }
    bool repeats(const QKeyEvent &press) const override;

Q_SIGNALS:
    void sourceChanged();
    void queryChanged();
    void highlightedChanged();
    void rowsChanged();
    void spokenChanged();
    /// The list is finished and can be closed.
    void done();

private:
    void listRows();
    /// Lists the items again and keeps the highlight on its item.
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
