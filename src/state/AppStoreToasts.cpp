#include "commands/AppearanceWords.h"
#include "state/AppStore.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds ErrorStay = 5000ms;
constexpr std::chrono::milliseconds NoticeStay = 2400ms;

AppearanceMode following(AppearanceMode mode)
{
    switch (mode) {
    case AppearanceMode::System:
        return AppearanceMode::Light;
    case AppearanceMode::Light:
        return AppearanceMode::Dark;
    case AppearanceMode::Dark:
        return AppearanceMode::System;
    }
    Q_UNREACHABLE();
}

} // namespace

void AppStore::toast(const QString &message, const QString &symbol, ToastKind kind)
{
    const QUuid id = QUuid::createUuid();
    m_toasts.set(*m_toasts + QList{Toast{id, message, symbol, kind}});
    const auto stay = kind == ToastKind::Error ? ErrorStay : NoticeStay;
    m_toastTimers[id] = m_context.clock.after(stay, [this, id] { dismissToast(id); });
}

void AppStore::dismissToast(const QUuid &id)
{
    // A copy, because the argument may belong to the toast or the timer that is removed here.
    const QUuid gone = id;
    m_toastTimers.erase(gone);
    QList<Toast> left = *m_toasts;
    left.removeIf([&](const Toast &toast) { return toast.id == gone; });
    m_toasts.set(left);
}

void AppStore::report(const TaskFailure &failure)
{
    if (!failure.isCancellation)
        toast(failure.message, u"exclamationmark.triangle.fill"_s, ToastKind::Error);
}

void AppStore::reportRefusal(const TaskFailure &failure)
{
    report(failure);
    if (!failure.isCancellation)
        Q_EMIT writeRefused(failure.message);
}

void AppStore::cycleAppearance()
{
    setAppearance(following(*m_appearance));
    toast(u"Apparence : "_s + appearanceLabel(*m_appearance), appearanceSymbol(*m_appearance));
}
