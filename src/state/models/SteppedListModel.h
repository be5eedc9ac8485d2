#pragma once

#include "state/models/KeyedListModel.h"

#include <QElapsedTimer>
#include <QSet>
#include <QTimer>

#include <algorithm>

/// A list model for rows whose delegates take one or two milliseconds to create. It takes a complete list, contains the
/// first new rows of it at once, and adds the others in steps while nothing else happens.
template <KeyedRow Row>
class SteppedListModel : public KeyedListModel<Row>
{
public:
    /// `firstStep` is the number of new rows that are added at once. It should fill most windows.
    explicit SteppedListModel(qsizetype firstStep, QObject *parent = nullptr)
        : KeyedListModel<Row>(parent), m_firstStep(firstStep)
    {
        m_idle.setSingleShot(true);
        m_idle.setInterval(0);
        QObject::connect(&m_idle, &QTimer::timeout, this, [this] { addMore(); });
    }

    /// Replaces the list. Up to the first new row that has to wait, the model contains it when this returns.
    void setRows(const QList<Row> &rows)
    {
        m_all = rows;
        QSet<QStringView> present;
        for (const auto &row : this->rows())
            present.insert(keyOfRow(row));
        qsizetype count = 0;
        for (qsizetype fresh = 0; count < m_all.size(); ++count) {
            if (!present.contains(keyOfRow(m_all.at(count))) && ++fresh > m_firstStep)
                break;
        }
        showUpTo(count);
    }

    /// Adds all rows that have to wait.
    void complete()
    {
        if (!isComplete())
            showUpTo(m_all.size());
    }

    /// The model contains all rows.
    bool isComplete() const { return this->rows().size() == m_all.size(); }
    /// The rows of the complete list.
    const QList<Row> &allRows() const { return m_all; }

private:
    /// How many rows are added before the time is looked at, and the milliseconds that are spent at a time.
    static constexpr qsizetype someRows = 2;
    static constexpr qint64 slice = 6;

    using KeyedListModel<Row>::update;

    void showUpTo(qsizetype count)
    {
        update(m_all.first(std::min(count, m_all.size())));
        if (isComplete())
            m_idle.stop();
        else
            m_idle.start();
    }

    void addMore()
    {
        QElapsedTimer spent;
        spent.start();
        do
            showUpTo(this->rows().size() + someRows);
        while (!isComplete() && spent.elapsed() < slice);
    }

    qsizetype m_firstStep;
    QList<Row> m_all;
    QTimer m_idle;
};
