#include "Machines.h"
#include "Minimise.h"
#include "Player.h"
#include "Search.h"
#include "StepFile.h"
#include "TestApplication.h"
#include "Trial.h"

using soak::Machine;
using soak::Step;
using soak::Steps;

/// What searches for broken promises finds them, repeats them, and cuts them down.
class tst_SoakTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void sameSeedSameSteps();
    void stepsAsText();
    void playStopsAtTheBrokenPromise();
    void minimised();
    void crash();
    void warning();
    void search();
    void noSuchMachine();

private:
    Steps steps(const QStringList& names) const;

    std::unique_ptr<Machine> m_machine;
};

void tst_SoakTools::init()
{
    m_machine = soak::newMachine(QStringLiteral("faulty"));
}

Steps tst_SoakTools::steps(const QStringList& names) const
{
    return soak::fromLines(names, *m_machine);
}

void tst_SoakTools::sameSeedSameSteps()
{
    const auto lines = [&](quint32 seed) {
        return soak::toLines(m_machine->steps(seed, 100), *m_machine);
    };
    QCOMPARE(lines(5).size(), 100);
    QCOMPARE(lines(5), lines(5));
    QVERIFY(lines(5) != lines(6));
}

void tst_SoakTools::stepsAsText()
{
    const QStringList lines{"rise 7", "nothing 4294967295"};
    QCOMPARE(soak::toLines(steps(lines), *m_machine), lines);
    QCOMPARE(steps({"unknown 3", "rise 1"}).size(), 1);
}

void tst_SoakTools::playStopsAtTheBrokenPromise()
{
    int last = -1;
    const auto outcome = soak::play(*m_machine, steps({"rise", "rise", "nothing", "rise", "fall"}),
                                    [&](int step) { last = step; });
    QCOMPARE(outcome.broken, QStringLiteral("the level stays low"));
    QCOMPARE(outcome.step, 3);
    QCOMPARE(last, 3);
}

void tst_SoakTools::minimised()
{
    // Fails if a 3 comes somewhere after a 1.
    const auto fails = [](const Steps& tried) {
        bool seen = false;
        for (const Step& step : tried) {
            seen = seen || step.action == 1;
            if (seen && step.action == 3)
                return true;
        }
        return false;
    };
    Steps all;
    for (int i = 0; i < 100; ++i)
        all.append({i % 7 == 0 ? 1 : i == 95 ? 3 : 0, quint32(i)});
    const Steps fewest = soak::minimised(all, fails);
    QCOMPARE(fewest.size(), 2);
    QCOMPARE(fewest.first().action, 1);
    QCOMPARE(fewest.last().argument, 95u);
}

void tst_SoakTools::crash()
{
    soak::Trial trial(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"));
    QVERIFY(!trial.play({"fire 0", "arm 0"}).failed);
    const soak::Verdict verdict = trial.play({"nothing 0", "arm 0", "fire 0", "nothing 0"});
    QVERIFY(verdict.failed);
    QCOMPARE(verdict.step, 2);
    QVERIFY(verdict.isLike(trial.play({"arm 0", "fire 0"})));
    QVERIFY(!verdict.isLike(trial.play({"rise 0", "rise 0", "rise 0"})));
}

void tst_SoakTools::warning()
{
    soak::Trial trial(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"));
    const soak::Verdict verdict = trial.play({"warn 0"});
    QVERIFY(verdict.failed);
    QVERIFY(verdict.report.contains(QLatin1String("nobody expects this")));
}

void tst_SoakTools::search()
{
    const QString report =
        soak::search(QStringLiteral(SOAK_PROGRAM), QStringLiteral("faulty"), 3, 3000);
    QVERIFY(report.startsWith(QLatin1String("faulty, seed 3, step ")));
    QVERIFY(report.contains(QLatin1String("the level stays low")));
    QCOMPARE(report.count(QLatin1String("  rise ")), 3);
    QCOMPARE(report.count(QLatin1String("\n  ")), 3);
}

void tst_SoakTools::noSuchMachine()
{
    QVERIFY(!soak::newMachine(QStringLiteral("none")));
    QVERIFY(!soak::search(QStringLiteral(SOAK_PROGRAM), QStringLiteral("none"), 1, 1).isEmpty());
}

int main(int argc, char** argv)
{
    return test::run<tst_SoakTools>(argc, argv);
}

#include "tst_SoakTools.moc"
