#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The texts and the action of a screen that has no issues to list.
class EmptyScreen
{
    Q_GADGET
    QML_VALUE_TYPE(emptyScreen)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString action MEMBER action CONSTANT FINAL)
    Q_PROPERTY(bool isProminent MEMBER isProminent CONSTANT FINAL)

public:
    QString symbol;
    QString title;
    QString description;
    /// The label of the button. Empty if the screen has no button.
    QString action;
    /// The button is the one prominent button of the screen.
    bool isProminent = false;

    bool operator==(const EmptyScreen &) const = default;
};

/// Whether a filter is active, which is then the reason for the empty list.
enum class FilterState { Unfiltered, Filtered };

/// The screen for an empty list. An active filter is reported before any other reason.
EmptyScreen emptyScreen(const IssueScope &scope, FilterState filter, const QDateTime &now,
                        const UserCalendar &calendar);

/// Decides what is shown below the toolbar: the loading state, a failed load, the issues, or an empty screen.
class IssuesContent : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(IssuesContent::Kind kind READ kind NOTIFY changed FINAL)
    /// The list belongs to a recap, and the header of the recap is shown above it.
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

    /// Runs the action that the empty screen offers.
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
