#include "ui/accounts/ConflictResolutionDialog.h"

#include "AccountBench.h"
#include "support/TestData.h"
#include "sync/ConflictResolutionService.h"

class tst_ConflictResolutionDialog : public QObject {
    Q_OBJECT

private slots:
    void picksASideForEach()
    {
        ScratchState state;
        Sync::ConflictResolutionService conflicts(state.state());
        state->setSyncServices(nullptr, &conflicts);
        ConflictResolutionDialog dialog(state.state());
        auto *list = dialog.findChild<QListWidget *>();
        QVERIFY(list->isHidden());
        for (const QString &title : { u"<b>Dentist</b>"_s, QString(), u"Lunch"_s }) {
            const Event local = state.addEvent(title, utc("2026-03-15T09:00"), utc("2026-03-15T10:00"));
            Event remote = local;
            remote.id = u"elsewhere"_s;
            remote.title = u"Theirs"_s;
            conflicts.recordConflict(local, remote);
            conflicts.recordConflict(local, local); // the first pair stands
        }
        QCOMPARE(list->count(), 3);
        QCOMPARE(list->item(1)->text(), u"(Untitled)"_s);
        QVERIFY(shows(dialog, u"Conflict: <b>Dentist</b>"_s));
        QVERIFY(shows(dialog, u"<b>Title:</b> &lt;b&gt;Dentist&lt;/b&gt;<br>"_s));
        QVERIFY(shows(dialog, u"<b>Title:</b> Theirs<br>"_s));

        const QString first = conflicts.conflicts().first().local.id;
        const QString last = conflicts.conflicts().last().local.id;
        AccountBench::button(dialog, u"Use server version"_s)->click();
        QCOMPARE(state->events()->getById(first)->title, u"Theirs"_s);
        QCOMPARE(state->events()->getById(first)->syncStatus, SyncStatus::Synced);
        list->setCurrentRow(1);
        AccountBench::button(dialog, u"Keep local"_s)->click();
        QCOMPARE(state->events()->getById(last)->title, u"Lunch"_s);
        QCOMPARE(state->events()->getById(last)->syncStatus, SyncStatus::Pending);
        AccountBench::button(dialog, u"Decide later"_s)->click();
        QVERIFY(conflicts.conflicts().isEmpty() && list->isHidden());
        AccountBench::button(dialog, u"Decide later"_s)->click();
        state->setSyncServices(nullptr, nullptr);
    }

private:
    static bool shows(const QDialog &dialog, const QString &text)
    {
        const auto labels = dialog.findChildren<QLabel *>();
        return std::ranges::any_of(labels, [&](const QLabel *label) { return label->text().startsWith(text); });
    }
};

QTEST_MAIN(tst_ConflictResolutionDialog)
#include "tst_ConflictResolutionDialog.moc"
