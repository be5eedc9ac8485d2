#include "screens/palette/CommandPalette.h"

#include "commands/CommandTable.h"
#include "commands/PickerWords.h"
#include "platform/Wording.h"
#include "state/AppCommands.h"
#include "state/palette/PaletteIssues.h"
#include "state/palette/PaletteTexts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Whether the palette of an issue's window has the row: an option of a picker, an issue, or a command of such windows.
bool isOfIssueWindows(const OptionItem &item)
{
    const auto *run = std::get_if<OptionAction::RunCommand>(&item.run.value);
    const bool isScope = std::holds_alternative<OptionAction::Select>(item.run.value);
    return run ? issueKeyOf(item) || ::isOfIssueWindows(run->command) : !isScope;
}

} // namespace

CommandPalette::CommandPalette(QObject *parent) : KeyHandler(parent)
{
    connect(&m_remote, &RemoteSearch::foundChanged, this, &CommandPalette::refresh);
    connect(&m_remote, &RemoteSearch::isSearchingChanged, this, [this] {
        Q_EMIT isSearchingChanged();
        Q_EMIT updated();
    });
    for (const auto change : {&CommandPalette::updated, &CommandPalette::highlightedChanged})
        connect(this, change, this, &CommandPalette::spokenStateChanged);
}

void CommandPalette::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store) {
        connectStore();
        followPalette();
    }
    Q_EMIT storeChanged();
}

void CommandPalette::connectStore()
{
    connect(m_store, &AppStore::paletteChanged, this, &CommandPalette::followPalette);
    for (const auto change : AppStore::optionSources)
        connect(m_store, change, this, &CommandPalette::refreshOptions);
    for (const auto change : {&AppStore::checkedChanged, &AppStore::focusedKeyChanged,
                              &AppStore::inspectorKeyChanged, &AppStore::projectsChanged})
        connect(m_store, change, this, &CommandPalette::refresh);
    for (const auto change : {&AppStore::layoutChanged, &AppStore::showCompletedChanged,
                              &AppStore::appearanceChanged, &AppStore::activityTeamWideChanged})
        connect(m_store, change, this, &CommandPalette::refresh);
}

void CommandPalette::setIssueKey(const QString &key)
{
    if (std::exchange(m_issueKey, key) == key)
        return;
    Q_EMIT issueKeyChanged();
    if (m_store)
        followPalette();
}

const std::optional<PaletteMode> &CommandPalette::mode() const
{
    return m_issueKey.isEmpty() ? m_store->palette() : m_ownMode;
}

void CommandPalette::setMode(const std::optional<PaletteMode> &mode)
{
    if (m_issueKey.isEmpty()) {
        m_store->setPalette(mode);
    } else if (m_ownMode != mode) {
        m_ownMode = mode;
        followPalette();
    }
}

void CommandPalette::request(Command command)
{
    if (const auto kind = pickerOf(command))
        setMode(PaletteMode::picker(*kind, {m_issueKey}));
    else
        setMode(m_ownMode ? std::nullopt : std::optional(PaletteMode::root()));
}

void CommandPalette::followPalette()
{
    if (const auto mode = this->mode())
        begin(*mode);
    else
        m_remote.clear();
    setIsOpen(mode().has_value());
}

void CommandPalette::begin(const PaletteMode &mode)
{
    // The result of a search that was started before the palette was reopened is discarded.
    if (!m_isOpen) {
        m_remote.reset();
        m_pointer.reset();
    }
    m_mode = mode;
    m_isPointing = false;
    m_sources.forgetOptions();
    m_remote.clear();
    if (!std::exchange(m_query, QString()).isEmpty())
        Q_EMIT queryChanged();
    setHighlighted(0);
    Q_EMIT modeChanged();
    listRows();
    Q_EMIT begun();
}

void CommandPalette::setIsOpen(bool open)
{
    if (std::exchange(m_isOpen, open) != open)
        Q_EMIT isOpenChanged();
}

void CommandPalette::listRows()
{
    if (!m_store || !mode())
        return;
    const auto *picker = m_mode.asPicker();
    m_capsules = keyCapsules(picker ? picker->keys : targets());
    m_rows = paletteRows(sections());
    Q_EMIT updated();
}

QStringList CommandPalette::targets() const
{
    return m_issueKey.isEmpty() ? m_store->actionTargets() : QStringList(m_issueKey);
}

QList<PaletteSection> CommandPalette::sections()
{
    auto sections = m_sources.sections(*m_store, {m_mode, targets()}, m_query, m_remote.found());
    if (m_issueKey.isEmpty())
        return sections;
    for (auto &section : sections)
        section.items.removeIf([](const OptionItem &item) { return !isOfIssueWindows(item); });
    sections.removeIf([](const PaletteSection &section) { return section.items.isEmpty(); });
    return sections;
}

void CommandPalette::refresh()
{
    const auto id = m_highlighted < rowCount() ? m_rows[m_highlighted].option.id : QString();
    listRows();
    const auto row =
        std::ranges::find(m_rows, id, [](const PaletteRow &each) { return each.option.id; });
    if (row != m_rows.end())
        setHighlighted(int(row - m_rows.begin()));
}

void CommandPalette::refreshOptions()
{
    m_sources.forgetOptions();
    refresh();
}

