#include "app/state/DefaultCalendar.h"
#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/ImportDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

class tst_ImportDialog : public QObject {
    Q_OBJECT

private slots:
    void saysHowManyEventsComeFromWhere_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("events");
        QTest::addColumn<QString>("text");
        QTest::newRow("one") << QStringList{ QStringLiteral("a.ics") } << 1
                             << QStringLiteral("Import 1 event from \"a.ics\" into:");
        QTest::newRow("many") << QStringList{ QStringLiteral("a.ics") } << 12
                              << QStringLiteral("Import 12 events from \"a.ics\" into:");
        QTest::newRow("a name with marks") << QStringList{ QStringLiteral("<b>%1&%2.ics") } << 2
                                           << QStringLiteral("Import 2 events from \"<b>%1&%2.ics\" into:");
        QTest::newRow("files") << QStringList{ QStringLiteral("a.ics"), QStringLiteral("b.ics") } << 12
                               << QStringLiteral("Import 12 events from 2 files into:");
    }

    void saysHowManyEventsComeFromWhere()
    {
        QFETCH(QStringList, files);
        QFETCH(int, events);
        ScratchState state;
        ImportDialog dialog(state.state(), files, events);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Import events"));
        QVERIFY(dialog.minimumWidth() >= 480);
        QLabel *shown = nullptr;
        const auto labels = dialog.findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text().startsWith(QStringLiteral("Import ")))
                shown = label;
        }
        QVERIFY(shown);
        QTEST(shown->text(), "text");
        QCOMPARE(shown->textFormat(), Qt::PlainText);
    }

    void offersOnlyWritableCalendars()
    {
        ScratchState state;
        const QString feed = state.addCalendar(QStringLiteral("A feed"));
        Calendar readOnly = state->calendars()->getById(feed).value();
        readOnly.isReadOnly = true;
        QVERIFY(state->calendars()->update(readOnly));
        const QString work = state.addCalendar(QStringLiteral("work"));
        ImportDialog dialog(state.state(), { QStringLiteral("a.ics") }, 1);
        auto *combo = dialog.findChild<QComboBox *>();
        QCOMPARE(combo->count(), 2);
        QCOMPARE(combo->itemData(0).toString(), ScratchState::calendarId()); // "Personal" before "work"
        QCOMPARE(combo->itemText(0), QStringLiteral("Personal — Quillon"));
        QCOMPARE(combo->itemData(1).toString(), work);
        QVERIFY(!combo->itemIcon(1).isNull());
    }

    void picksTheTarget_data()
    {
        QTest::addColumn<QString>("preferred"); // a calendar's name, or text of the setting
        QTest::addColumn<QString>("flagged");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the user's choice")
            << QStringLiteral("Work") << QStringLiteral("Personal") << QStringLiteral("Work");
        QTest::newRow("the one used last")
            << QString(DefaultCalendar::sentinel()) << QStringLiteral("Personal") << QStringLiteral("Zoo");
        QTest::newRow("no choice") << QString() << QStringLiteral("Work") << QStringLiteral("Work");
        QTest::newRow("a choice that is gone")
            << QStringLiteral("gone") << QStringLiteral("Work") << QStringLiteral("Work");
        QTest::newRow("no flag") << QString() << QString() << QStringLiteral("Art");
        QTest::newRow("the flagged one is read-only") << QString() << QStringLiteral("Feed") << QStringLiteral("Art");
    }

    void picksTheTarget()
    {
        QFETCH(QString, preferred);
        QFETCH(QString, flagged);
        QFETCH(QString, expected);
        ScratchState state;
        QHash<QString, QString> ids{ { QStringLiteral("Personal"), ScratchState::calendarId() } };
        for (const char *name : { "Zoo", "Work", "Art", "Feed" })
            ids.insert(QLatin1StringView(name), state.addCalendar(QLatin1StringView(name)));
        for (auto it = ids.cbegin(); it != ids.cend(); ++it) {
            Calendar calendar = state->calendars()->getById(it.value()).value();
            calendar.isDefault = it.key() == flagged;
            calendar.isReadOnly = it.key() == QStringLiteral("Feed");
            QVERIFY(state->calendars()->update(calendar));
        }
        if (!preferred.isEmpty())
            state->preferences()->set(DefaultCalendar::defaultKey(false), ids.value(preferred, preferred));
        state->preferences()->set(DefaultCalendar::lastUsedKey(false), ids.value(QStringLiteral("Zoo")));

        ImportDialog dialog(state.state(), { QStringLiteral("a.ics") }, 1);
        QCOMPARE(dialog.calendarId(), ids.value(expected));
    }
};

QTEST_MAIN(tst_ImportDialog)
#include "tst_ImportDialog.moc"
