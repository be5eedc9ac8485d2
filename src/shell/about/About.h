#pragma once

#include "shell/about/KeyFrames.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;
class QQuickWindow;

/// How fast this run of the program is, for the sheet "À propos de Velmora", and whether the sheet is shown. The figures
/// are kept in memory only. Between key presses, a frame costs two calls that compare a value.
class About : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isShown READ isShown NOTIFY isShownChanged FINAL)
    Q_PROPERTY(QString start READ start NOTIFY measured FINAL)
    Q_PROPERTY(QString lastKey READ lastKey NOTIFY measured FINAL)
    Q_PROPERTY(QString slowestKey READ slowestKey NOTIFY measured FINAL)
    Q_PROPERTY(QString memory READ memory NOTIFY measured FINAL)

public:
    /// QML would create an instance of its own if there were a constructor without parameters.
    explicit About(QObject *parent) : QObject(parent) {}

    /// The one of this process.
    static About &shared();
    static About *create(QQmlEngine *engine, QJSEngine *scripts);

    /// Measures the frames of a window until it is destroyed. The first frame of the first window ends the start.
    void watch(QQuickWindow &window);
    /// A frame has shown the effect of a key after this time.
    void add(KeyFrames::Duration time);

    bool isShown() const { return m_isShown; }
    Q_INVOKABLE void show() { setShown(true); }
    Q_INVOKABLE void hide() { setShown(false); }

    QString start() const;
    QString lastKey() const;
    QString slowestKey() const;
    /// The memory at this moment.
    QString memory() const;
    Q_INVOKABLE QString version(const QString &version, const QString &build) const;

Q_SIGNALS:
    void isShownChanged();
    void measured();

private:
    void setShown(bool isShown);
    void setStart(KeyFrames::Duration start);

    bool m_isShown = false;
    std::optional<KeyFrames::Duration> m_start;
    std::optional<KeyFrames::Duration> m_lastKey;
    std::optional<KeyFrames::Duration> m_slowestKey;
};
