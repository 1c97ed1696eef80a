#include "app/state/DefaultCalendar.h"
#include "storage/PreferencesRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/PreferencesDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace {

QComboBox *comboOf(QWidget &dialog, const QString &label)
{
    const auto labels = dialog.findChildren<QLabel *>();
    for (QLabel *candidate : labels) {
        if (QString(candidate->text()).remove(u'&') == label)
            return qobject_cast<QComboBox *>(candidate->buddy());
    }
    return nullptr;
}

/// As the user does it: the program answers to activated, not to a change from code.
void choose(QComboBox *combo, const QVariant &data)
{
    const int index = combo->findData(data);
    QVERIFY(index >= 0);
    combo->setCurrentIndex(index);
    emit combo->activated(index);
}

}

class tst_PreferencesDialog : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_settings.isValid());
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName(QStringLiteral("DialogTest"));
    }

    void theFirstDayOfTheWeekCountsAsTheUsersOwn()
    {
        ScratchState state;
        PreferencesDialog dialog(state.state());
        QSignalSpy changed(state.state(), &AppState::firstDayOfWeekChanged);
        choose(comboOf(dialog, QStringLiteral("First day of the week")), int(Qt::Saturday));
        QCOMPARE(state->firstDayOfWeek(), Qt::Saturday);
        QCOMPARE(changed.size(), 1);
        QVERIFY(state->preferences()->getBool(QStringLiteral("ui/weekStartDay/customized"), false));
    }

    void theWorkdayHasAtLeastAnHour()
    {
        ScratchState state;
        PreferencesDialog dialog(state.state());
        auto *start = comboOf(dialog, QStringLiteral("Workday"));
        QCOMPARE(start->currentData().toInt(), 8);
        choose(start, 23);
        QCOMPARE(state->preferences()->getInt(QStringLiteral("ui/workdayStart"), -1), 23);
        QCOMPARE(state->preferences()->getInt(QStringLiteral("ui/workdayEnd"), -1), 24);
    }

    void theTimeFormatShowsAtOnce()
    {
        ScratchState state;
        PreferencesDialog dialog(state.state());
        auto *format = comboOf(dialog, QStringLiteral("Time format"));
        auto *start = comboOf(dialog, QStringLiteral("Workday"));
        choose(format, QStringLiteral("24"));
        QCOMPARE(state->preferences()->get(QStringLiteral("ui/timeFormat"), QString()), QStringLiteral("24"));
        QCOMPARE(start->currentText(), QStringLiteral("08:00"));
        choose(format, QStringLiteral("12"));
        QCOMPARE(start->currentText(), QStringLiteral("8:00 AM"));
    }

    void theDefaultCalendar()
    {
        ScratchState state;
        const QString work = state.addCalendar(QStringLiteral("Work"));
        PreferencesDialog dialog(state.state());
        auto *combo = comboOf(dialog, QStringLiteral("Calendar for new events"));
        const QString key = DefaultCalendar::defaultKey(false);
        choose(combo, work);
        QCOMPARE(DefaultCalendar::preferredCalendarId(state->preferences(), false), work);
        choose(combo, DefaultCalendar::sentinel());
        QCOMPARE(state->preferences()->get(key, QString()), DefaultCalendar::sentinel());
        QSignalSpy changed(state->preferences(), &PreferencesRepository::changed);
        choose(combo, QString());
        QCOMPARE(DefaultCalendar::preferredCalendarId(state->preferences(), false), QString());
        QCOMPARE(changed, QList<QVariantList>{ { key } });
    }

    void theLanguageIsKeptOutsideTheDatabase()
    {
        ScratchState state;
        PreferencesDialog dialog(state.state());
        auto *combo = comboOf(dialog, QStringLiteral("Language"));
        QCOMPARE(combo->currentData().toString(), QStringLiteral("system"));
        choose(combo, QStringLiteral("ja"));
        QCOMPARE(QSettings().value(QStringLiteral("ui/language")).toString(), QStringLiteral("ja"));
        QVERIFY(!state->preferences()->get(QStringLiteral("ui/language")));
    }

    void switchesStore_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("key");
        QTest::newRow("start minimized") << "Start minimized"
                                         << "ui/startMinimized";
        QTest::newRow("week numbers") << "Show week numbers"
                                      << "ui/showWeekNumbers";
    }
    void switchesStore()
    {
        QFETCH(QString, text);
        QFETCH(QString, key);
        ScratchState state;
        PreferencesDialog dialog(state.state());
        const auto boxes = dialog.findChildren<QCheckBox *>();
        const auto box = std::ranges::find_if(boxes, [&](QCheckBox *b) { return b->text().remove(u'&') == text; });
        QVERIFY(box != boxes.end() && !(*box)->isChecked());
        (*box)->click();
        QVERIFY(state->preferences()->getBool(key, false));
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(tst_PreferencesDialog)
#include "tst_PreferencesDialog.moc"
