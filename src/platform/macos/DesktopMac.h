#pragma once

#include "platform/Desktop.h"

#include <memory>

/// The implementation for macOS. Use it on the UI thread only, after the application object was created.
class DesktopMac final : public Desktop
{
    Q_OBJECT

public:
    explicit DesktopMac(QObject *parent = nullptr);
    ~DesktopMac() override;

    bool isApplicationActive() const override;
    bool prefersDark() const override;
    bool prefersReducedMotion() const override;
    void applyAppearance(AppearanceMode mode) override;
    void open(const QUrl &address) override;
    void copyText(const QString &text) override;
    QList<QUrl> pastedFiles() const override;
    QImage pastedImage() const override;

private:
    class Observers;
    std::unique_ptr<Observers> m_observers;
};
