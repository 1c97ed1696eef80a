#include "models/Event.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "support/ScratchState.h"
#include "ui/dialogs/CalendarChecklist.h"
#include "ui/dialogs/FilterEventChoice.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/FilterPatternEditor.h"
#include "ui/dialogs/FilterPreview.h"
#include "ui/dialogs/FilterTimeEditor.h"
#include "ui/dialogs/InlineMessage.h"
#include "ui/dialogs/Prompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimeEdit>
#include <QToolButton>

namespace {

QJsonObject json(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

/// Away from every default that the form could fall back to.
FilterRule storedRule(const QString &type, const QString &conditions)
{
    FilterRule rule;
    rule.id = QStringLiteral("rule-1");
    rule.name = QStringLiteral("A rule");
    rule.type = type;
    rule.conditions = conditions;
    rule.enabled = false;
    rule.action = FilterAction::Dim;
    rule.priority = 12345;
    rule.suppressReminders = true;
    rule.syncStatus = SyncStatus::Synced;
    rule.createdAt = QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3), Qt::UTC);
    rule.updatedAt = rule.createdAt;
    return rule;
}

void chooseData(FilterFormDialog &form, const char *combo, QLatin1StringView data)
{
    auto *box = form.findChild<QComboBox *>(QLatin1StringView(combo));
    box->setCurrentIndex(box->findData(QString(data)));
}

QDateTime inDays(int days, int hour)
{
    return QDateTime(QDate::currentDate().addDays(days), QTime(hour, 0)).toUTC();
}

}

