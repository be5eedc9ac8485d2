#include "state/Hints.h"

#include "app/WindowFixture.h"
#include "commands/CommandTable.h"
#include "commands/KeyRouting.h"
#include "platform/Wording.h"

#include <QQuickItem>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

void collect(const QQuickItem *item, QStringList &hints)
{
    const QString hint = item->property("hint").toString();
    if (!hint.isEmpty() && item->isVisible())
        hints.append(hint);
    for (const auto *child : item->childItems())
        collect(child, hints);
}

/// The texts in brackets. They are keys, because hints use brackets for nothing else.
QStringList keysIn(const QString &hint)
{
    static const QRegularExpression brackets(u"\\(([^)]+)\\)"_s);
    QStringList keys;
    for (const auto &match : brackets.globalMatch(hint))
        keys.append(match.captured(1));
    return keys;
}

/// The text of every key in the tables, with the key names of this platform.
QStringList keysOfTheTables()
{
    QStringList keys;
    for (const KeyBinding &binding : keyBindings())
        keys += keyTexts(binding.command);
    for (const ShortcutKey &key : shortcutKeys())
        keys += shortcutText(key);
    for (QString &key : keys)
        key = Wording::localized(key);
    return keys;
}

} // namespace

class HintsInTheWindow : public WindowFixture
{
protected:
    QStringList hintsShown()
    {
        QStringList hints;
        collect(window().contentItem(), hints);
        return hints;
    }
};

TEST_F(HintsInTheWindow, TheKeysThatTheyTellAreThoseOfTheTables)
{
    serve({u"MOB-1"_s, u"MOB-2"_s});
    openOnDemo();
    press(Qt::Key_Down);
    press(Qt::Key_X);
    await(QAccessible::ToolBar, u"1 sélectionné"_s);
    const QStringList hints = hintsShown();
    const QStringList known = keysOfTheTables();
    for (const QString &hint : hints) {
        for (const QString &key : keysIn(hint))
            EXPECT_TRUE(known.contains(key)) << hint.toStdString();
    }
    for (const QString &hint :
         {Hints::search(), Hints::newIssue(), Hints::reload(), Hints::layout(), Hints::deselect()})
        EXPECT_TRUE(hints.contains(hint)) << hint.toStdString();
}
