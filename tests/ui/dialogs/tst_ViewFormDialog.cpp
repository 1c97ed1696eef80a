#include "storage/CalendarRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/ColorButton.h"
#include "ui/dialogs/ViewFormDialog.h"

#include <QLineEdit>
#include <QTest>

class tst_ViewFormDialog : public QObject {
    Q_OBJECT

private slots:
    void createsAGroup()
    {
        ScratchState state;
        const QString work = state.addCalendar(QStringLiteral("Work"));
        state.addCalendar(QStringLiteral("Other"));
        ViewFormDialog form(state.state());
        form.accept();
        QVERIFY(!form.problemText().isEmpty()); // no name yet
        QVERIFY(form.resultViewId().isEmpty());

        QTest::keyClicks(form.findChild<QLineEdit *>(), QStringLiteral(" Office "));
        form.findChild<CalendarChecklist *>()->setCheckedIds({ work });
        form.accept();
        const ViewDef stored = state->views()->getById(form.resultViewId()).value();
        QCOMPARE(stored.name, QStringLiteral("Office"));
        QCOMPARE(stored.calendarIds, QStringLiteral("[\"%1\"]").arg(work));
        QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
        QVERIFY(!stored.isDefault);
        QVERIFY(QColor(stored.color).isValid());
        QCOMPARE(state->views()->getAll().constLast().id, stored.id);
    }

    void keepsWhatItDoesNotShow()
    {
        ScratchState state;
        ViewDef view;
        view.id = QStringLiteral("v");
        view.name = QStringLiteral("Mine");
        view.calendarIds = QStringLiteral("[\"%1\",\"elsewhere\"]").arg(ScratchState::calendarId());
        view.sortOrder = 7;
        view.createdAt = QDateTime(QDate(2024, 1, 2), QTime(3, 4), Qt::UTC);
        view.updatedAt = view.createdAt;
        QVERIFY(state->views()->insert(view));

        ViewFormDialog form(state.state(), view);
        form.findChild<QLineEdit *>()->setText(QStringLiteral("Ours"));
        form.accept();
        ViewDef stored = state->views()->getById(view.id).value();
        QCOMPARE(stored.name, QStringLiteral("Ours"));
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

        ViewDef view;
        view.id = QStringLiteral("from elsewhere");
        view.name = QString(250, u'y');
        QVERIFY(state->views()->insert(view));
        ViewFormDialog edit(state.state(), view);
        edit.accept();
        QCOMPARE(state->views()->getById(view.id)->name, view.name); // the user has not touched it
    }

    void checksWithTheKeyboard()
    {
        ScratchState state;
        const QString work = state.addCalendar(QStringLiteral("Work"));
        CalendarChecklist list(state.state());
        list.resize(300, 300);
        list.show();
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Space); // the first calendar, "Personal"
        QCOMPARE(list.checkedIds(), QStringList{ ScratchState::calendarId() });
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Space);
        QCOMPARE(list.checkedIdsJson(), QStringLiteral("[\"%1\",\"%2\"]").arg(ScratchState::calendarId(), work));
    }
};

QTEST_MAIN(tst_ViewFormDialog)
#include "tst_ViewFormDialog.moc"
