#include "state/AppStore.h"

using namespace Qt::StringLiterals;

void AppStore::copy(const QString &text, const QString &label)
{
    copy(CopiedText{text, label});
}

void AppStore::copy(const CopiedText &copied)
{
    m_context.desktop.copyText(copied.text);
    toast(copied.toastMessage(), u"doc.on.doc.fill"_s);
}

void AppStore::copyKeys(const TargetKeys &keys)
{
    if (const auto copied = copiedKeys(keys ? *keys : actionTargets()))
        copy(*copied);
}

void AppStore::copyBranch(const std::optional<QString> &key)
{
    const auto target = targetOr(key);
    if (const auto known = target ? issue(*target) : std::nullopt)
        copy((*known)->branchName(), u"Nom de branche"_s);
}

void AppStore::copyLink(const std::optional<QString> &key)
{
    if (const auto address = browseURL(key))
        copy(address->toString(QUrl::FullyEncoded), u"Lien"_s);
}

void AppStore::openInBrowser(const std::optional<QString> &key)
{
    if (const auto address = browseURL(key))
        m_context.desktop.open(*address);
}

void AppStore::openSite()
{
    if (*m_session)
        m_context.desktop.open(QUrl(u"https://"_s + siteName()));
}

std::optional<QString> AppStore::targetOr(const std::optional<QString> &key) const
{
    const QStringList targets = key ? QStringList{*key} : actionTargets();
    return targets.isEmpty() ? std::nullopt : std::optional(targets.front());
}

std::optional<QUrl> AppStore::browseURL(const std::optional<QString> &key) const
{
    const auto target = targetOr(key);
    return target && *m_session ? (*m_session)->service()->browseURL(*target) : std::nullopt;
}

void AppStore::openAddress(const QUrl &address)
{
    m_context.desktop.open(address);
}
