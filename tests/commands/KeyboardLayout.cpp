#include "commands/KeyboardLayout.h"

#include "support/TestFiles.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString decoded(const QString &cell)
{
    if (cell == u"-")
        return {};
    const char32_t point = cell.sliced(2).toUInt(nullptr, 16);
    return QString::fromUcs4(&point, 1);
}

/// Qt's names for keys that type no text or no printable text.
Qt::Key namedKey(const QString &symbol)
{
    static const QHash<QString, Qt::Key> names{
        {u"Return"_s, Qt::Key_Return},
        {u"KP_Enter"_s, Qt::Key_Enter},
        {u"Escape"_s, Qt::Key_Escape},
        {u"Up"_s, Qt::Key_Up},
        {u"Down"_s, Qt::Key_Down},
        {u"KP_Up"_s, Qt::Key_Up},
        {u"KP_Down"_s, Qt::Key_Down},
        {u"Tab"_s, Qt::Key_Tab},
        {u"ISO_Left_Tab"_s, Qt::Key_Backtab},
        {u"BackSpace"_s, Qt::Key_Backspace},
        {u"Delete"_s, Qt::Key_Delete},
    };
    return names.value(symbol, Qt::Key_unknown);
}

Qt::Key keyName(const QString &symbol, const QString &text)
{
    const Qt::Key name = namedKey(symbol);
    if (name != Qt::Key_unknown || text.isEmpty())
        return name;
    return Qt::Key(text.toUpper().toUcs4().front());
}

/// With Control, letters and the ASCII characters adjacent to them are reported as control characters.
QString reportedText(const QString &text, Qt::KeyboardModifiers modifiers)
{
    if (!modifiers.testFlag(Qt::ControlModifier) || text.isEmpty())
        return text;
    const ushort unit = text.front().unicode();
    return unit >= u'@' && unit < 0x7f ? QString(QChar(unit & 0x1f)) : text;
}

} // namespace

KeyboardLayout KeyboardLayout::load(const QString &name)
{
    QFile file(projectFile(u"tests/commands/layouts/%1.tsv"_s.arg(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    KeyboardLayout layout;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.sliced(1)) {
        const QStringList cells = line.split(u'\t');
        layout.m_keys.insert(cells[0].toUInt(),
                             {{cells[2], decoded(cells[3])}, {cells[4], decoded(cells[5])}});
    }
    return layout;
}

KeyPress KeyboardLayout::press(quint32 scanCode, Qt::KeyboardModifiers modifiers,
                               OwnCharacters own) const
{
    const Key &key = *m_keys.constFind(scanCode);
    const bool hasShiftedLevel =
        modifiers.testFlag(Qt::ShiftModifier) && key.shifted.symbol != u"-";
    const Level &level = hasShiftedLevel ? key.shifted : key.alone;
    return KeyPress::make(keyName(level.symbol, level.text), scanCode,
                          reportedText(level.text, modifiers), modifiers,
                          own == OwnCharacters::Known ? key.alone.text : QString());
}

quint32 KeyboardLayout::keyOf(const QString &text) const
{
    for (auto key = m_keys.cbegin(); key != m_keys.cend(); ++key) {
        if (key->alone.text == text)
            return key.key();
    }
    return 0;
}
