#include "simulator/UploadForm.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView endOfHead = "\r\n\r\n";

/// Parses the headers and the contents of a part. The line break before the next boundary does not belong to it.
std::optional<UploadedFile> fileOf(const QByteArray &part)
{
    static const QRegularExpression disposition(
        u"^Content-Disposition: form-data; name=\"file\"; filename=\"([^\"]*)\"$"_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::MultilineOption);
    static const QRegularExpression type(u"^Content-Type: *(\\S+)"_s,
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::MultilineOption);
    const qsizetype end = part.indexOf(endOfHead);
    if (end < 0)
        return {};
    const QString head = QString::fromUtf8(part.first(end)).remove(u'\r').trimmed();
    const auto name = disposition.match(head);
    if (!name.hasMatch())
        return {};
    return UploadedFile{name.captured(1), type.match(head).captured(1),
                        part.sliced(end + endOfHead.size())};
}

} // namespace

std::optional<QList<UploadedFile>> filesOfForm(const QByteArray &contentType,
                                               const QByteArray &body)
{
    static constexpr QByteArrayView form = "multipart/form-data; boundary=";
    if (!contentType.startsWith(form))
        return {};
    const QByteArray line = "\r\n--" + contentType.sliced(form.size());
    const QByteArray all = "\r\n" + body;
    QList<UploadedFile> files;
    qsizetype begin = all.indexOf(line);
    while (begin >= 0) {
        const qsizetype end = all.indexOf(line, begin + line.size());
        if (end < 0)
            return all.sliced(begin) == line + "--\r\n" && !files.isEmpty() ? std::optional(files)
                                                                            : std::nullopt;
        const auto file = fileOf(all.sliced(begin + line.size(), end - begin - line.size()));
        if (!file)
            return {};
        files += *file;
        begin = end;
    }
    return {};
}