class tst_FilterFormDialog : public QObject {
    Q_OBJECT

private slots:
    void aStoredRuleComesBackFromTheForm_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("conditions");
        QTest::newRow("pattern, every list")
            << QString(FilterType::Pattern)
            << QStringLiteral(
                   R"({"runtimeType":"pattern","titleContains":["standup","a 'b'"],"titleExact":["X "],)"
                   R"("descriptionContains":["d1","d2","d3"],"locationContains":["l"],"caseSensitive":true})");
        QTest::newRow("pattern, one text")
            << QString(FilterType::Pattern)
            << QStringLiteral(R"({"runtimeType":"pattern","titleContains":[],"titleExact":[],)"
                              R"("descriptionContains":[],"locationContains":["Room 5"],"caseSensitive":false})");
        QTest::newRow("time, exact")
            << QString(FilterType::Time)
            << QStringLiteral(R"({"runtimeType":"time","timeExact":"00:05","timeRange":{"start":"","end":""},)"
                              R"("daysOfWeek":[],"recurringOnly":false})");
        QTest::newRow("time, range and days")
            << QString(FilterType::Time)
            << QStringLiteral(R"({"runtimeType":"time","timeExact":"","timeRange":{"start":"09:00","end":"17:30"},)"
                              R"("daysOfWeek":["mon","fri","sun"],"recurringOnly":true})");
        QTest::newRow("time, open end")
            << QString(FilterType::Time)
            << QStringLiteral(R"({"runtimeType":"time","timeExact":"","timeRange":{"start":"22:00","end":""},)"
                              R"("daysOfWeek":[],"recurringOnly":false})");
        QTest::newRow("all day") << QString(FilterType::AllDay)
                                 << QStringLiteral(R"({"runtimeType":"allDay","recurringOnly":false})");
        QTest::newRow("all day, repeating")
            << QString(FilterType::AllDay) << QStringLiteral(R"({"runtimeType":"allDay","recurringOnly":true})");
        QTest::newRow("specific") << QString(FilterType::Specific) << QStringLiteral(R"({"runtimeType":"specific"})");
    }

    void aStoredRuleComesBackFromTheForm()
    {
        QFETCH(QString, type);
        QFETCH(QString, conditions);
        ScratchState state;
        FilterRule rule = storedRule(type, conditions);
        rule.calendarIds = QStringLiteral("[\"%1\",\"not-here-yet\"]").arg(ScratchState::calendarId());
        if (type == FilterType::Specific) {
            rule.eventUid = QStringLiteral("uid-from-elsewhere");
            rule.eventCalendarId = QStringLiteral("calendar-from-elsewhere");
        }
        QVERIFY(state->filterRules()->insert(rule));

        FilterFormDialog form(state.state(), rule);
        form.accept();
        QCOMPARE(form.problemText(), QString());
        QCOMPARE(form.resultRuleId(), rule.id);
        FilterRule stored = state->filterRules()->getById(rule.id).value();
        QCOMPARE(json(stored.conditions), json(conditions));
        QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
        stored.conditions = rule.conditions;
        stored.syncStatus = rule.syncStatus;
        stored.updatedAt = rule.updatedAt;
        QVERIFY(stored == rule);
    }

    void storesTextsAsTyped()
    {
        ScratchState state;
        FilterFormDialog form(state.state());
        auto *editor = form.findChild<FilterPatternEditor *>();
        QTest::keyClicks(editor->firstField(), QStringLiteral("standup"));
        QTest::mouseClick(editor->findChild<QPushButton *>(), Qt::LeftButton); // adds a row, left blank
        form.findChild<QLineEdit *>(QStringLiteral("name"))->setText(QStringLiteral("No standups"));
        chooseData(form, "action", FilterAction::Dim);
        form.accept();

        const FilterRule stored = state->filterRules()->getById(form.resultRuleId()).value();
        QCOMPARE(stored.name, QStringLiteral("No standups"));
        QCOMPARE(stored.type, QString(FilterType::Pattern));
        QCOMPARE(stored.action, QString(FilterAction::Dim));
        QCOMPARE(stored.calendarIds, QStringLiteral("[]"));
        QCOMPARE(stored.priority, 100);
        QVERIFY(stored.enabled);
        QCOMPARE(json(stored.conditions).value(u"titleContains").toArray(), QJsonArray{ QStringLiteral("standup") });
        QVERIFY(stored.createdAt.isValid());
    }

    void storesTimesAndDaysAsChosen()
    {
        ScratchState state;
        FilterFormDialog form(state.state());
        chooseData(form, "kind", FilterType::Time);
        auto *editor = form.findChild<FilterTimeEditor *>();
        qobject_cast<QCheckBox *>(editor->firstField())->click();
        editor->findChildren<QTimeEdit *>().constFirst()->setTime(QTime(21, 5));
        const auto days = editor->findChildren<QToolButton *>();
        for (QToolButton *day : days) {
            if (day->accessibleName() == QStringLiteral("Wednesday"))
                day->click();
        }
        form.accept();
        const FilterRule stored = state->filterRules()->getById(form.resultRuleId()).value();
        QCOMPARE(stored.type, QString(FilterType::Time));
        QCOMPARE(json(stored.conditions).value(u"timeExact").toString(), QStringLiteral("21:05"));
        QCOMPARE(json(stored.conditions).value(u"daysOfWeek").toArray(), QJsonArray{ QStringLiteral("wed") });
        QVERIFY(!stored.name.isEmpty()); // named after what it does
    }

    void offersTheComingEventsForARuleOnOne()
    {
        ScratchState state;
        const Event dentist = state.addEvent(QStringLiteral("Dentist"), inDays(3, 12), inDays(3, 13));
        FilterFormDialog form(state.state());
        chooseData(form, "kind", FilterType::Specific);
        auto *choice = form.findChild<FilterEventChoice *>();
        QCOMPARE(choice->count(), 1);
        QVERIFY(choice->itemText(0).startsWith(QStringLiteral("Dentist")));
        choice->setCurrentIndex(0);
        form.accept();
        const FilterRule stored = state->filterRules()->getById(form.resultRuleId()).value();
        QCOMPARE(stored.type, QString(FilterType::Specific));
        QCOMPARE(stored.eventUid, dentist.uid);
        QCOMPARE(stored.eventCalendarId, dentist.calendarId);
    }

    void refusesWhatWouldMatchNothingOrEverything_data()
    {
        QTest::addColumn<QString>("conditions");
        QTest::addColumn<int>("scope");
        QTest::newRow("no text") << QStringLiteral(R"({"runtimeType":"pattern","caseSensitive":true})") << 0;
        QTest::newRow("blank texts") << QStringLiteral(R"({"runtimeType":"pattern","titleContains":[""," "]})") << 0;
        QTest::newRow("no day and no time") << QStringLiteral(R"({"runtimeType":"time","recurringOnly":true})") << 0;
        QTest::newRow("no event") << QStringLiteral(R"({"runtimeType":"specific"})") << 0;
        QTest::newRow("no calendar") << QStringLiteral(R"({"runtimeType":"allDay"})") << 1;
    }

    void refusesWhatWouldMatchNothingOrEverything()
    {
        QFETCH(QString, conditions);
        QFETCH(int, scope);
        ScratchState state;
        const FilterRule rule = storedRule(FilterType::Pattern, conditions);
        QVERIFY(state->filterRules()->insert(rule));
        FilterFormDialog form(state.state(), rule);
        form.findChild<QComboBox *>(QStringLiteral("scope"))->setCurrentIndex(scope);
        QSignalSpy accepted(&form, &QDialog::accepted);
        form.accept();
        QVERIFY(!form.problemText().isEmpty());
        QVERIFY(accepted.isEmpty());
        QCOMPARE(state->filterRules()->getById(rule.id)->conditions, conditions);
    }

    void warnsOfARangeOverMidnight()
    {
        ScratchState state;
        FilterTimeEditor editor(state.state());
        auto *warning = editor.findChild<InlineMessage *>();
        editor.setConditions({ .timeExact = {},
                               .rangeStart = QStringLiteral("22:00"),
                               .rangeEnd = QStringLiteral("02:00"),
                               .daysOfWeek = {} });
        QVERIFY(!warning->isHidden());
        editor.setConditions({ .timeExact = {},
                               .rangeStart = QStringLiteral("02:00"),
                               .rangeEnd = QStringLiteral("22:00"),
                               .daysOfWeek = {} });
        QVERIFY(warning->isHidden());
    }

    void previewCountsOccurrencesOfTheComingDays()
    {
        ScratchState state;
        Event weekly = state.addEvent(QStringLiteral("Standup"), inDays(0, 12), inDays(0, 13));
        weekly.recurrenceRule = QStringLiteral("FREQ=WEEKLY");
        QVERIFY(state->events()->update(weekly));
        state.addEvent(QStringLiteral("standup extra"), inDays(29, 12), inDays(29, 13));
        state.addEvent(QStringLiteral("Standup too late"), inDays(30, 12), inDays(30, 13));
        state.addEvent(QStringLiteral("Lunch"), inDays(1, 12), inDays(1, 13));

        FilterRule rule =
            storedRule(FilterType::Pattern, QStringLiteral(R"({"runtimeType":"pattern","titleContains":["STANDUP"]})"));
        FilterFormDialog form(state.state(), rule);
        auto *preview = form.findChild<FilterPreview *>();
        // Days 0, 7, 14, 21, 28 and the extra one of day 29; dimmed and switched off as the rule is.
        QTRY_COMPARE(preview->countText(), QStringLiteral("6 event(s) in the next 30 days match"));
        QCOMPARE(preview->titlesText(), QStringLiteral("Standup, standup extra"));

        chooseData(form, "kind", FilterType::AllDay);
        QTRY_COMPARE(preview->countText(), QStringLiteral("0 event(s) in the next 30 days match"));
        state.addAllDayEvent(QStringLiteral("Holiday"), QDate::currentDate().addDays(2), 3);
        QTRY_COMPARE(preview->countText(), QStringLiteral("1 event(s) in the next 30 days match"));
    }

    void seedsFromAnEvent()
    {
        ScratchState state;
        const Event event = state.addEvent(QStringLiteral("Team lunch"), inDays(1, 12), inDays(1, 13));
        FilterFormDialog form(state.state());
        form.seedFromEvent(event);
        QCOMPARE(json(form.rule().conditions).value(u"titleExact").toArray(),
                 QJsonArray{ QStringLiteral("Team lunch") });
        QCOMPARE(form.rule().name, QStringLiteral("Team lunch"));
        chooseData(form, "kind", FilterType::Specific);
        QCOMPARE(form.rule().eventUid, event.uid);
        QCOMPARE(form.rule().eventCalendarId, event.calendarId);
        chooseData(form, "kind", FilterType::Time);
        auto *editor = form.findChild<FilterTimeEditor *>();
        qobject_cast<QCheckBox *>(editor->firstField())->click();
        QCOMPARE(editor->conditions().timeExact, QStringLiteral("12:00"));
    }

    void deletesWhenAsked()
    {
        ScratchState state;
        const FilterRule rule = storedRule(FilterType::AllDay, QStringLiteral(R"({"runtimeType":"allDay"})"));
        QVERIFY(state->filterRules()->insert(rule));
        Prompt::ScopedAnswers answers;
        FilterFormDialog form(state.state(), rule);
        QSignalSpy rejected(&form, &QDialog::rejected);
        const auto buttons = form.findChild<QDialogButtonBox *>()->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->text().contains(QStringLiteral("Delete")))
                button->click();
        }
        QTRY_COMPARE(rejected.size(), 1);
        QCOMPARE(answers.asked.size(), 1);
        QVERIFY(state->filterRules()->getAll().isEmpty());
    }

    void saysSoWhenTheRuleWasDeletedMeanwhile()
    {
        ScratchState state;
        const FilterRule rule = storedRule(FilterType::AllDay, QStringLiteral(R"({"runtimeType":"allDay"})"));
        QVERIFY(state->filterRules()->insert(rule));
        FilterFormDialog form(state.state(), rule);
        QVERIFY(state->filterRules()->softDelete(rule.id));
        form.accept();
        QVERIFY(!form.problemText().isEmpty());
        QVERIFY(state->filterRules()->getAll().isEmpty());
    }
};

QTEST_MAIN(tst_FilterFormDialog)
#include "tst_FilterFormDialog.moc"
