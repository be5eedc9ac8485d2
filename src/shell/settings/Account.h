#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// What the settings say about the present session, and whether they offer to sign in to a site.
class Account : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY changed FINAL REQUIRED)
    /// A session is open and its basic data is loaded.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY changed FINAL)
    /// The form is shown unless a session on a site is open, so a user of the demo can sign in to a site.
    Q_PROPERTY(bool needsForm READ needsForm NOTIFY changed FINAL)
    /// The title of the section about the session.
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    /// The label of the button that ends the session.
    Q_PROPERTY(QString signOutTitle READ signOutTitle NOTIFY changed FINAL)
    /// The address of the signed-in user; empty if the site does not disclose it.
    Q_PROPERTY(QString email READ email NOTIFY changed FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    bool isOpen() const;
    bool needsForm() const;
    QString title() const;
    QString signOutTitle() const;
    QString email() const;

Q_SIGNALS:
    void changed();

private:
    bool isDemo() const;

    QPointer<AppStore> m_store;
};
