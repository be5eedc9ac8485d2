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
///
/// A model that is told what single rows do makes no comparison at all: each such step costs a shift of the rows behind
/// it, and is signalled at once.
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
        // Many steps are not worth following one by one.
        m_isIndexed = m_isIndexed && diff == RowDiff();
        for (const auto &range : diff.removals)
            remove({range.first + middle.first, range.count});
        for (const auto &step : diff.moves)
            move({step.first + middle.first, step.count, step.to + middle.first});
        for (const auto &range : diff.insertions)
            insert({range.first + middle.first, range.count}, rows);
        change(rows);
    }

    const QList<Row> &rows() const { return m_rows; }

    /// Where the row with the key stands. Costs one look-up; the first call after an update that changed rows costs O(n).
    std::optional<int> rowOf(QStringView key) const
    {
        if (!m_isIndexed)
            m_index = KeyIndex(keysOf(m_rows, 0, int(m_rows.size())));
        m_isIndexed = true;
        return m_index.find(key);
    }

protected:
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

    void insertAt(int at, Row row)
    {
        beginInsertRows({}, at, at);
        m_rows.insert(at, std::move(row));
        follow([&] { return m_index.insert(at, m_rows[at].key); });
        endInsertRows();
    }
    void removeAt(int at) { remove({at, 1}); }
    /// `to` is where the first of them stands afterwards; not where it stands already.
    void shift(const RowMove &step) { move(step); }
    /// The row becomes another with the same key.
    void replaceAt(int at, Row row, const QList<int> &roles = {})
    {
        m_rows[at] = std::move(row);
        if (m_isIndexed)
            m_index.relocate(at, m_rows[at].key);
        notifyChanged({at}, roles);
    }

private:
    /// Has the index follow a step, as far as there is one and it can.
    template <typename Step>
    void follow(Step step)
    {
        m_isIndexed = m_isIndexed && step() == KeyIndex::Outcome::Followed;
    }

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
        follow([&] { return m_index.remove(range.first, range.count); });
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
        follow([&] { return m_index.move(step.first, step.count, step.to); });
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
        m_isIndexed = false;
        endInsertRows();
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
        m_isIndexed = false;
        notifyChanged(changed);
    }

    QList<Row> m_rows;
    mutable KeyIndex m_index;
    mutable bool m_isIndexed = false;
};
