#include "app/IssueAddress.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const auto Scheme = u"velmora:"_s;

std::optional<QString> asKey(const QString &text)
{
    static const QRegularExpression key(u"\\A[A-Za-z][A-Za-z0-9_]*-[1-9][0-9]{0,9}\\z"_s);
    if (text.size() > IssueAddress::LongestKey || !key.match(text).hasMatch())
        return {};
    return text.toUpper();
}

} // namespace

std::optional<QString> IssueAddress::keyOf(const QString &address, const PageOf &pageOf)
{
    if (address.size() > LongestAddress)
        return {};
    if (address.startsWith(Scheme, Qt::CaseInsensitive))
        return asKey(address.sliced(Scheme.size()));
    const QUrl url(address, QUrl::StrictMode);
    const auto key = asKey(url.fileName(QUrl::FullyEncoded));
    const QUrl page = url.adjusted(QUrl::RemoveQuery | QUrl::RemoveFragment);
    return key && url.isValid() && pageOf(*key) == page ? key : std::nullopt;
}
