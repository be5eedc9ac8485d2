#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Measures the texts of menus, so that a row need not be drawn to know its width.
class MenuMeasure : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// A title as one line: line breaks and other control characters become spaces.
    Q_INVOKABLE QString oneLine(const QString &text) const;
    /// The width of a title that is one line, in logical pixels.
    Q_INVOKABLE qreal titleWidth(const QString &text) const;
    /// The width of a shortcut, in logical pixels.
    Q_INVOKABLE qreal shortcutWidth(const QString &text) const;
};
