#pragma once

#include "screens/issues/PickerModel.h"
#include "state/AppStore.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// What the search field of a picker says while it is empty.
QString pickerPlaceholder(PickerKind kind);
/// What a picker does, as its head says it.
QString pickerTitle(PickerKind kind);
/// The first three keys, and "+" and how many more there are.
QStringList pickerCaps(const QStringList &keys);

/// The picker that the store's palette asks for: its rows, what is searched for, and which row Return would pick. A new
/// picker begins with an empty query and the highlight on the first row. While none is asked for, the last one's rows
/// stay, so that its panel can fade out.
class Picker : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    /// A picker is asked for.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The position of the highlighted row; it may lie behind the last one when rows went.
    Q_PROPERTY(
        int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY pickerChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY pickerChanged FINAL)
    Q_PROPERTY(QStringList caps READ caps NOTIFY pickerChanged FINAL)
    Q_PROPERTY(PickerModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY updated FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isOpen() const { return m_isOpen; }
    const QString &query() const { return m_query; }
    /// Takes the highlight back to the first row.
    void setQuery(const QString &query);
    int highlighted() const { return m_highlighted; }
    void setHighlighted(int row);
    QString placeholder() const { return pickerPlaceholder(m_asked.kind); }
    QString title() const { return pickerTitle(m_asked.kind); }
    QStringList caps() const { return pickerCaps(m_asked.keys); }
    PickerModel *rows() { return &m_rows; }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }

    /// Carries out the option in a row and, unless that leaves the picker open, closes it; nothing outside the list.
    Q_INVOKABLE void activate(int row);
    Q_INVOKABLE void close();
    /// What the picker makes of a press before the search field sees it; false for a press that it leaves to others.
    bool handle(const KeyPress &press);

Q_SIGNALS:
    void storeChanged();
    void isOpenChanged();
    void queryChanged();
    void highlightedChanged();
    void pickerChanged();
    void updated();

private:
    void followPalette();
    void refresh();
    void createLabel();
    void moveHighlight(int delta);
    void leave();
    bool activateDigit(const KeyPress &press);

    QPointer<AppStore> m_store;
    PaletteMode::Picker m_asked;
    PickerModel m_rows;
    /// What the last row makes, if there is such a row.
    std::optional<QString> m_newLabel;
    bool m_isOpen = false;
    QString m_query;
    int m_highlighted = 0;
};
