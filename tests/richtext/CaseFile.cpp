#include "richtext/CaseFile.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString spelledOut(QString text)
{
    return text.replace(u'⍽', u'\u00A0')
        .replace(u'␠', u' ')
        .replace(u'␉', u'\t')
        .replace(u'␍', u'\r')
        .replace(u'␀', QChar(u'\0'));
}

/// The part of a case that the current line belongs to.
struct Reader
{
    QList<Case> cases;
    QStringList lines;
    QString file;

    void endInput()
    {
        cases.last().input = spelledOut(lines.join(u'\n'));
        lines.clear();
    }
    void endCase()
    {
        while (!lines.isEmpty() && lines.last().isEmpty())
            lines.removeLast();
        if (!cases.isEmpty())
            cases.last().expected = spelledOut(lines.join(u'\n'));
        lines.clear();
    }
    void read(const QString &line)
    {
        if (line == u"--->") {
            endInput();
        } else if (line.startsWith("=== "_L1)) {
            endCase();
            cases.append(Case{file, line.sliced(4), {}, {}});
        } else {
            lines.append(line);
        }
    }
};

} // namespace

QList<Case> casesOf(const QString &path)
{
    QFile file(projectFile(u"tests/cases/"_s + path));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no case file %s", qPrintable(file.fileName()));
    Reader reader;
    reader.file = QFileInfo(path).completeBaseName();
    QString text = QString::fromUtf8(file.readAll());
    for (const QString &line : text.split(u'\n'))
        reader.read(line);
    reader.endCase();
    return reader.cases;
}

QList<Case> casesIn(const QString &folder, const QString &prefix)
{
    const QDir directory(projectFile(u"tests/cases/"_s + folder));
    QList<Case> cases;
    for (const QString &name : directory.entryList({prefix + u"*.txt"_s}, QDir::Files, QDir::Name))
        cases += casesOf(folder + u'/' + name);
    return cases;
}

void PrintTo(const Case &value, std::ostream *stream)
{
    *stream << value.file.toStdString() << ": " << value.name.toStdString();
}

std::string testName(const Case &value)
{
    QString name = value.file + u'_' + value.name;
    for (QChar &character : name) {
        if (character.unicode() > 127 || !character.isLetterOrNumber())
            character = u'_';
    }
    return name.toStdString();
}
