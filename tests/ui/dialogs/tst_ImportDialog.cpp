#include "app/state/DefaultCalendar.h"
#include "support/ScratchState.h"
#include "support/TestData.h"
#include "ui/dialogs/ImportDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_ImportDialog : public QObject {
    Q_OBJECT

private slots:
    void saysHowManyEventsComeFromWhere()
    {
        ScratchState state;
        const QList<std::tuple<QStringList, int, QString>> rows{
            { { u"a.ics"_qs }, 1, u"Import 1 event from \"a.ics\" into:"_qs },
            { { u"<b>%1&%2.ics"_qs }, 2, u"Import 2 events from \"<b>%1&%2.ics\" into:"_qs },
            { { u"a.ics"_qs, u"b.ics"_qs }, 12, u"Import 12 events from 2 files into:"_qs },
        };
        for (const auto &[files, events, text] : rows) {
            ImportDialog dialog(state.state(), files, events);
            const auto labels = dialog.findChildren<QLabel *>();
            const auto shown = std::find_if(labels.begin(), labels.end(),
                                            [&text](const QLabel *label) { return label->text() == text; });
            QVERIFY2(shown != labels.end(), qPrintable(text));
            QCOMPARE((*shown)->textFormat(), Qt::PlainText);
        }
    }

    void offersOnlyWritableCalendars()
    {
        ScratchState state;
        const QString feed = state.addCalendar(u"A feed"_qs);
        state.makeReadOnly(feed);
        const QString art = state.addCalendar(u"art"_qs);
        ImportDialog dialog(state.state(), { u"a.ics"_qs }, 1);
        auto *combo = dialog.findChild<QComboBox *>();
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->itemData(0).toString(), art);
        QVERIFY(!combo->itemIcon(0).isNull());
        QCOMPARE(combo->itemText(1), u"Personal — Quillon"_qs);
    }

    void picksTheTarget_data()
    {
        // A calendar's name or text of the setting, and names.
        columns<QString, QString, QString>("preferred", "flagged", "expected");
        row("the user's choice", "Work", "Personal", "Work");
        row("the one used last", QString(DefaultCalendar::sentinel()), "Personal", "Zoo");
        row("a choice that is gone", "gone", "Work", "Work");
        row("no flag", "", "", "Art");
        row("the flagged one is read-only", "", "Feed", "Art");
    }

    void picksTheTarget()
    {
        QFETCH(QString, preferred);
        QFETCH(QString, flagged);
        QFETCH(QString, expected);
        ScratchState state;
        QHash<QString, QString> ids{ { u"Personal"_qs, ScratchState::calendarId() } };
        for (const QString &name : { u"Zoo"_qs, u"Work"_qs, u"Art"_qs, u"Feed"_qs })
            ids.insert(name, state.addCalendar(name));
        for (auto it = ids.cbegin(); it != ids.cend(); ++it) {
            Calendar calendar = state->calendars()->getById(it.value()).value();
            calendar.isDefault = it.key() == flagged;
            calendar.isReadOnly = it.key() == u"Feed";
            QVERIFY(state->calendars()->update(calendar));
        }
        if (!preferred.isEmpty())
            state->preferences()->set(DefaultCalendar::defaultKey(false), ids.value(preferred, preferred));
        state->preferences()->set(DefaultCalendar::lastUsedKey(false), ids.value(u"Zoo"_qs));
        ImportDialog dialog(state.state(), { u"a.ics"_qs }, 1);
        QCOMPARE(dialog.calendarId(), ids.value(expected));
    }
};

QTEST_MAIN(tst_ImportDialog)
#include "tst_ImportDialog.moc"
