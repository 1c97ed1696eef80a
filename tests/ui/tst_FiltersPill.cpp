#include "support/ScratchState.h"
#include "ui/FiltersPill.h"

#include <QtTest>
#include <QtWidgets>

class tst_FiltersPill : public QObject {
    Q_OBJECT

private slots:
    void labels()
    {
        QCOMPARE(FiltersPill::label(0, 4), u"No filters"_qs); // the count is stale
        QCOMPARE(FiltersPill::label(2, 0), u"2 filter(s) applied"_qs);
        QCOMPARE(FiltersPill::label(2, -1), u"2 filter(s) applied"_qs); // not counted yet
        ScratchState state;
        state.addFilter(u"Rule"_qs, u"x"_qs);
        const FiltersPill pill(state.state());
        state->setFilterHiddenCount(5);
        QCOMPARE(pill.text(), u"1 filter(s) applied · 5 hidden"_qs);
    }

    void menuSwitchesRules()
    {
        ScratchState state;
        FiltersPill pill(state.state());
        QVERIFY(!pill.menu()->actions().constFirst()->isEnabled());
        state.addFilter(u"Bed & breakfast"_qs, u"x"_qs);
        state.addFilter(u"Off"_qs, u"x"_qs);
        QVERIFY(state->filterRules()->setEnabled(u"Off"_qs, false));

        QCOMPARE(pill.menu()->actions().at(0)->text(), u"Disable all filters"_qs);
        QAction *rule = pill.menu()->actions().at(2);
        QCOMPARE(rule->text(), u"Bed && breakfast"_qs);
        QVERIFY(rule->isChecked());
        rule->trigger();
        QVERIFY(state->filterRules()->getEnabled().isEmpty());
        QCOMPARE(pill.menu()->actions().at(0)->text(), u"Enable all filters"_qs);
        pill.menu()->actions().at(0)->trigger();
        QCOMPARE(state->filterRules()->getEnabled().size(), 2);
    }
};

QTEST_MAIN(tst_FiltersPill)
#include "tst_FiltersPill.moc"
