#include "model/text/LinkAddress.h"

#include "model/text/VisibleText.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestAddress = 400;

bool isControl(QChar character)
{
    return character.category() == QChar::Other_Control;
}

bool isWeb(const QUrl &address)
{
    return address.scheme() == "http"_L1 || address.scheme() == "https"_L1;
}

bool isMail(const QUrl &address)
{
    return address.scheme() == "mailto"_L1;
}

/// The host in a form in which equal hosts are equal.
QString comparable(const QString &host)
{
    QString result = QString::fromLatin1(QUrl::toAce(host));
    if (result.isEmpty())
        result = host;
    result = result.toLower();
    if (result.endsWith(u'.'))
        result.chop(1);
    return result.startsWith("www."_L1) ? result.sliced(4) : result;
}

/// Extensions of files that people name in texts. Some of them are also domains of countries or companies.
bool isFileExtension(const QString &label)
{
    static const QStringList extensions =
        u"7z apk avi bat bmp c cfg conf cpp cs css csv deb diff dmg doc docx exe gif go gz h hpp "
        u"htm html ics ini ipa "
        "iso java jpeg jpg js json jsx kt lock log m4a md mkv mov mp3 mp4 msi odp ods odt patch "
        "pdf php png pps ppt pptx "
        "ps1 py qml rar rb rpm rs rtf sh sql svg swift tar tgz tif tiff toml ts tsx txt vue wav "
        "webm webp xls xlsx xml "
        "yaml yml zip"_s.split(u' ');
    return extensions.contains(label);
}

bool isAddressV4(const QStringList &labels)
{
    const auto isByte = [](const QString &label) {
        bool isNumber = false;
        return label.toUInt(&isNumber) < 256 && isNumber;
    };
    return labels.size() == 4 && std::ranges::all_of(labels, isByte);
}

bool isLabel(const QString &label)
{
    const auto isAllowed = [](QChar c) {
        return c.isLetterOrNumber() || c.isMark() || c.isSurrogate() || c == u'-' || c == u'_';
    };
    return !label.isEmpty() && !label.startsWith(u'-') && !label.endsWith(u'-') &&
           std::ranges::all_of(label, isAllowed);
}

bool isTopLevel(const QString &label)
{
    const auto isNumber = [](QChar c) { return c.isNumber(); };
    return label.startsWith("xn--"_L1) ||
           (label.size() > 1 && std::ranges::none_of(label, isNumber));
}

/// A word of a text, with what surrounds a host in it removed.
struct Candidate
{
    QString host;
    /// True if the word has a scheme or a path, which names of files do not have.
    bool isAddress = false;
};

Candidate candidateIn(QString word)
{
    Candidate candidate;
    const qsizetype scheme = word.indexOf("://"_L1);
    if (scheme >= 0) {
        word.remove(0, scheme + 3);
        candidate.isAddress = true;
    }
    const auto endsHost = [](QChar c) { return QStringView(u"/?#\\").contains(c); };
    const auto end = std::ranges::find_if(word, endsHost);
    candidate.isAddress = candidate.isAddress || end != word.end();
    word.truncate(end - word.begin());
    word.remove(0, word.lastIndexOf(u'@') + 1);
    const qsizetype port = word.indexOf(u':');
    if (port >= 0)
        word.truncate(port);
    while (word.endsWith(u'.'))
        word.chop(1);
    candidate.isAddress = candidate.isAddress || word.startsWith("www."_L1);
    candidate.host = word;
    return candidate;
}

bool isHost(const Candidate &candidate)
{
    const QStringList labels = candidate.host.split(u'.');
    if (labels.size() < 2 || !std::ranges::all_of(labels, isLabel))
        return false;
    if (isAddressV4(labels))
        return true;
    return isTopLevel(labels.last()) && (candidate.isAddress || !isFileExtension(labels.last()));
}

/// The words of a text in which a host can stand, in the characters that it appears to consist of.
QStringList wordsOf(const QString &text)
{
    const QString plain = withoutInvisible(text)
                              .normalized(QString::NormalizationForm_KC)
                              .toLower()
                              .replace(u'。', u'.');
    QStringList words(1);
    for (const QChar character : plain) {
        if (character.isSpace() || QStringView(u"<>()[]{}\"'«»“”‘’,;|!").contains(character))
            words.append(QString());
        else
            words.last() += character;
    }
    return words;
}

QString rest(const QString &separator, const QString &part)
{
    return part.isEmpty() ? part : separator + part;
}

} // namespace

std::optional<QUrl> openableAddress(const QString &address)
{
    if (std::ranges::any_of(address, isControl))
        return std::nullopt;
    QUrl url(address.trimmed(), QUrl::TolerantMode);
    const bool isOpenable =
        (isWeb(url) && !url.host().isEmpty()) || (isMail(url) && !url.path().isEmpty());
    return url.isValid() && isOpenable ? std::optional(url) : std::nullopt;
}

QString hostOf(const QUrl &address)
{
    if (!isMail(address))
        return address.host(QUrl::FullyEncoded).toLower();
    const QString recipient = address.path(QUrl::FullyDecoded).section(u',', 0, 0);
    const qsizetype at = recipient.lastIndexOf(u'@');
    return at < 0 ? QString() : recipient.sliced(at + 1).trimmed().toLower();
}

std::optional<QString> otherHostNamed(const QString &text, const QUrl &address)
{
    const QString host = comparable(hostOf(address));
    for (const QString &word : wordsOf(text)) {
        const Candidate candidate = candidateIn(word);
        if (isHost(candidate) && comparable(candidate.host) != host)
            return candidate.host;
    }
    return std::nullopt;
}

QString shownAddress(const QString &address)
{
    QString shown = address.trimmed();
    if (const auto url = openableAddress(address)) {
        shown = url->scheme() + u':';
        if (isWeb(*url))
            shown += u"//"_s + url->authority(QUrl::FullyEncoded);
        shown += url->path(QUrl::PrettyDecoded) + rest(u"?"_s, url->query(QUrl::PrettyDecoded)) +
                 rest(u"#"_s, url->fragment(QUrl::PrettyDecoded));
    }
    if (shown.size() > longestAddress)
        shown = shown.first(longestAddress) + u'…';
    return visibleText(shown);
}

QString linkToolTip(const QString &text, const QString &address)
{
    QString shown = shownAddress(address);
    const auto url = openableAddress(address);
    if (!url)
        return u"Velmora n'ouvre pas cette adresse : "_s + shown;
    if (const auto named = otherHostNamed(text, *url))
        return u"Attention : le texte nomme «\u00A0"_s + visibleText(*named) +
               u"\u00A0», mais le lien mène à «\u00A0"_s + hostOf(*url) + u"\u00A0».\n"_s + shown;
    if (!url->userInfo().isEmpty())
        return u"Attention : le lien mène à «\u00A0"_s + hostOf(*url) + u"\u00A0».\n"_s + shown;
    return shown;
}
