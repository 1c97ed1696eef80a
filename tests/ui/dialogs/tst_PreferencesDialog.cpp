#include "app/state/DefaultCalendar.h"
#include "support/ScratchState.h"
#include "ui/dialogs/PreferencesDialog.h"

#include <QtTest>
#include <QtWidgets>

class tst_PreferencesDialog : public QObject {
    Q_OBJECT

private:
    QComboBox *comboOf(const QString &label)
    {
        const auto labels = m_dialog->findChildren<QLabel *>();
        for (QLabel *candidate : labels) {
            if (QString(candidate->text()).remove(u'&') == label)
                return qobject_cast<QComboBox *>(candidate->buddy());
        }
        return nullptr;
    }

    /// As the user does it: the program answers to activated, not to a change from code.
    void choose(const QString &label, const QVariant &data)
    {
        QComboBox *combo = comboOf(label);
        const int index = combo->findData(data);
        QVERIFY(index >= 0);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    PreferencesRepository *preferences() { return (*m_state)->preferences(); }

    QTemporaryDir m_settings;
    std::unique_ptr<ScratchState> m_state;
    std::unique_ptr<PreferencesDialog> m_dialog;
    QString m_work;

private slots:
    void initTestCase()
    {
        QVERIFY(m_settings.isValid());
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        QCoreApplication::setOrganizationName(u"DialogTest"_qs);
    }

    void init()
    {
        m_dialog.reset();
        m_state = std::make_unique<ScratchState>();
        m_work = m_state->addCalendar(u"Work"_qs);
        m_dialog = std::make_unique<PreferencesDialog>(m_state->state());
    }

    void theFirstDayOfTheWeekCountsAsTheUsersOwn()
    {
        QSignalSpy changed(m_state->state(), &AppState::firstDayOfWeekChanged);
        choose(u"First day of the week"_qs, int(Qt::Saturday));
        QCOMPARE(m_state->state()->firstDayOfWeek(), Qt::Saturday);
        QCOMPARE(changed.size(), 1);
        QVERIFY(preferences()->getBool(u"ui/weekStartDay/customized"_qs, false));
    }

    void theWorkdayHasAtLeastAnHour()
    {
        choose(u"Time format"_qs, u"24"_qs);
        QCOMPARE(comboOf(u"Workday"_qs)->currentText(), u"08:00"_qs);
        choose(u"Time format"_qs, u"12"_qs);
        QCOMPARE(preferences()->get(u"ui/timeFormat"_qs, {}), u"12"_qs);
        QCOMPARE(comboOf(u"Workday"_qs)->currentText(), u"8:00 AM"_qs);
        choose(u"Workday"_qs, 23);
        QCOMPARE(preferences()->getInt(u"ui/workdayStart"_qs, -1), 23);
        QCOMPARE(preferences()->getInt(u"ui/workdayEnd"_qs, -1), 24);
    }

    void theDefaultCalendar()
    {
        const QString label = u"Calendar for new events"_qs;
        const QString key = DefaultCalendar::defaultKey(false);
        choose(label, m_work);
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences(), false), m_work);
        choose(label, DefaultCalendar::sentinel());
        QCOMPARE(preferences()->get(key, {}), DefaultCalendar::sentinel());
        QSignalSpy changed(preferences(), &PreferencesRepository::changed);
        choose(label, QString());
        QCOMPARE(DefaultCalendar::preferredCalendarId(preferences(), false), QString());
        QCOMPARE(changed, QList<QVariantList>{ { key } });
    }

    void theLanguageIsKeptOutsideTheDatabase()
    {
        QCOMPARE(comboOf(u"Language"_qs)->currentData().toString(), u"system"_qs);
        choose(u"Language"_qs, u"ja"_qs);
        QCOMPARE(QSettings().value(u"ui/language"_qs).toString(), u"ja"_qs);
        QVERIFY(!preferences()->get(u"ui/language"_qs));
        m_dialog->findChild<QCheckBox *>()->click();
        QVERIFY(preferences()->getBool(u"ui/startMinimized"_qs, false));
    }
};

QTEST_MAIN(tst_PreferencesDialog)
#include "tst_PreferencesDialog.moc"
