#include "models/FilterRule.h"
#include "storage/FilterRuleRepository.h"
#include "support/ScratchState.h"
#include "ui/FiltersPill.h"

#include <QMenu>
#include <QTest>

class tst_FiltersPill : public QObject {
    Q_OBJECT

private slots:
    void labels_data();
    void labels();
    void menuSwitchesRules();
    void labelFollowsTheCount();

private:
    static void addRule(ScratchState &state, const QString &name, bool enabled);
};

void tst_FiltersPill::addRule(ScratchState &state, const QString &name, bool enabled)
{
    FilterRule rule;
    rule.id = name;
    rule.name = name;
    rule.type = FilterType::AllDay;
    rule.conditions = QStringLiteral("{\"runtimeType\":\"all_day\"}");
    rule.enabled = enabled;
    QVERIFY(state->filterRules()->insert(rule));
}

void tst_FiltersPill::labels_data()
{
    QTest::addColumn<int>("enabled");
    QTest::addColumn<int>("hidden");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << 0 << 0 << "No filters";
    QTest::newRow("none, but a stale count") << 0 << 4 << "No filters";
    QTest::newRow("nothing hidden") << 2 << 0 << "2 filter(s) applied";
    QTest::newRow("not counted yet") << 2 << -1 << "2 filter(s) applied";
    QTest::newRow("hidden") << 1 << 3 << "1 filter(s) applied · 3 hidden";
}

void tst_FiltersPill::labels()
{
    QFETCH(int, enabled);
    QFETCH(int, hidden);
    QTEST(FiltersPill::label(enabled, hidden), "expected");
}

void tst_FiltersPill::menuSwitchesRules()
{
    ScratchState state;
    FiltersPill pill(state.state());
    QVERIFY(!pill.menu()->actions().constFirst()->isEnabled());
    addRule(state, QStringLiteral("Bed & breakfast"), true);
    addRule(state, QStringLiteral("Off"), false);

    QAction *all = pill.menu()->actions().at(0);
    QCOMPARE(all->text(), QStringLiteral("Disable all filters"));
    QAction *rule = pill.menu()->actions().at(2);
    QCOMPARE(rule->text(), QStringLiteral("Bed && breakfast"));
    QVERIFY(rule->isChecked());
    rule->trigger();
    QVERIFY(state->filterRules()->getEnabled().isEmpty());

    all = pill.menu()->actions().at(0);
    QCOMPARE(all->text(), QStringLiteral("Enable all filters"));
    all->trigger();
    QCOMPARE(state->filterRules()->getEnabled().size(), 2);
}

void tst_FiltersPill::labelFollowsTheCount()
{
    ScratchState state;
    addRule(state, QStringLiteral("Rule"), true);
    const FiltersPill pill(state.state());
    state->setFilterHiddenCount(5);
    QCOMPARE(pill.text(), QStringLiteral("1 filter(s) applied · 5 hidden"));
}

QTEST_MAIN(tst_FiltersPill)
#include "tst_FiltersPill.moc"
