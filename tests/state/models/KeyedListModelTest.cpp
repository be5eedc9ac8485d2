#include "state/models/KeyedListModel.h"

#include "state/models/ShadowList.h"

#include <QRandomGenerator>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Word
{
    QString key;
    int value = 0;

    bool operator==(const Word &) const = default;
};

class WordModel : public KeyedListModel<Word>
{
public:
    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto &row = rows()[index.row()];
        if (role == Qt::DisplayRole)
            return row.key;
        return role == Qt::UserRole ? QVariant(row.value) : QVariant();
    }
};

/// A list of rows, one for each character, which is the key. All values are 0.
QList<Word> words(const QString &text)
{
    QList<Word> words;
    for (const QChar c : text)
        words.append({QString(c), 0});
    return words;
}

QList<Word> numbered(int first, int count)
{
    QList<Word> words;
    for (int number = first; number < first + count; ++number)
        words.append({QString::number(number), 0});
    return words;
}

/// A random variation of a list: some rows are removed, changed, inserted or moved, and sometimes all are shuffled.
QList<Word> mutated(QList<Word> rows, QRandomGenerator &dice, int &nextKey)
{
    const auto below = [&dice](int bound) { return bound == 0 ? 0 : int(dice.bounded(bound)); };
    rows.removeIf([&](const Word &) { return below(6) == 0; });
    for (auto &row : rows)
        row.value += below(5) == 0;
    for (int count = below(8); count > 0; --count)
        rows.insert(below(int(rows.size()) + 1), {QString::number(nextKey++), 0});
    for (int count = below(4); count > 0 && !rows.isEmpty(); --count)
        rows.move(below(int(rows.size())), below(int(rows.size())));
    if (below(10) == 0)
        std::shuffle(rows.begin(), rows.end(), dice);
    return rows;
}

} // namespace

TEST(KeyedListModel, RandomUpdatesReplayExactlyAndNeverReset)
{
    for (quint32 seed = 1; seed <= 40; ++seed) {
        QRandomGenerator dice(seed);
        WordModel model;
        ShadowList shadow(model, Qt::DisplayRole);
        QList<Word> rows;
        int nextKey = 0;
        for (int step = 0; step < 25; ++step) {
            rows = mutated(rows, dice, nextKey);
            model.update(rows);
            ASSERT_EQ(model.rows(), rows) << "seed " << seed << " step " << step;
            shadow.compare();
        }
    }
}

TEST(KeyedListModel, LargeRandomUpdatesStayUnderTheBoundOnSignals)
{
    QRandomGenerator dice(7);
    WordModel model;
    model.update(numbered(0, 2000));
    ShadowList shadow(model, Qt::DisplayRole);
    int nextKey = 2000;
    for (int step = 0; step < 10; ++step) {
        const auto rows = mutated(model.rows(), dice, nextKey);
        shadow.forget();
        model.update(rows);
        ASSERT_EQ(model.rows(), rows);
        EXPECT_LE(shadow.structural, maxRowDiffSteps);
        EXPECT_LE(shadow.changes, maxRowDiffSteps);
    }
}

TEST(KeyedListModel, ARowThatChangesPlaceIsOneMove)
{
    WordModel model;
    model.update(words(u"abcdefgh"_s));
    ShadowList shadow(model, Qt::DisplayRole);
    shadow.forget();
    model.update(words(u"abcfdegh"_s));
    EXPECT_EQ(shadow.moves, 1);
    EXPECT_EQ(shadow.structural, 1);
    EXPECT_EQ(shadow.changes, 0);
}

TEST(KeyedListModel, ChangedNeighboursShareASignal)
{
    WordModel model;
    model.update(words(u"abcdef"_s));
    ShadowList shadow(model, Qt::DisplayRole);
    shadow.forget();
    auto rows = words(u"abcdef"_s);
    rows[1].value = rows[2].value = rows[5].value = 1;
    model.update(rows);
    EXPECT_EQ(shadow.changes, 2);
    EXPECT_EQ(shadow.changedRows, (QList{1, 2, 5}));
    EXPECT_EQ(shadow.structural, 0);
}

TEST(KeyedListModel, AnEqualListSaysNothing)
{
    WordModel model;
    model.update(words(u"abc"_s));
    ShadowList shadow(model, Qt::DisplayRole);
    shadow.forget();
    model.update(words(u"abc"_s));
    EXPECT_EQ(shadow.structural + shadow.changes, 0);
}

TEST(KeyedListModel, WhenTooManyRowsGoTheLongestStretchesStay)
{
    WordModel model;
    auto rows = numbered(0, 1000);
    model.update(rows);
    ShadowList shadow(model, Qt::DisplayRole);
    QList<QPersistentModelIndex> long_;
    for (int row = 400; row < 600; ++row)
        long_.append(QPersistentModelIndex(model.index(row)));
    rows.removeIf([](const Word &word) {
        const int number = word.key.toInt();
        return (number < 400 || number >= 600) && number % 3 == 0;
    });
    shadow.forget();
    model.update(rows);
    EXPECT_LE(shadow.structural, maxRowDiffSteps);
    EXPECT_EQ(model.rows(), rows);
    for (const auto &index : long_)
        EXPECT_TRUE(index.isValid());
}

TEST(KeyedListModel, ManyScatteredChangesShareOneSignal)
{
    WordModel model;
    auto rows = numbered(0, 1000);
    model.update(rows);
    ShadowList shadow(model, Qt::DisplayRole);
    shadow.forget();
    for (int row = 10; row < 990; row += 2)
        rows[row].value = 1;
    model.update(rows);
    EXPECT_EQ(shadow.changes, 1);
    EXPECT_EQ(shadow.changedRows.first(), 10);
    EXPECT_EQ(shadow.changedRows.last(), 988);
}

TEST(KeyedListModel, ARepeatedKeyDoesNoHarm)
{
    WordModel model;
    ShadowList shadow(model, Qt::DisplayRole);
    for (const auto &text : {u"abab"_s, u"baab"_s, u"aaaa"_s, u"a"_s, u"bb"_s}) {
        model.update(words(text));
        EXPECT_EQ(model.rows(), words(text)) << text.toStdString();
        shadow.compare();
    }
}

TEST(KeyedListModel, RowsAreFoundByKeyAfterEachKindOfChange)
{
    WordModel model;
    EXPECT_EQ(model.rowOf(u"a"), std::nullopt);
    for (const auto &text : {u"abcd"_s, u"dabc"_s, u"dac"_s, u"xdacy"_s}) {
        model.update(words(text));
        for (int row = 0; row < text.size(); ++row)
            EXPECT_EQ(model.rowOf(QStringView(text).sliced(row, 1)), row);
    }
    auto changed = model.rows();
    changed[2].value = 9;
    model.update(changed);
    EXPECT_EQ(model.rowOf(u"a"), 2);
    EXPECT_EQ(model.rowOf(u"b"), std::nullopt);
}

TEST(KeyedListModel, RowsAreFoundByKeyFromWithinASignal)
{
    WordModel model;
    model.update(words(u"abcdef"_s));
    int asked = 0;
    const auto ask = [&] {
        ++asked;
        for (int row = 0; row < model.rowCount(); ++row)
            EXPECT_EQ(model.rowOf(model.rows()[row].key), row);
    };
    QObject context;
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &context, ask);
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context, ask);
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context, ask);
    model.update(words(u"xcbayf"_s));
    EXPECT_GE(asked, 3);
}
