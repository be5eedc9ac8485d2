#pragma once

#include "platform/Preferences.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

/// Shortcuts of the whole desktop, which reach the program while another one has the keyboard. The user chooses their keys in
/// a dialog of the desktop. UI thread only.
class DesktopShortcuts : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isPresent READ isPresent NOTIFY changed FINAL)
    Q_PROPERTY(QString newIssueKeys READ newIssueKeys NOTIFY changed FINAL)
    Q_PROPERTY(QString paletteKeys READ paletteKeys NOTIFY changed FINAL)

public:
    // The ids of the shortcuts. The actions of the desktop file have the same ones.
    static constexpr QStringView NewIssue = u"new-issue";
    static constexpr QStringView Palette = u"palette";

    /// Creates the implementation for the operating system that the program runs on; null if there is none. The preferences
    /// must outlive it. They remember that shortcuts were bound, so that they are bound again at the next start. The desktop
    /// decides whether it shows them to the user then.
    static std::unique_ptr<DesktopShortcuts> ofThisSystem(Preferences &preferences);

    /// True if the desktop has such shortcuts. On Linux it is false until the desktop has responded.
    virtual bool isPresent() const = 0;
    /// The keys of a shortcut in the desktop's words; empty while it is not bound, and where the desktop does not tell them.
    virtual QString keys(QStringView id) const = 0;
    /// Lets the desktop show its dialog. Without an effect while `isPresent` is false.
    Q_INVOKABLE virtual void choose() = 0;

    QString newIssueKeys() const { return keys(NewIssue); }
    QString paletteKeys() const { return keys(Palette); }

Q_SIGNALS:
    void changed();
    /// The user has pressed the shortcut with this id, one of those above. The activation token of Wayland may be empty.
    void activated(const QString &id, const QByteArray &activationToken);
};
