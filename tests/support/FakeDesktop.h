#pragma once

#include "platform/Desktop.h"

#include <QStringList>

#include <optional>

/// A desktop whose settings a test chooses, and that records what the program passes to it.
class FakeDesktop final : public Desktop
{
public:
    bool isActive = true;
    /// All addresses opened in the browser and all texts copied to the clipboard, in order.
    QList<QUrl> opened;
    QStringList copied;
    /// The contents of the clipboard other than text.
    QList<QUrl> files;
    QImage image;

    /// The appearance of the native parts; nothing until the program has applied one.
    std::optional<AppearanceMode> nativeAppearance;

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
    void applyAppearance(AppearanceMode mode) override { nativeAppearance = mode; }
    void open(const QUrl &address) override { opened += address; }
    void copyText(const QString &text) override { copied += text; }
    QList<QUrl> pastedFiles() const override { return files; }
    QImage pastedImage() const override { return image; }

private:
    bool m_prefersDark = false;
    bool m_prefersReducedMotion = false;
};
