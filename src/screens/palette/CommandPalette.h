#pragma once

#include "screens/kit/layers/KeyHandler.h"
#include "screens/palette/PaletteSources.h"
#include "screens/palette/RemoteSearch.h"
#include "state/palette/PaletteKeys.h"
#include "state/palette/PaletteRow.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The logic of the palette, without its window: the mode that the store requests, the query, the local and remote
/// results, the highlighted row, and the effects of keys and clicks. Each time it opens, and each time its mode
/// changes, it starts with an empty query and the first row highlighted. After it closes it keeps its last rows, so
/// that its panel can fade out.
class CommandPalette : public KeyHandler
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// The issue whose window this is. Empty in the main window, where the store knows what the palette shows. The palette
    /// of an issue's window has the commands on that issue, and opens other issues in windows of their own.
    Q_PROPERTY(QString issueKey READ issueKey WRITE setIssueKey NOTIFY issueKeyChanged FINAL)
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)
    /// True for a picker for some issues, false for the general palette.
    Q_PROPERTY(bool isPicker READ isPicker NOTIFY modeChanged FINAL)
    /// The title of a picker. Empty for the general palette.
    Q_PROPERTY(QString title READ title NOTIFY modeChanged FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY modeChanged FINAL)
    /// The shortcut that opens an issue in a window, as this system spells it.
    Q_PROPERTY(QString windowShortcut READ windowShortcut CONSTANT FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The index of the highlighted row. The highlight stays on its row while the rows change. If that row disappears, the
    /// index stays the same and may exceed the last one.
    Q_PROPERTY(
        int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY updated FINAL)
    /// The issues that the palette applies to: up to three keys, and the number of further issues.
    Q_PROPERTY(QStringList capsules READ capsules NOTIFY updated FINAL)
    Q_PROPERTY(bool isSearching READ isSearching NOTIFY isSearchingChanged FINAL)
    /// The message shown in place of rows. Empty while there are rows.
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY updated FINAL)
    /// The number of rows and the highlighted row, as a sentence for screen readers.
    Q_PROPERTY(QString spokenState READ spokenState NOTIFY spokenStateChanged FINAL)

public:
    explicit CommandPalette(QObject *parent = nullptr);

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &issueKey() const { return m_issueKey; }
    void setIssueKey(const QString &key);
    bool isOpen() const { return m_isOpen; }
    bool isPicker() const { return m_mode.asPicker(); }
    QString title() const;
    QString placeholder() const;
    QString windowShortcut() const;
    const QString &query() const { return m_query; }
    /// A change moves the highlight back to the first row and searches again, locally at once and on the server after a
    /// pause.
    void setQuery(const QString &query);
    int highlighted() const { return m_highlighted; }
    void setHighlighted(int row);
    /// The rows in their order. The index of the highlight refers to them.
    const QList<PaletteRow> &rows() const { return m_rows; }
    int rowCount() const { return int(m_rows.size()); }
    const QStringList &capsules() const { return m_capsules; }
    bool isSearching() const { return m_remote.isSearching(); }
    QString emptyText() const;
    QString spokenState() const;

    /// Carries out a row and, unless that row keeps the palette open, closes the palette. Does nothing for an index
    /// outside the list.
    Q_INVOKABLE void activate(int row);
    Q_INVOKABLE void close();
    /// In the window of an issue: opens the palette with the commands (`TogglePalette`), or closes it if it is open, or
    /// opens a picker for the issue.
    Q_INVOKABLE void request(Commands::Command command);
    /// Reports that the pointer is over a row. The row is highlighted if the pointer itself has moved. A row that
    /// appears below a resting pointer, because the palette opened or its rows scrolled, is not highlighted.
    Q_INVOKABLE void point(int row);
    /// Handles a key press before the search field sees it. False for a press that is left to the field.
    bool handle(const KeyPress &press);

    bool takes(const QKeyEvent &press) override;
    bool repeats(const QKeyEvent &press) const override;
    void observe(const QEvent &event) override;

Q_SIGNALS:
    void storeChanged();
    void issueKeyChanged();
    void isOpenChanged();
    void modeChanged();
    void queryChanged();
    void highlightedChanged();
    void isSearchingChanged();
    void updated();
    /// The rows now belong to another query or mode and are shown from the first one.
    void begun();
    void spokenStateChanged();

private:
    void connectStore();
    const std::optional<PaletteMode> &mode() const;
    void setMode(const std::optional<PaletteMode> &mode);
    QStringList targets() const;
    QList<PaletteSection> sections();
    void run(const OptionItem &option);
    void followPalette();
    void begin(const PaletteMode &mode);
    void setIsOpen(bool open);
    void listRows();
    /// Lists the rows again and keeps the highlight on its row.
    void refresh();
    void refreshOptions();
    void notePointer(QPointF place);
    void searchRemote();
    void activateInWindow(int row);
    void moveHighlight(int delta);
    void goBack();
    bool activateDigit(int digit);

    QPointer<AppStore> m_store;
    QString m_issueKey;
    /// What the palette of an issue's window shows.
    std::optional<PaletteMode> m_ownMode;
    bool m_isOpen = false;
    PaletteMode m_mode;
    QString m_query;
    int m_highlighted = 0;
    /// The pointer has moved since the last key press.
    bool m_isPointing = false;
    /// The last reported position of the pointer on the screen since the palette opened.
    std::optional<QPointF> m_pointer;
    RemoteSearch m_remote;
    PaletteSources m_sources;
    QList<PaletteRow> m_rows;
    QStringList m_capsules;
};
