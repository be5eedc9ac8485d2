#pragma once

#include <QObject>
#include <QQuickTextDocument>
#include <QtQml/qqmlregistration.h>

/// The text of an editor, and changes of it that a user can undo in one step. (`TextEdit` itself removes and inserts in
/// two.)
class DocumentEdits : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The text with its no-break spaces, which `TextEdit` replaces by ordinary blanks. Lines end with "\n".
    Q_INVOKABLE QString textOf(const QQuickTextDocument *document) const;
    /// Replaces the characters from `start` up to `end` by plain text. Positions outside the text mean its nearest end.
    Q_INVOKABLE void replace(const QQuickTextDocument *document, int start, int end,
                             const QString &text) const;
    /// Replaces every line break by a blank, as a part of the change that inserted it.
    Q_INVOKABLE void joinLines(const QQuickTextDocument *document) const;
};
