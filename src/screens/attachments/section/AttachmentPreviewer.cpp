#include "screens/attachments/section/AttachmentPreviewer.h"

#include "async/Settled.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"
#include "model/text/VisibleText.h"
#include "platform/Wording.h"
#include "platform/files/StoredCopy.h"
#include "screens/attachments/preview/PreviewPlace.h"
#include "screens/attachments/section/FileFetches.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyleHints>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

std::chrono::milliseconds doubleClickTime()
{
    return std::chrono::milliseconds(QGuiApplication::styleHints()->mouseDoubleClickInterval());
}

/// The maximum length of a proposed name in UTF-8. Common file systems allow 255 bytes.
constexpr qsizetype MaximumBytes = 200;
/// The maximum length of an extension, including its dot.
constexpr qsizetype MaximumEnding = 20;

QString shortened(QString name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const bool hasEnding = dot > 0 && name.size() - dot <= MaximumEnding;
    const QString ending = hasEnding ? name.sliced(dot) : QString();
    name.chop(ending.size());
    while ((name + ending).toUtf8().size() > MaximumBytes)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return name + ending;
}

/// The name that a save dialog proposes: one that a file system accepts, that hides nothing, and that cannot lead into
/// another folder.
QString proposedName(const QString &filename)
{
    const QString name = shortened(withoutInvisible(filename.section(u'/', -1)));
    return name.isEmpty() || name == "."_L1 || name == ".."_L1 ? u"fichier"_s : name;
}

} // namespace

void AttachmentPreviewer::setStore(AppStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    Q_EMIT storeChanged();
}

void AttachmentPreviewer::setKey(const QString &key)
{
    if (m_key == key)
        return;
    m_key = key;
    m_clickTimer.reset();
    Q_EMIT keyChanged();
    close();
}

void AttachmentPreviewer::setFiles(const QList<AttachmentFile> &files)
{
    if (m_files == files)
        return;
    m_files = files;
    Q_EMIT filesChanged();
}

QString AttachmentPreviewer::revealTitle() const
{
    return Wording::localized(u"Afficher dans le Finder"_s);
}

FileTools AttachmentPreviewer::tools()
{
    if (!m_tools.dialogs || !m_tools.manager)
        m_tools = FileTools::ofThisSystem();
    return m_tools;
}

void AttachmentPreviewer::click(const AttachmentFile &file)
{
    if (m_clickTimer && m_clicked.id() == file.id()) {
        m_clickTimer.reset();
        open(file);
        return;
    }
    if (!m_store)
        return;
    m_clicked = file;
    m_clickTimer = m_store->clock().after(doubleClickTime(), [this] {
        // The timer is destroyed only after this call, and `m_clicked` may be replaced.
        const AttachmentFile clicked = m_clicked;
        m_clickTimer.reset();
        preview(clicked);
    });
}

void AttachmentPreviewer::preview(const AttachmentFile &file)
{
    m_wantedID = file.id();
    begin(file, Purpose::Preview);
}

void AttachmentPreviewer::open(const AttachmentFile &file)
{
    begin(file, Purpose::Open);
}

void AttachmentPreviewer::reveal(const AttachmentFile &file)
{
    begin(file, Purpose::Reveal);
}

void AttachmentPreviewer::save(const AttachmentFile &file)
{
    begin(file, Purpose::Save);
}

void AttachmentPreviewer::begin(const AttachmentFile &file, Purpose purpose)
{
    if (m_store)
        spawn(run(file, purpose));
}

QCoro::Task<> AttachmentPreviewer::run(AttachmentFile file, Purpose purpose)
{
    const auto local = co_await fetched(file.attachment);
    if (!local)
        co_return;
    switch (purpose) {
    case Purpose::Preview:
        show({*local, file});
        break;
    case Purpose::Open:
        m_store->openAddress(*local);
        break;
    case Purpose::Reveal:
        tools().manager->reveal(*local);
        break;
    case Purpose::Save:
        co_await saveAs(file, *local);
        break;
    }
}

QCoro::Task<std::optional<QUrl>> AttachmentPreviewer::fetched(Attachment attachment)
{
    setLoadingID(attachment.id);
    const auto local = co_await whileAlive(this, FileFetches::of(*m_store).file(attachment));
    setLoadingID({});
    co_return m_store ? local : std::nullopt;
}

QCoro::Task<> AttachmentPreviewer::saveAs(AttachmentFile file, QUrl local)
{
    const auto dialogs = tools().dialogs;
    const QString name = proposedName(file.attachment.filename);
    const auto place = co_await whileAlive(
        this, dialogs->placeToSave(u"Enregistrer la pièce jointe"_s, name, m_window.data()));
    if (!place || !m_store)
        co_return;
    const auto saved = co_await whileAlive(this, settled(nullptr, storeCopy(local, *place)));
    if (!m_store)
        co_return;
    if (saved)
        m_store->toast(u"« "_s + file.name() + u" » enregistré"_s, u"arrow.down.circle.fill"_s);
    else if (!saved.error().isCancellation)
        m_store->toast(saved.error().message, u"exclamationmark.triangle.fill"_s, ToastKind::Error);
}

QRect AttachmentPreviewer::placeOfPreview(QSize wanted) const
{
    const QScreen *screen = m_window ? m_window->screen() : QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    return previewPlace(wanted, m_window ? m_window->geometry() : room, room);
}

void AttachmentPreviewer::close()
{
    m_wantedID.clear();
    show({});
}

void AttachmentPreviewer::step(int by)
{
    const QString &present = m_wantedID.isEmpty() ? file().id() : m_wantedID;
    const auto at = std::ranges::find(m_files, present, &AttachmentFile::id);
    const qsizetype next = at - m_files.begin() + by;
    if (at != m_files.end() && next >= 0 && next < m_files.size())
        preview(m_files.at(next));
}

void AttachmentPreviewer::show(const PreviewedFile &shown)
{
    // The user has gone on to another file, or has closed the preview, while this one was being fetched.
    if (shown.file.id() != m_wantedID || m_shown == shown)
        return;
    m_shown = shown;
    Q_EMIT urlChanged();
}

void AttachmentPreviewer::setLoadingID(const QString &id)
{
    if (std::exchange(m_loadingID, id) != id)
        Q_EMIT loadingIDChanged();
}
