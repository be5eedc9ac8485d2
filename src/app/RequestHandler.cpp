#include "app/RequestHandler.h"

#include "desktop/Requests.h"
#include "screens/kit/layers/WindowLayers.h"

#include <utility>

namespace {

std::optional<Command> actionOf(const QByteArray &request)
{
    if (request == Requests::NewIssue)
        return Command::NewIssue;
    if (request == Requests::Palette)
        return Command::TogglePalette;
    if (request == Requests::Refresh)
        return Command::Reload;
    return std::nullopt;
}

/// The window shows a sheet that the user must complete before anything else.
bool hasRequiredSheet(QQuickWindow *window)
{
    const auto *top = window ? WindowLayers::of(*window).top() : nullptr;
    return top && top->kind() == Layer::Kind::Required;
}

} // namespace

RequestHandler::RequestHandler(AppStore &store, Scenes &scenes)
    : m_store(store), m_scenes(scenes), m_opener(store, scenes)
{
    connect(&m_store, &AppStore::phaseChanged, this, &RequestHandler::startWaiting);
}

void RequestHandler::carryOut(const Activation &activation, const QByteArray &request)
{
    activation.use();
    const auto action = actionOf(request);
    if (!action && !request.isEmpty())
        return m_opener.open(QString::fromUtf8(request));
    // The window is shown first, because what an action opens is part of it.
    m_scenes.showMain();
    m_waiting = action;
    startWaiting();
}

void RequestHandler::carryOutShortcut(const QString &id, const QByteArray &activationToken)
{
    carryOut(Activation::of(activationToken, {}), Requests::ofAction(id));
}

void RequestHandler::startWaiting()
{
    if (m_store.phase() != AppStore::Phase::Ready)
        return;
    if (const auto action = std::exchange(m_waiting, std::nullopt))
        start(*action);
}

/// A sheet stays in front as it is, above all an issue that is being written. The palette is opened, never closed.
void RequestHandler::start(Command action)
{
    const bool isHeld = m_store.isCreating() || hasRequiredSheet(m_scenes.mainWindow());
    if (isHeld && action != Command::Reload)
        return;
    if (action == Command::TogglePalette)
        return m_store.setPalette(PaletteMode::root());
    if (action == Command::NewIssue)
        m_store.closePalette();
    m_store.run(action);
}
