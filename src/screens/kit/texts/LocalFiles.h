#pragma once

#include <QList>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// The local files among what was dropped or is on the clipboard.
class LocalFiles : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE QList<QUrl> among(const QList<QUrl> &urls) const;
    /// Empty if the clipboard contains no file.
    Q_INVOKABLE QList<QUrl> onClipboard() const;
};