QString CommandPalette::title() const
{
    const auto *picker = m_mode.asPicker();
    return picker ? pickerTitle(picker->kind) : QString();
}

QString CommandPalette::placeholder() const
{
    return palettePlaceholder(m_mode);
}

QString CommandPalette::windowShortcut() const
{
    return Wording::localized(u"⌘↩"_s);
}

void CommandPalette::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    // Emitted only once the rows match the query, because both are announced together.
    const bool hasMoved = std::exchange(m_highlighted, 0) != 0;
    searchRemote();
    listRows();
    if (hasMoved)
        Q_EMIT highlightedChanged();
    Q_EMIT begun();
}

void CommandPalette::searchRemote()
{
    if (isPicker() || !m_isOpen)
        m_remote.clear();
    else
        m_remote.setText(*m_store, m_query);
}

void CommandPalette::setHighlighted(int row)
{
    if (std::exchange(m_highlighted, row) != row)
        Q_EMIT highlightedChanged();
}

void CommandPalette::point(int row)
{
    if (m_isPointing)
        setHighlighted(row);
}

QString CommandPalette::emptyText() const
{
    if (!m_rows.isEmpty())
        return {};
    return emptyPaletteText(isSearching() ? PaletteSearch::UnderWay : PaletteSearch::Done);
}

QString CommandPalette::spokenState() const
{
    if (m_rows.isEmpty())
        return emptyText();
    return spokenPaletteState(m_rows, m_highlighted);
}

void CommandPalette::activate(int row)
{
    if (!m_isOpen || row < 0 || row >= rowCount())
        return;
    // A copy, because carrying out the row changes the rows.
    const OptionItem option = m_rows[row].option;
    run(option);
    if (std::holds_alternative<OptionAction::AddLabel>(option.run.value))
        setQuery({});
    if (!option.keepsOpen)
        close();
}

void CommandPalette::run(const OptionItem &option)
{
    const auto *command = std::get_if<OptionAction::RunCommand>(&option.run.value);
    const bool isOwn = !m_issueKey.isEmpty() && command;
    if (const auto key = isOwn ? issueKeyOf(option) : std::nullopt)
        m_store->run(Command::OpenWindow, QStringList(*key));
    else if (isOwn && pickerOf(command->command))
        request(command->command);
    else
        m_store->run(option.run);
}

void CommandPalette::activateInWindow(int row)
{
    const bool isRow = m_isOpen && row >= 0 && row < rowCount();
    const auto key = isRow ? issueKeyOf(m_rows[row].option) : std::nullopt;
    if (!key)
        return activate(row);
    m_store->run(Command::OpenWindow, QStringList(*key));
    close();
}

void CommandPalette::close()
{
    if (m_isOpen)
        setMode(std::nullopt);
}

bool CommandPalette::takes(const QKeyEvent &press)
{
    // The field is the only item of the palette that takes the focus.
    const bool isTab = press.key() == Qt::Key_Tab || press.key() == Qt::Key_Backtab;
    return isTab || handle(KeyPress::from(press));
}

bool CommandPalette::repeats(const QKeyEvent &press) const
{
    return press.key() == Qt::Key_Down || press.key() == Qt::Key_Up;
}

void CommandPalette::observe(const QEvent &event)
{
    if (event.type() == QEvent::MouseMove)
        notePointer(static_cast<const QMouseEvent &>(event).globalPosition());
    else if (event.type() == QEvent::Wheel)
        m_isPointing = false;
}

void CommandPalette::notePointer(QPointF place)
{
    // Some systems also report a resting pointer when a window appears below it.
    const bool wasKnown = m_pointer.has_value();
    if (std::exchange(m_pointer, place) != place && wasKnown)
        m_isPointing = true;
}

bool CommandPalette::handle(const KeyPress &press)
{
    m_isPointing = false;
    const auto digits =
        isPicker() && m_query.isEmpty() ? PaletteDigits::PickRows : PaletteDigits::AreTyped;
    const auto key = m_isOpen ? paletteKey(press, digits) : std::nullopt;
    if (!key)
        return false;
    switch (key->kind) {
    case PaletteKey::Kind::Run:
        activate(m_highlighted);
        return true;
    case PaletteKey::Kind::RunInWindow:
        activateInWindow(m_highlighted);
        return true;
    case PaletteKey::Kind::Back:
        goBack();
        return true;
    case PaletteKey::Kind::Down:
        moveHighlight(1);
        return true;
    case PaletteKey::Kind::Up:
        moveHighlight(-1);
        return true;
    case PaletteKey::Kind::Digit:
        return activateDigit(key->digit);
    }
    return false;
}

void CommandPalette::moveHighlight(int delta)
{
    setHighlighted(delta > 0 ? std::min(m_highlighted + delta, std::max(rowCount() - 1, 0))
                             : std::max(m_highlighted + delta, 0));
}

void CommandPalette::goBack()
{
    if (!m_query.isEmpty())
        setQuery({});
    else if (isPicker())
        setMode(PaletteMode::root());
    else
        close();
}

bool CommandPalette::activateDigit(int digit)
{
    const auto row = std::ranges::find_if(
        m_rows, [digit](const PaletteRow &each) { return each.option.isPickedBy(digit); });
    if (row == m_rows.end())
        return false;
    activate(int(row - m_rows.begin()));
    return true;
}
