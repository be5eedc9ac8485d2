#include "screens/attachments/preview/TextReading.h"

#include "model/text/VisibleText.h"
#include "screens/attachments/facts/ByteCount.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The part of a file in which a zero byte shows that it is no text.
constexpr qsizetype ProbedBytes = 8192;
constexpr int TabWidth = 4;

bool hasZeroByte(const QByteArray &bytes)
{
    return bytes.first(std::min(bytes.size(), ProbedBytes)).contains('\0');
}

QString decoded(const QByteArray &bytes)
{
    const auto marked = QStringConverter::encodingForData(bytes);
    if (marked)
        return QStringDecoder(*marked)(bytes);
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

QString shownLine(QString line, qsizetype most)
{
    const bool isCut = line.size() > most;
    line.truncate(most);
    line.replace(u'\t', QString(TabWidth, u' '));
    line = visibleText(line);
    return isCut ? line + u'…' : line;
}

QString noteFor(qint64 left, bool cutsLines, qsizetype most)
{
    QStringList parts;
    if (left > 0)
        parts += u"Seul le début du fichier est affiché : il reste "_s + byteCountText(left) + u'.';
    if (cutsLines) {
        const QLocale french(QLocale::French, QLocale::France);
        parts += u"Les lignes sont coupées après "_s + french.toString(most) + u" caractères."_s;
    }
    return parts.join(u' ');
}

TextExtract problem(const QString &text)
{
    return {.lines = {}, .note = {}, .problem = text};
}

} // namespace

TextExtract readText(const QString &path, const TextLimits &limits)
{
    QFile file(path);
    // A pipe or a device would block.
    if (!QFileInfo(path).isFile())
        return problem(u"Le fichier n'est plus là."_s);
    if (!file.open(QFile::ReadOnly))
        return problem(u"Le fichier n'a pas pu être lu."_s);
    const QByteArray bytes = file.read(limits.bytes);
    const auto marked = QStringConverter::encodingForData(bytes);
    if (!marked && hasZeroByte(bytes))
        return problem(u"Ce fichier n'est pas du texte."_s);

    const QString text = decoded(bytes);
    qint64 left = file.size() - bytes.size();
    bool cutsLines = false;
    TextExtract extract;
    qsizetype start = 0;
    while (start < text.size() && extract.lines.size() < limits.lines) {
        qsizetype end = text.indexOf(u'\n', start);
        if (end < 0)
            end = text.size();
        QStringView line = QStringView(text).sliced(start, end - start);
        if (line.endsWith(u'\r'))
            line.chop(1);
        cutsLines = cutsLines || line.size() > limits.line;
        extract.lines +=
            shownLine(line.first(std::min(line.size(), limits.line + 1)).toString(), limits.line);
        start = end + 1;
    }
    if (start < text.size())
        left += QStringView(text).sliced(start).toUtf8().size();
    extract.note = noteFor(left, cutsLines, limits.line);
    return extract;
}
