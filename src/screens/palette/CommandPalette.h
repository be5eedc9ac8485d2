#pragma once

#include "screens/palette/PaletteSources.h"
#include "screens/palette/RemoteSearch.h"
#include "state/palette/PaletteKeys.h"
#include "state/palette/PaletteRow.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The palette without its window: what the store asks it to show, what is typed, what that finds here and on the server,
/// which row is highlighted, and what keys and clicks do. Each time it opens and each time its mode changes it begins
/// with an empty query and the highlight on the first row. While it is closed its last rows stay, so that its panel can
/// fade out.
class CommandPalette : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)
    /// It is a picker for some issues; otherwise the palette proper.
    Q_PROPERTY(bool isPicker READ isPicker NOTIFY modeChanged FINAL)
    /// What a picker does; empty for the palette proper.
    Q_PROPERTY(QString title READ title NOTIFY modeChanged FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY modeChanged FINAL)
    /// The keys that open an issue in a window, as this system spells them.
    Q_PROPERTY(QString windowShortcut READ windowShortcut CONSTANT FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The position of the highlighted row; it may lie behind the last one when rows went.
    Q_PROPERTY(
        int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY updated FINAL)
    /// The issues that it acts on: up to three keys, and how many more.
    Q_PROPERTY(QStringList capsules READ capsules NOTIFY updated FINAL)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY isSearchingChanged FINAL)
    /// What stands in place of rows; empty while there are rows.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY updated FINAL)
    /// How many rows there are and which is highlighted, as a sentence for screen readers.
    Q_PROPERTY(QString spokenState READ spokenState NOTIFY spokenStateChanged FINAL)

public:
    explicit CommandPalette(QObject *parent = nullptr);

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isOpen() const { return m_isOpen; }
    bool isPicker() const { return m_mode.asPicker(); }
    QString title() const;
    QString placeholder() const;
    QString windowShortcut() const;
    const QString &query() const { return m_query; }
    /// A change takes the highlight back to the first row and searches anew, here at once and on the server after a pause.
    void setQuery(const QString &query);
    int highlighted() const { return m_highlighted; }
    void setHighlighted(int row);
    /// The rows in order; the highlight counts them.
    const QList<PaletteRow> &rows() const { return m_rows; }
    int rowCount() const { return int(m_rows.size()); }
    const QStringList &capsules() const { return m_capsules; }
    bool isSearching() const { return m_remote.isSearching(); }
    QString emptyText() const;
    QString spokenState() const;

    /// Carries out a row and, unless that keeps the palette open, closes it; nothing outside the list.
    Q_INVOKABLE void activate(int row);
    Q_INVOKABLE void close();
    /// The pointer is over a row: highlights it if the pointer was moved there. A row that came under a resting pointer,
    /// because the palette opened or its rows scrolled, stays as it is.
    Q_INVOKABLE void point(int row);
    void notePointerMoved() { m_isPointing = true; }
    void noteScrolled() { m_isPointing = false; }
    /// What the palette makes of a press before the search field sees it; false for a press that it leaves to the field.
    bool handle(const KeyPress &press);

Q_SIGNALS:
    void storeChanged();
    void isOpenChanged();
    void modeChanged();
    void queryChanged();
    void highlightedChanged();
    void isSearchingChanged();
    void updated();
    /// The rows are now those of another query or mode, to be shown from the first one.
    void begun();
    void spokenStateChanged();

private:
    void connectStore();
    void followPalette();
    void begin(const PaletteMode &mode);
    void setIsOpen(bool open);
    void refresh();
    void refreshOptions();
    void searchRemote();
    void activateInWindow(int row);
    void moveHighlight(int delta);
    void goBack();
    bool activateDigit(int digit);

    QPointer<AppStore> m_store;
    bool m_isOpen = false;
    PaletteMode m_mode;
    QString m_query;
    int m_highlighted = 0;
    /// The pointer was moved since the last key.
    bool m_isPointing = false;
    RemoteSearch m_remote;
    PaletteSources m_sources;
    QList<PaletteRow> m_rows;
    QStringList m_capsules;
};
