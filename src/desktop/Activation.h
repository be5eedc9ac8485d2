#pragma once

#include <QByteArray>
#include <QMetaType>

/// What proves to the desktop that a user's press asks for a window, so that the window may come to the front.
struct Activation
{
    /// A token or an id with more bytes is left out.
    static constexpr qsizetype LongestText = 1024;

    /// The activation token of Wayland; may be empty.
    QByteArray token;
    /// The startup id of X11, which ends with "_TIME" and the time of the press; may be empty.
    QByteArray startupId;

    /// What the program that started this process has passed to it. Call it before the application object exists, which
    /// removes the variables.
    static Activation ofEnvironment();
    /// An activation with the texts that are not too long.
    static Activation of(const QByteArray &token, const QByteArray &startupId);
    /// The activation by a press at an X11 time in milliseconds; empty for 0, which means an unknown time.
    static Activation atTime(quint32 time);

    /// The X11 time in the startup id; 0 if it has none.
    quint32 time() const;
    /// Lets the next window that is brought forward use it.
    void use() const;

    bool operator==(const Activation &) const = default;
};
Q_DECLARE_METATYPE(Activation)
