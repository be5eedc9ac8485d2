#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// What a screen with nothing to list says and offers.
class EmptyScreen
{
    Q_GADGET
    QML_VALUE_TYPE(emptyScreen)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString action MEMBER action CONSTANT FINAL)
    Q_PROPERTY(bool isProminent MEMBER isProminent CONSTANT FINAL)
    Q_PROPERTY(bool isActionEnabled MEMBER isActionEnabled CONSTANT FINAL)

public:
    QString symbol;
    QString title;
    QString description;
    /// The button's text; empty for a screen without a button.
    QString action;
    /// The button is the screen's one prominent button.
    bool isProminent = false;
    bool isActionEnabled = true;

    bool operator==(const EmptyScreen &) const = default;
};

/// Why there is nothing to list.
enum class FilterState { Unfiltered, Filtered };

/// The screen for an empty list: a filter in force is told before anything else.
EmptyScreen emptyScreen(const IssueScope &scope, FilterState filter, const QDateTime &now,
                        const UserCalendar &calendar);

/// Decides what stands under the toolbar: the first rows on their way, a failed load, the issues, or an empty screen.
class IssuesContent : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(IssuesContent::Kind kind READ kind NOTIFY changed FINAL)
    /// The list is a recap's, and its header stands above it.
    Q_PROPERTY(bool isRecap READ isRecap NOTIFY recapChanged FINAL)
    Q_PROPERTY(EmptyScreen empty READ empty NOTIFY changed FINAL)

public:
    enum class Kind { Loading, Failed, Issues, Empty };
    Q_ENUM(Kind)

    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    Kind kind() const { return m_kind; }
    bool isRecap() const { return m_store && m_store->scope().asActivity(); }
    const EmptyScreen &empty() const { return m_empty; }

    /// The way out that the empty screen offers.
    Q_INVOKABLE void runEmptyAction();

Q_SIGNALS:
    void storeChanged();
    void recapChanged();
    void changed();

private:
    void update();
    Kind presentKind() const;

    QPointer<AppStore> m_store;
    Kind m_kind = Kind::Loading;
    EmptyScreen m_empty;
};
