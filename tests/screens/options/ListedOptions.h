#pragma once

#include "screens/options/OptionSource.h"

/// An option source with the items that a test sets. It records which items were run and created.
class ListedOptions : public OptionSource
{
public:
    QList<OptionItem> items() const override { return m_items; }
    void run(const OptionItem &item) override { ran += item.title; }
    bool canCreate() const override { return creates; }
    QString createLabel(const QString &candidate) const override
    {
        return QStringLiteral("Créer ") + candidate;
    }
    void create(const QString &text) override
    {
        created += text;
        set(m_items + QList{OptionItem{.id = text, .title = text}});
    }

    void set(const QList<OptionItem> &items)
    {
        m_items = items;
        Q_EMIT itemsChanged();
    }

    bool creates = false;
    QStringList ran;
    QStringList created;

private:
    QList<OptionItem> m_items;
};
