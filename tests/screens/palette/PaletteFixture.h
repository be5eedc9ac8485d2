#pragma once

#include "screens/palette/CommandPalette.h"
#include "state/AppStoreFixture.h"

#include <QMouseEvent>

/// A palette with a store that has a session, without a window.
class PaletteFixture : public AppStoreFixture
{
protected:
    PaletteFixture()
    {
        startSession();
        palette.setStore(store.get());
    }

    void openRoot() { store->setPalette(PaletteMode::root()); }
    void openPicker(PickerKind kind, const QStringList &keys)
    {
        store->setPalette(PaletteMode::picker(kind, keys));
    }
    bool press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {})
    {
        return palette.handle(KeyPress::make(key, 0, text, modifiers));
    }

    void movePointer(QPointF place)
    {
        palette.observe(QMouseEvent(QEvent::MouseMove, place, place, Qt::NoButton, {}, {}));
    }

    QStringList titles()
    {
        QStringList list;
        for (const auto &row : palette.rows())
            list += row.option.title;
        return list;
    }
    QStringList sectionTitles()
    {
        QStringList list;
        for (const auto &row : palette.rows()) {
            if (!row.sectionTitle.isEmpty())
                list += row.sectionTitle;
        }
        return list;
    }
    QStringList ids()
    {
        QStringList list;
        for (const auto &row : palette.rows())
            list += row.option.id;
        return list;
    }
    int rowOf(const QString &id) { return int(ids().indexOf(id)); }
    void activate(const QString &id) { palette.activate(rowOf(id)); }
    Issue known(const QString &key) { return *store->issue(key).value_or(SharedIssue()); }

    CommandPalette palette;
};
