#pragma once

#include "derivation/KeyIndex.h"
#include "state/models/RowDiff.h"

#include <QAbstractListModel>
#include <QList>

#include <concepts>
#include <optional>
#include <vector>

/// A row of a `KeyedListModel`: a value with a key that is unique in its list.
template <typename T>
concept KeyedRow = std::equality_comparable<T> && (requires(const T &row) {
    { row.key } -> std::convertible_to<QString>;
} || requires(const T &row) {
    { row.key() } -> std::convertible_to<QString>;
});

/// The key of a row. It refers to the memory of the row, or of what the row refers to.
template <KeyedRow Row>
QStringView keyOfRow(const Row &row)
{
    if constexpr (requires { row.key(); })
        return row.key();
    else
        return row.key;
}

/// A list model that takes complete lists and finds by key which rows were removed, moved, inserted and changed. It
/// never resets, so that a view keeps its delegates and its position, and moves can be animated. Signals are emitted in
/// the order removals, moves, insertions, changes. At each structural signal, the model contains exactly the rows
/// signalled so far, and kept rows have their old values. The new values are all stored just before the change signals.
/// An update emits at most `maxRowDiffSteps` structural signals and as many change signals. A repeated key only causes
/// an unnecessary removal and insertion.
template <KeyedRow Row>
class KeyedListModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }

    /// Replaces the list.
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
        change(std::move(rows));
    }

    const QList<Row> &rows() const { return m_rows; }

    /// The position of the row with the key; nothing if there is none. Costs one look-up; the first call after a change
    /// of the rows costs O(n).
    std::optional<int> rowOf(QStringView key) const
    {
        if (!m_index)
            m_index = KeyIndex(keysOf(m_rows, 0, int(m_rows.size())));
        return m_index->find(key);
    }

protected:
    /// Grows with each removal, insertion or move of rows, from 0.
    quint64 structure() const { return m_structure; }

    /// Notifies views that roles of these rows changed, even if the rows themselves did not. Adjacent rows share a
    /// signal. `rows` must be ascending.
    void notifyChanged(const std::vector<int> &rows, const QList<int> &roles = {})
    {
        std::vector<RowRange> ranges;
        for (const int row : rows) {
            if (!ranges.empty() && ranges.back().first + ranges.back().count == row)
                ++ranges.back().count;
            else
                ranges.push_back({row, 1});
        }
        // Notifying unchanged rows is harmless, but thousands of signals are slow.
        if (ranges.size() > std::size_t(maxRowDiffSteps))
            ranges = {{rows.front(), rows.back() - rows.front() + 1}};
        for (const auto &range : ranges)
            Q_EMIT dataChanged(index(range.first), index(range.first + range.count - 1), roles);
    }

private:
    /// The rows of the new list without the common beginning and the common end of both lists.
    RowRange trimmed(const QList<Row> &rows) const
    {
        const auto shorter = std::min(m_rows.size(), rows.size());
        qsizetype head = 0;
        while (head < shorter && hasSameKey(m_rows.at(head), rows.at(head)))
            ++head;
        qsizetype tail = 0;
        while (tail < shorter - head &&
               hasSameKey(m_rows.at(m_rows.size() - 1 - tail), rows.at(rows.size() - 1 - tail)))
            ++tail;
        return {int(head), int(rows.size() - head - tail)};
    }

    /// Rows are compared first, because rows that refer to the same object are equal at once.
    static bool hasSameKey(const Row &a, const Row &b)
    {
        return a == b || keyOfRow(a) == keyOfRow(b);
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
            keys.push_back(keyOfRow(rows[row]));
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
            m_rows.remove(range.first, tail.size());
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

    /// Stores the new values. All rows must already be at their new positions.
    void change(QList<Row> rows)
    {
        std::vector<int> changed;
        for (int row = 0; row < int(rows.size()); ++row) {
            if (!(m_rows.at(row) == rows.at(row)))
                changed.push_back(row);
        }
        // Stored even if nothing has changed, because equal rows may refer to other objects.
        m_rows = std::move(rows);
        m_index.reset();
        notifyChanged(changed);
    }

    QList<Row> m_rows;
    quint64 m_structure = 0;
    /// Refers to the memory of the keys in `m_rows`.
    mutable std::optional<KeyIndex> m_index;
};
