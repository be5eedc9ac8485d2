#pragma once

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

/// A copy of a model that is updated only through the model's signals. After each signal that inserts, removes or moves
/// rows it is compared with the model. It counts signals, and the test fails if the model resets.
class ShadowList : public QObject
{
public:
    ShadowList(QAbstractItemModel &model, int role)
        : m_model(model),
          m_role(role),
          m_tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        insert(0, model.rowCount() - 1);
        connect(&model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex &, int first, int last) {
                    insert(first, last);
                    compare();
                });
        connect(&model, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex &, int first, int last) {
                    m_values.remove(first, last - first + 1);
                    ++structural;
                    compare();
                });
        connect(&model, &QAbstractItemModel::rowsMoved, this,
                [this](const QModelIndex &, int first, int last, const QModelIndex &, int to) {
                    move(first, last, to);
                });
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex &from, const QModelIndex &to) {
                    ++changes;
                    for (int row = from.row(); row <= to.row(); ++row)
                        changedRows.append(row);
                });
        connect(&model, &QAbstractItemModel::modelReset, this,
                [] { ADD_FAILURE() << "the model was reset"; });
    }

    int structural = 0;
    int moves = 0;
    int changes = 0;
    QList<int> changedRows;

    void forget()
    {
        structural = moves = changes = 0;
        changedRows.clear();
    }

    void compare() const
    {
        ASSERT_EQ(m_values.size(), m_model.rowCount());
        for (int row = 0; row < m_model.rowCount(); ++row)
            ASSERT_EQ(m_values[row], m_model.index(row, 0).data(m_role)) << row;
    }

private:
    void insert(int first, int last)
    {
        for (int row = first; row <= last; ++row)
            m_values.insert(row, m_model.index(row, 0).data(m_role));
        ++structural;
    }

    void move(int first, int last, int to)
    {
        const auto block = m_values.sliced(first, last - first + 1);
        m_values.remove(first, block.size());
        const auto place = to > first ? to - block.size() : to;
        for (qsizetype at = 0; at < block.size(); ++at)
            m_values.insert(place + at, block[at]);
        ++structural;
        ++moves;
        compare();
    }

    QAbstractItemModel &m_model;
    int m_role;
    QAbstractItemModelTester m_tester;
    QVariantList m_values;
};
