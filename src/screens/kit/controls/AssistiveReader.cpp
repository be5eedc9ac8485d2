#include "screens/kit/controls/AssistiveReader.h"

#include <QCoreApplication>

#include <optional>

namespace {

/// Remembers what observers were told since the start of the application, before any engine exists.
class ReaderPresence : public QAccessible::ActivationObserver
{
public:
    bool isPresent() const { return m_observed.value_or(QAccessible::isActive()); }

private:
    void accessibilityActiveChanged(bool active) override { m_observed = active; }

    std::optional<bool> m_observed;
};

ReaderPresence &presence()
{
    static ReaderPresence shared;
    return shared;
}

void observeReaders()
{
    QAccessible::installActivationObserver(&presence());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(observeReaders)

AssistiveReader::AssistiveReader(QObject *parent) : QObject(parent)
{
    QAccessible::installActivationObserver(this);
}

AssistiveReader::~AssistiveReader()
{
    QAccessible::removeActivationObserver(this);
}

bool AssistiveReader::isPresent()
{
    return presence().isPresent();
}

void AssistiveReader::accessibilityActiveChanged(bool /*active*/)
{
    Q_EMIT isPresentChanged();
}
