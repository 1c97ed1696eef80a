#include "support/ScratchState.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/ViewFormDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_ViewFormDialog : public QObject {
    Q_OBJECT

private slots:
    void createsAGroup()
    {
        ScratchState state;
        const QString work = state.addCalendar(u"Work"_qs);
        state.addGroup(u"Zoo"_qs);
        ViewFormDialog form(state.state());
        form.accept();
        QVERIFY(!form.problemText().isEmpty()); // no name yet
        QVERIFY(form.resultViewId().isEmpty());

        QTest::keyClicks(form.findChild<QLineEdit *>(), u" Office "_qs);
        auto *list = form.findChild<CalendarChecklist *>();
        QTest::keyClick(list, Qt::Key_Down); // below "Personal"
        QTest::keyClick(list, Qt::Key_Space);
        form.accept();
        const ViewDef stored = state->views()->getById(form.resultViewId()).value();
        QCOMPARE(stored.name, u"Office"_qs);
        QCOMPARE(stored.calendarIds, u"[\"%1\"]"_qs.arg(work));
        QVERIFY(!stored.isDefault);
        QVERIFY(QColor(stored.color).isValid());
        QCOMPARE(state->views()->getAll().constLast().id, stored.id);
    }

    void keepsWhatItDoesNotShow()
    {
        ScratchState state;
        ViewDef view = state.addGroup(u"Mine"_qs, { ScratchState::calendarId(), u"elsewhere"_qs });
        ViewFormDialog form(state.state(), view);
        form.findChild<QLineEdit *>()->setText(u"Ours"_qs);
        form.accept();
        ViewDef stored = state->views()->getById(view.id).value();
        QCOMPARE(stored.name, u"Ours"_qs);
        stored.name = view.name;
        stored.updatedAt = view.updatedAt;
        QVERIFY(stored == view);
    }

    void namesAreLimited()
    {
        ScratchState state;
        ViewFormDialog form(state.state());
        auto *name = form.findChild<QLineEdit *>();
        name->insert(QString(300, u'x'));
        QCOMPARE(name->text().size(), 200);
        const ViewDef view = state.addGroup(QString(250, u'y')); // as from elsewhere
        ViewFormDialog edit(state.state(), view);
        edit.accept();
        QCOMPARE(state->views()->getById(view.id)->name, view.name); // the user has not touched it
    }
};

QTEST_MAIN(tst_ViewFormDialog)
#include "tst_ViewFormDialog.moc"
