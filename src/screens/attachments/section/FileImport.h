#pragma once

#include "platform/files/FileTools.h"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Lets the user choose files in a dialog.
class FileImport : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The issue for which files are chosen.
    Q_PROPERTY(QString key MEMBER m_key NOTIFY keyChanged FINAL REQUIRED)
    /// The window to which the dialog belongs.
    Q_PROPERTY(QQuickWindow *window MEMBER m_window NOTIFY windowChanged FINAL)
    /// The dialog is open.
    Q_PROPERTY(bool importing READ isImporting NOTIFY importingChanged FINAL)

public:
    using QObject::QObject;

    bool isImporting() const { return m_isImporting; }
    /// Replaces the dialogs of the system.
    void setTools(FileTools tools) { m_tools = std::move(tools); }

    /// Opens the dialog unless it is open.
    Q_INVOKABLE void choose();

Q_SIGNALS:
    void keyChanged();
    void windowChanged();
    void importingChanged();
    /// The user has chosen these files, at least one, for the issue for which the dialog was opened.
    void chosen(const QString &key, const QList<QUrl> &files);

private:
    QCoro::Task<> run(QString key);
    void setImporting(bool importing);

    QString m_key;
    QPointer<QQuickWindow> m_window;
    FileTools m_tools;
    bool m_isImporting = false;
};
