#include "models/Models.h"
#include "Player.h"
#include "Search.h"
#include "TestApplication.h"

using test::Command;
using test::Commands;
using test::Model;

/// What searches for broken invariants finds them, repeats them, and cuts them down.
class tst_SoakTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void sameSeedSameCommands();
    void commandsAsText();
    void playStopsAtTheBrokenInvariant();
    void shrunk();
    void crash();
    void warning();
    void search();
    void noSuchModel();

private:
    Commands commands(const QStringList& names) const;

    std::unique_ptr<Model> m_model;
};

void tst_SoakTools::init()
{
    m_model = test::newModel(QStringLiteral("faulty"));
}

Commands tst_SoakTools::commands(const QStringList& names) const
{
    return test::fromLines(names, *m_model);
}

void tst_SoakTools::sameSeedSameCommands()
{
    const auto lines = [&](quint32 seed) {
        return test::toLines(m_model->commands(seed, 100), *m_model);
    };
    QCOMPARE(lines(5).size(), 100);
    QCOMPARE(lines(5), lines(5));
    QVERIFY(lines(5) != lines(6));
}

void tst_SoakTools::commandsAsText()
{
    const QStringList lines{"rise 7", "nothing 4294967295"};
    QCOMPARE(test::toLines(commands(lines), *m_model), lines);
    QCOMPARE(commands({"unknown 3", "rise 1"}).size(), 1);
}

void tst_SoakTools::playStopsAtTheBrokenInvariant()
{
    int last = -1;
    const auto outcome = test::play(*m_model, commands({"rise", "rise", "nothing", "rise", "fall"}),
                                    [&](int command) { last = command; });
    QCOMPARE(outcome.broken, QStringLiteral("the level stays low"));
    QCOMPARE(outcome.command, 3);
    QCOMPARE(last, 3);
}

void tst_SoakTools::shrunk()
{
    // Fails if a 3 comes somewhere after a 1.
    const auto fails = [](const Commands& tried) {
        bool seen = false;
        for (const Command& command : tried) {
            seen = seen || command.action == 1;
            if (seen && command.action == 3)
                return true;
        }
        return false;
    };
    Commands all;
    for (int i = 0; i < 100; ++i)
        all.append({i % 7 == 0 ? 1 : i == 95 ? 3 : 0, quint32(i)});
    const Commands fewest = test::shrunk(all, fails);
    QCOMPARE(fewest.size(), 2);
    QCOMPARE(fewest.first().action, 1);
    QCOMPARE(fewest.last().argument, 95u);
}

void tst_SoakTools::crash()
{
    test::ChildProcess child(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"));
    QVERIFY(!child.play({"fire 0", "arm 0"}).failed);
    const test::Result result = child.play({"nothing 0", "arm 0", "fire 0", "nothing 0"});
    QVERIFY(result.failed);
    QCOMPARE(result.command, 2);
    QVERIFY(result.isLike(child.play({"arm 0", "fire 0"})));
    QVERIFY(!result.isLike(child.play({"rise 0", "rise 0", "rise 0"})));
}

void tst_SoakTools::warning()
{
    test::ChildProcess child(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"));
    const test::Result result = child.play({"warn 0"});
    QVERIFY(result.failed);
    QVERIFY(result.report.contains(QLatin1String("nobody expects this")));
}

void tst_SoakTools::search()
{
    const QString report =
        test::search(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"), 3, 3000);
    QVERIFY(report.startsWith(QLatin1String("faulty, seed 3, command ")));
    QVERIFY(report.contains(QLatin1String("the level stays low")));
    QCOMPARE(report.count(QLatin1String("  rise ")), 3);
    QCOMPARE(report.count(QLatin1String("\n  ")), 3);
}

void tst_SoakTools::noSuchModel()
{
    QVERIFY(!test::newModel(QStringLiteral("none")));
    QVERIFY(!test::search(QStringLiteral(SOAK_PROGRAM), QStringLiteral("none"), 1, 1).isEmpty());
}

const test::Registration<tst_SoakTools> registration;

#include "tst_SoakTools.moc"
