#pragma once

#include "platform/Desktop.h"

#include <QStringList>

/// A desktop that a test sets, and that keeps what the program gave it.
class FakeDesktop final : public Desktop
{
public:
    bool isActive = true;
    /// Every address given to the browser and every text given to the pasteboard, in order.
    QList<QUrl> opened;
    QStringList copied;
    /// What is on the pasteboard beside texts.
    QList<QUrl> files;
    QImage image;

    void setPrefersDark(bool dark)
    {
        m_prefersDark = dark;
        Q_EMIT appearanceChanged();
    }
    void setPrefersReducedMotion(bool reduced)
    {
        m_prefersReducedMotion = reduced;
        Q_EMIT appearanceChanged();
    }

    bool isApplicationActive() const override { return isActive; }
    bool prefersDark() const override { return m_prefersDark; }
    bool prefersReducedMotion() const override { return m_prefersReducedMotion; }
    void open(const QUrl &address) override { opened += address; }
    void copyText(const QString &text) override { copied += text; }
    QList<QUrl> pastedFiles() const override { return files; }
    QImage pastedImage() const override { return image; }

private:
    bool m_prefersDark = false;
    bool m_prefersReducedMotion = false;
};
