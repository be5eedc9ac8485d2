#include "model/TextFolding.h"
#include "screens/kit/overlays/MenuRows.h"

#include <QKeyEvent>

#include <algorithm>

bool MenuRows::take(const QKeyEvent &event)
{
    constexpr auto others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (event.modifiers() & others)
        return false;
    refresh();
    const bool isTaken = takeSteps(event.key()) || takeText(event);
    m_isKeyed = m_isKeyed || isTaken;
    return isTaken;
}

bool MenuRows::takeSteps(int key)
{
    const int now = current();
    const int last = int(m_rows.size()) - 1;
    const auto from = [&](int step) { return now >= 0 ? now + step : step > 0 ? 0 : last; };
    int next = -1;
    switch (key) {
    case Qt::Key_Up:
        next = choosableFrom(from(-1), -1);
        break;
    case Qt::Key_Down:
        next = choosableFrom(from(1), 1);
        break;
    case Qt::Key_Home:
        next = choosableFrom(0, 1);
        break;
    case Qt::Key_End:
        next = choosableFrom(last, -1);
        break;
    case Qt::Key_PageUp:
        next = now >= 0 ? onePageFrom(now, -1) : choosableFrom(0, 1);
        break;
    case Qt::Key_PageDown:
        next = now >= 0 ? onePageFrom(now, 1) : choosableFrom(0, 1);
        break;
    default:
        return false;
    }
    // At the first row, Up is left to the menu bar. Behind hidden rows the menu would highlight one of them.
    if (next < 0)
        return key != Qt::Key_Up || now > 0;
    goTo(next);
    return true;
}

bool MenuRows::takeText(const QKeyEvent &event)
{
    const QString text = event.text();
    if (text.isEmpty() || !text.front().isPrint())
        return false;
    const bool goesOn = !m_searched.isEmpty() && event.timestamp() - m_typedAt < searchPause;
    // Outside a search, Space chooses the highlighted entry.
    if (!goesOn && text.front().isSpace())
        return false;
    m_holdsSpace = text.front().isSpace();
    m_searched = goesOn ? m_searched + text : text;
    m_typedAt = event.timestamp();
    const int now = current();
    int next = found(m_searched, goesOn ? std::max(now, 0) : now + 1);
    // The same letter again goes to the next entry that begins with it.
    const bool isOneLetter = m_searched.count(text) * text.size() == m_searched.size();
    if (next < 0 && isOneLetter)
        next = found(text, now + 1);
    if (next >= 0)
        goTo(next);
    return true;
}

int MenuRows::found(const QString &words, int from) const
{
    const QString folded = foldedForSearch(words);
    const int count = int(m_rows.size());
    for (int i = 0; i < count; ++i) {
        const int index = (from + i) % count;
        if (canBeChosen(index) &&
            foldedForSearch(row(index)->property("text").toString()).startsWith(folded))
            return index;
    }
    return -1;
}
