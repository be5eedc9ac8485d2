#pragma once

#include "model/Enums.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>

/// The services and settings of the user's desktop. There is one object per process; UI thread only.
class Desktop : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Creates the implementation for the operating system that the program runs on.
    static std::unique_ptr<Desktop> ofThisSystem();

    /// True if the program is the active application.
    virtual bool isApplicationActive() const = 0;
    /// True if the desktop requests a dark appearance.
    virtual bool prefersDark() const = 0;
    /// True if the desktop requests reduced motion.
    virtual bool prefersReducedMotion() const = 0;
    /// Gives the native parts of the windows, such as title bars and menus, the appearance that the user has chosen.
    /// Does nothing where the window manager draws them and no setting of the program reaches it, as on Linux.
    virtual void applyAppearance(AppearanceMode /*mode*/) {}
    /// Opens the address in the default browser.
    virtual void open(const QUrl &address) = 0;
    /// Replaces the contents of the clipboard with a plain text.
    virtual void copyText(const QString &text) = 0;
    /// The local files on the clipboard, in the order of the clipboard.
    virtual QList<QUrl> pastedFiles() const = 0;
    /// The picture on the clipboard; null if there is none.
    virtual QImage pastedImage() const = 0;

Q_SIGNALS:
    /// The value of `prefersDark` or of `prefersReducedMotion` has changed.
    void appearanceChanged();
};
