#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>

/// What the desktop round the program knows and does. One object for the process; UI thread only.
class Desktop : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The desktop that the program runs on.
    static std::unique_ptr<Desktop> ofThisSystem();

    /// True while the program is the active application.
    virtual bool isApplicationActive() const = 0;
    /// True when the desktop asks for a dark appearance.
    virtual bool prefersDark() const = 0;
    /// True when the desktop asks for less motion.
    virtual bool prefersReducedMotion() const = 0;
    /// Gives the address to the default browser.
    virtual void open(const QUrl &address) = 0;
    /// Replaces the general pasteboard by a plain text.
    virtual void copyText(const QString &text) = 0;
    /// The local files on the general pasteboard, in their order.
    virtual QList<QUrl> pastedFiles() const = 0;
    /// The picture on the general pasteboard; null when there is none.
    virtual QImage pastedImage() const = 0;

Q_SIGNALS:
    /// `prefersDark` or `prefersReducedMotion` has changed.
    void appearanceChanged();
};
