#pragma once

#include "state/AppStore.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The rules of the sign-in form, which takes a site, an e-mail address and a token.
class ConnectForm : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Setting the store fills in the site and the e-mail address of the last sign-in. The token is never read back.
    Q_PROPERTY(AppStore *store READ store WRITE setStore NOTIFY storeChanged FINAL REQUIRED)
    Q_PROPERTY(QString site READ site WRITE setSite NOTIFY siteChanged FINAL)
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY emailChanged FINAL)
    Q_PROPERTY(QString token READ token WRITE setToken NOTIFY tokenChanged FINAL)
    Q_PROPERTY(bool connecting READ connecting NOTIFY connectingChanged FINAL)
    /// The reason why the last attempt failed. Empty if it did not fail.
    Q_PROPERTY(QString error READ error NOTIFY errorChanged FINAL)
    Q_PROPERTY(bool canConnect READ canConnect NOTIFY canConnectChanged FINAL)
    /// The place where the token is stored, in the terms of this system.
    Q_PROPERTY(QString keychainHint READ keychainHint CONSTANT FINAL)

public:
    using QObject::QObject;

    AppStore *store() const { return m_store; }
    void setStore(AppStore *store);
    const QString &site() const { return *m_site; }
    void setSite(const QString &site);
    const QString &email() const { return *m_email; }
    void setEmail(const QString &email) { m_email.set(email); }
    const QString &token() const { return *m_token; }
    void setToken(const QString &token);
    bool connecting() const { return *m_connecting; }
    const QString &error() const { return *m_error; }
    /// Site and token contain more than white space, and no attempt is running. The e-mail address may be empty, which
    /// is how a personal access token is entered.
    bool canConnect() const { return *m_canConnect; }
    static QString keychainHint();

    /// Signs in with the entered values, if `canConnect` holds. On success the token is cleared. On failure all values
    /// stay.
    Q_INVOKABLE void connect();
    using QObject::connect;
    Q_INVOKABLE void dismissError() { m_error.set({}); }
    /// Opens the web page for creating a token.
    Q_INVOKABLE void openTokenPage();

Q_SIGNALS:
    void storeChanged();
    void siteChanged();
    void emailChanged();
    void tokenChanged();
    void connectingChanged();
    void errorChanged();
    void canConnectChanged();

private:
    /// The value of a property, with the change signal that QML needs.
    template <typename T>
    class Field
    {
    public:
        Field(ConnectForm *form, void (ConnectForm::*changed)()) : m_form(form), m_changed(changed)
        {
        }
        const T &operator*() const { return m_value; }
        const T *operator->() const { return &m_value; }
        void set(T value)
        {
            if (m_value == value)
                return;
            m_value = std::move(value);
            Q_EMIT(m_form->*m_changed)();
        }

    private:
        ConnectForm *m_form;
        void (ConnectForm::*m_changed)();
        T m_value{};
    };

    QCoro::Task<> signIn();
    void setConnecting(bool connecting);
    void refreshCanConnect();

    QPointer<AppStore> m_store;
    Field<QString> m_site{this, &ConnectForm::siteChanged};
    Field<QString> m_email{this, &ConnectForm::emailChanged};
    Field<QString> m_token{this, &ConnectForm::tokenChanged};
    Field<bool> m_connecting{this, &ConnectForm::connectingChanged};
    Field<QString> m_error{this, &ConnectForm::errorChanged};
    Field<bool> m_canConnect{this, &ConnectForm::canConnectChanged};
};
