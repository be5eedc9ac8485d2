#pragma once

#include "derivation/KeyIndex.h"
#include "state/models/RowDiff.h"

#include <QAbstractListModel>
#include <QList>

#include <concepts>
#include <optional>
#include <vector>

/// A row of a `KeyedListModel`: a value with a text that tells it from all others of its list.
template <typename T>
concept KeyedRow = std::equality_comparable<T> && requires(const T &row) {
    { row.key } -> std::convertible_to<QString>;
};

/// A list model that is fed whole lists and finds out by key which rows went, came, moved and changed. It never resets,
/// so the delegates of a view live on, positions hold and moves can be animated. Signals come in the order removals,
/// moves, insertions, changes; at each structural one the model holds exactly the rows signalled so far, with the values
/// from before; new values come all at once, just before they are signalled. An update sends at most `maxRowDiffSteps`
/// structural signals and as many changes. A key that occurs twice costs a needless insertion, no more.
template <KeyedRow Row>
class KeyedListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }

    /// Takes over a list.
    void update(QList<Row> rows)
    {
        const RowRange middle = trimmed(rows);
        const auto diff =
            rowDiff(keysOf(m_rows, middle.first, int(m_rows.size()) - trimmedCount(rows, middle)),
                    keysOf(rows, middle.first, middle.count));
        for (const auto &range : diff.removals)
            remove({range.first + middle.first, range.count});
        for (const auto &step : diff.moves)
            move({step.first + middle.first, step.count, step.to + middle.first});
        for (const auto &range : diff.insertions)
            insert({range.first + middle.first, range.count}, rows);
        change(rows);
    }

    const QList<Row> &rows() const { return m_rows; }

    /// Where the row with the key stands. Costs one look-up; the first call after a change of the rows costs O(n).
    std::optional<int> rowOf(QStringView key) const
    {
        if (!m_index)
            m_index = KeyIndex(keysOf(m_rows, 0, int(m_rows.size())));
        return m_index->find(key);
    }

protected:
    /// Grows with each step by which rows come, go or move, from 0.
    quint64 structure() const { return m_structure; }

    /// Tells views that roles of single rows changed though the rows did not; neighbours share a signal. Rows ascend.
    void notifyChanged(const std::vector<int> &rows, const QList<int> &roles = {})
    {
        std::vector<RowRange> ranges;
        for (const int row : rows) {
            if (!ranges.empty() && ranges.back().first + ranges.back().count == row)
                ++ranges.back().count;
            else
                ranges.push_back({row, 1});
        }
        // Telling of a row too many is harmless, thousands of signals are not.
        if (ranges.size() > std::size_t(maxRowDiffSteps))
            ranges = {{rows.front(), rows.back() - rows.front() + 1}};
        for (const auto &range : ranges)
            Q_EMIT dataChanged(index(range.first), index(range.first + range.count - 1), roles);
    }

private:
    /// The rows of the new list that are left when what both lists begin and end with is taken away.
    RowRange trimmed(const QList<Row> &rows) const
    {
        const auto shorter = std::min(m_rows.size(), rows.size());
        qsizetype head = 0;
        while (head < shorter && m_rows[head].key == rows[head].key)
            ++head;
        qsizetype tail = 0;
        while (tail < shorter - head &&
               m_rows[m_rows.size() - 1 - tail].key == rows[rows.size() - 1 - tail].key)
            ++tail;
        return {int(head), int(rows.size() - head - tail)};
    }

    static int trimmedCount(const QList<Row> &rows, const RowRange &middle)
    {
        return int(rows.size()) - middle.count;
    }

    static std::vector<QStringView> keysOf(const QList<Row> &rows, int first, int count)
    {
        std::vector<QStringView> keys;
        keys.reserve(count);
        for (int row = first; row < first + count; ++row)
            keys.push_back(rows[row].key);
        return keys;
    }

    void remove(const RowRange &range)
    {
        beginRemoveRows({}, range.first, range.first + range.count - 1);
        m_rows.remove(range.first, range.count);
        noteStep();
        endRemoveRows();
    }

    void move(const RowMove &step)
    {
        const bool isDown = step.to > step.first;
        const auto begin = m_rows.begin();
        beginMoveRows({}, step.first, step.first + step.count - 1, {},
                      isDown ? step.to + step.count : step.to);
        if (isDown)
            std::rotate(begin + step.first, begin + step.first + step.count,
                        begin + step.to + step.count);
        else
            std::rotate(begin + step.to, begin + step.first, begin + step.first + step.count);
        noteStep();
        endMoveRows();
    }

    void insert(const RowRange &range, const QList<Row> &source)
    {
        beginInsertRows({}, range.first, range.first + range.count - 1);
        if (range.first == m_rows.size()) {
            m_rows.append(source.sliced(range.first, range.count));
        } else {
            const auto tail = m_rows.sliced(range.first);
            m_rows.resize(range.first);
            m_rows.append(source.sliced(range.first, range.count));
            m_rows.append(tail);
        }
        noteStep();
        endInsertRows();
    }

    void noteStep()
    {
        ++m_structure;
        m_index.reset();
    }

    /// All rows stand where they belong; takes over the values that differ.
    void change(const QList<Row> &rows)
    {
        std::vector<int> changed;
        for (int row = 0; row < int(rows.size()); ++row) {
            if (m_rows[row] == rows[row])
                continue;
            changed.push_back(row);
        }
        if (changed.empty())
            return;
        m_rows = rows;
        m_index.reset();
        notifyChanged(changed);
    }

    QList<Row> m_rows;
    quint64 m_structure = 0;
    /// Points into the rows.
    mutable std::optional<KeyIndex> m_index;
};
