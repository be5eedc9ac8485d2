#include "screens/attachments/section/FileImport.h"

#include "async/Settled.h"
#include "async/Spawn.h"
#include "async/WhileAlive.h"

using namespace Qt::StringLiterals;

void FileImport::choose()
{
    if (!m_isImporting)
        spawn(run(m_key));
}

QCoro::Task<> FileImport::run(QString key)
{
    const auto dialogs = (m_tools.dialogs ? m_tools : FileTools::ofThisSystem()).dialogs;
    setImporting(true);
    const auto files = co_await whileAlive(
        this, settled(nullptr, dialogs->filesToOpen(u"Joindre des fichiers"_s, m_window.data())));
    setImporting(false);
    if (files && !files->isEmpty())
        Q_EMIT chosen(key, *files);
}

void FileImport::setImporting(bool importing)
{
    if (std::exchange(m_isImporting, importing) != importing)
        Q_EMIT importingChanged();
}
