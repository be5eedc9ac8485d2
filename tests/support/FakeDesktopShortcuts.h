#pragma once

#include "platform/shortcuts/DesktopShortcuts.h"

#include <QHash>

/// A desktop with or without shortcuts of its own, as a test chooses.
class FakeDesktopShortcuts final : public DesktopShortcuts
{
public:
    bool isPresent() const override { return m_isPresent; }
    QString keys(QStringView id) const override { return m_keys.value(id.toString()); }
    void choose() override { ++choices; }

    void setIsPresent(bool present)
    {
        m_isPresent = present;
        Q_EMIT changed();
    }
    void setKeys(QStringView id, const QString &keys)
    {
        m_keys[id.toString()] = keys;
        Q_EMIT changed();
    }

    /// How often the dialog was asked for.
    int choices = 0;

private:
    bool m_isPresent = false;
    QHash<QString, QString> m_keys;
};
