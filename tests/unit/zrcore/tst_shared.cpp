// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrSequence.h"
#include "ZrCore/ZrShared.h"

#include <QHash>
#include <QSet>
#include <QSize>
#include <QTest>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

enum class Mode {
    Off,
    On,
};

static_assert(ZrSharedDetail::fitsAtomic<int>() && ZrSharedDetail::fitsAtomic<bool>());
static_assert(ZrSharedDetail::fitsAtomic<double>() && ZrSharedDetail::fitsAtomic<Mode>());
static_assert(ZrSharedDetail::fitsAtomic<QSize>() && ZrSharedDetail::fitsAtomic<void*>());
static_assert(!ZrSharedDetail::fitsAtomic<QString>() && !ZrSharedDetail::fitsAtomic<QList<int>>());

} // namespace

class tst_shared : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAndAssignsLikeAPlainMember();
    void setTellsChanges();
    void comparesAndPrints();
    void membersOfTheValueAreReached();
    void threadsSeeWholeValues();
    void sequenceIsNeverTheSame();
};

void tst_shared::readsAndAssignsLikeAPlainMember()
{
    ZrShared<int> number;
    QCOMPARE(int(number), 0);
    number = 5;
    const int doubled = number * 2;
    QCOMPARE(doubled, 10);
    QVERIFY(number < 6 && number > 4);
    ZrShared<QString> text(u"a"_s);
    const QString plain = text;
    QCOMPARE(plain, u"a"_s);
    text = u"b"_s;
    ZrShared<QString> copy(text);
    text = u"c"_s;
    QCOMPARE(copy.get(), u"b"_s);
    copy = text;
    QCOMPARE(copy.get(), u"c"_s);
    ZrShared<Mode> mode = Mode::On;
    switch (mode) {
    case Mode::Off:
        QFAIL("wrong value");
    case Mode::On:
        break;
    }
    QCOMPARE(number.exchange(7), 5);
}

void tst_shared::setTellsChanges()
{
    ZrShared<double> number(1.5);
    QVERIFY(!number.set(1.5));
    QVERIFY(number.set(2.5));
    QCOMPARE(number.get(), 2.5);
    ZrShared<QStringList> list;
    QVERIFY(!list.set({}));
    QVERIFY(list.set({u"a"_s}));
    QVERIFY(!list.set({u"a"_s}));
}

void tst_shared::comparesAndPrints()
{
    ZrShared<int> a(1);
    ZrShared<int> b(1);
    QVERIFY(a == b && a == 1 && 1 == a && a == 1.0);
    b = 2;
    QVERIFY(a != b && a != 2);
    ZrShared<QString> text(u"x"_s);
    QVERIFY(text == u"x"_s && u"x"_s == text && text != u"y"_s);
    ZrShared<Mode> mode(Mode::On);
    QVERIFY(mode == Mode::On && mode != Mode::Off);
    QString printed;
    QDebug(&printed) << a << text;
    QCOMPARE(printed.trimmed(), u"1 \"x\""_s);
}

void tst_shared::membersOfTheValueAreReached()
{
    ZrShared<QHash<QString, int>> hash;
    hash = QHash<QString, int>{{u"a"_s, 1}};
    QCOMPARE(hash->size(), 1);
    QCOMPARE(hash->value(u"a"_s), 1);
}

void tst_shared::threadsSeeWholeValues()
{
    struct Pair
    {
        int a = 0;
        int b = 0;
        bool operator==(const Pair&) const = default;
    };
    ZrShared<Pair> pair;
    ZrShared<QString> text(QString(100, u'a'));
    ZrShared<QList<int>> list(QList<int>(50, 0));
    std::atomic<bool> whole = true;
    std::vector<std::thread> threads;
    for (int t = 0; t < 2; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 5'000; ++i) {
                pair = Pair{i, -i};
                text = QString(100, t ? u'b' : u'c');
                list.set(QList<int>(50, i));
            }
        });
        threads.emplace_back([&] {
            for (int i = 0; i < 5'000; ++i) {
                const Pair p = pair;
                const QString s = text;
                const QList<int> l = list;
                if (p.a != -p.b || s.count(s.at(0)) != 100 || l.count(l.at(0)) != 50)
                    whole = false;
            }
        });
    }
    for (auto& thread : threads)
        thread.join();
    QVERIFY(whole);
}

void tst_shared::sequenceIsNeverTheSame()
{
    std::vector<std::vector<quint64>> numbers(4);
    std::vector<std::thread> threads;
    for (auto& own : numbers) {
        threads.emplace_back([&own] {
            for (int i = 0; i < 1'000; ++i)
                own.push_back(ZrSequence::next());
        });
    }
    for (auto& thread : threads)
        thread.join();
    QSet<quint64> seen;
    for (const auto& own : numbers) {
        for (std::size_t i = 0; i < own.size(); ++i) {
            QVERIFY(i == 0 || own[i] > own[i - 1]);
            seen.insert(own[i]);
        }
    }
    QCOMPARE(seen.size(), 4'000);
    QVERIFY(ZrSequence::last() >= 4'000);
}

QTEST_GUILESS_MAIN(tst_shared)
#include "tst_shared.moc"
