#include "support/ScratchState.h"
#include "support/TestData.h"
#include "ui/dialogs/FilterEventChoice.h"
#include "ui/dialogs/FilterFormDialog.h"
#include "ui/dialogs/FilterPatternEditor.h"
#include "ui/dialogs/FilterPreview.h"
#include "ui/dialogs/FilterTimeEditor.h"
#include "ui/dialogs/InlineMessage.h"
#include "ui/dialogs/Prompt.h"

#include <QtTest>
#include <QtWidgets>

namespace {

QJsonObject json(const QString &text)
{
    return QJsonDocument::fromJson(text.toUtf8()).object();
}

void chooseData(FilterFormDialog &form, const QString &combo, QLatin1StringView data)
{
    auto *box = form.findChild<QComboBox *>(combo);
    box->setCurrentIndex(box->findData(QString(data)));
}

QDateTime inDays(int days, int hour)
{
    return QDateTime(QDate::currentDate().addDays(days), QTime(hour, 0)).toUTC();
}

const QString Pattern = FilterType::Pattern;
const QString Time = FilterType::Time;
const QString AllDay = FilterType::AllDay;
const QString Specific = FilterType::Specific;
const QString AnyAllDay = QStringLiteral(R"({"runtimeType":"allDay"})");

}

class tst_FilterFormDialog : public QObject {
    Q_OBJECT

private:
    FilterRuleRepository *rules() { return (*m_state)->filterRules(); }

    /// A stored rule, away from every default that the form could fall back to.
    FilterRule addRule(const QString &type, const QString &conditions)
    {
        FilterRule rule;
        rule.id = u"rule-1"_qs;
        rule.name = u"A rule"_qs;
        rule.type = type;
        rule.conditions = conditions;
        rule.enabled = false;
        rule.action = FilterAction::Dim;
        rule.priority = 12345;
        rule.suppressReminders = true;
        rule.syncStatus = SyncStatus::Synced;
        rule.createdAt = rule.updatedAt = QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3), Qt::UTC);
        rule.calendarIds = u"[\"%1\",\"not-here-yet\"]"_qs.arg(ScratchState::calendarId());
        if (type == Specific) {
            rule.eventUid = u"uid-from-elsewhere"_qs;
            rule.eventCalendarId = u"calendar-from-elsewhere"_qs;
        }
        if (!rules()->insert(rule))
            qFatal("cannot store a scratch filter");
        return rule;
    }

    Event addEvent(const QString &title, int days)
    {
        return m_state->addEvent(title, inDays(days, 12), inDays(days, 13));
    }

    FilterRule saved(FilterFormDialog &form)
    {
        form.accept();
        return rules()->getById(form.resultRuleId()).value_or(FilterRule());
    }

    std::optional<ScratchState> m_state;

private slots:
    void init() { m_state.emplace(); }

    void aStoredRuleComesBackFromTheForm_data()
    {
        columns<QString, QString>("type", "conditions");
        QTest::newRow("pattern, every list")
            << Pattern
            << QStringLiteral(
                   R"({"runtimeType":"pattern","titleContains":["standup","a 'b'"],"titleExact":["X "],)"
                   R"("descriptionContains":["d1","d2","d3"],"locationContains":["l"],"caseSensitive":true})");
        QTest::newRow("time, exact")
            << Time
            << QStringLiteral(R"({"runtimeType":"time","timeExact":"00:05","timeRange":{"start":"","end":""},)"
                              R"("daysOfWeek":[],"recurringOnly":false})");
        QTest::newRow("time, range and days")
            << Time
            << QStringLiteral(R"({"runtimeType":"time","timeExact":"","timeRange":{"start":"09:00","end":"17:30"},)"
                              R"("daysOfWeek":["mon","fri","sun"],"recurringOnly":true})");
        QTest::newRow("all day") << AllDay << QStringLiteral(R"({"runtimeType":"allDay","recurringOnly":true})");
        QTest::newRow("specific") << Specific << QStringLiteral(R"({"runtimeType":"specific"})");
    }

    void aStoredRuleComesBackFromTheForm()
    {
        QFETCH(QString, type);
        QFETCH(QString, conditions);
        const FilterRule rule = addRule(type, conditions);
        FilterFormDialog form(m_state->state(), rule);
        FilterRule stored = saved(form);
        QCOMPARE(form.problemText(), QString());
        QCOMPARE(json(stored.conditions), json(conditions));
        QCOMPARE(stored.syncStatus, QString(SyncStatus::Pending));
        stored.conditions = rule.conditions;
        stored.syncStatus = rule.syncStatus;
        stored.updatedAt = rule.updatedAt;
        QVERIFY(stored == rule);
    }

    void storesWhatIsTypedAndChosen()
    {
        FilterFormDialog texts(m_state->state());
        auto *editor = texts.findChild<FilterPatternEditor *>();
        QTest::keyClicks(editor->firstField(), u"standup"_qs);
        QTest::mouseClick(editor->findChild<QPushButton *>(), Qt::LeftButton); // adds a row, left blank
        texts.findChild<QLineEdit *>(u"name"_qs)->setText(u"No standups"_qs);
        const FilterRule byText = saved(texts);
        QCOMPARE(byText.name, u"No standups"_qs);
        QCOMPARE(byText.type, Pattern);
        QCOMPARE(byText.calendarIds, u"[]"_qs);
        QVERIFY(byText.enabled);
        QCOMPARE(json(byText.conditions).value(u"titleContains").toArray(), QJsonArray{ u"standup"_qs });

        FilterFormDialog days(m_state->state());
        chooseData(days, u"kind"_qs, FilterType::Time);
        const auto buttons = days.findChild<FilterTimeEditor *>()->findChildren<QToolButton *>();
        for (QToolButton *button : buttons)
            button->setChecked(button->accessibleName() == u"Wednesday");
        const FilterRule byDay = saved(days);
        QCOMPARE(byDay.type, Time);
        QCOMPARE(json(byDay.conditions).value(u"daysOfWeek").toArray(), QJsonArray{ u"wed"_qs });
        QVERIFY(!byDay.name.isEmpty()); // named after what it does
    }

    void offersTheComingEventsForARuleOnOne()
    {
        const Event dentist = addEvent(u"Dentist"_qs, 3);
        FilterFormDialog form(m_state->state());
        chooseData(form, u"kind"_qs, FilterType::Specific);
        auto *choice = form.findChild<FilterEventChoice *>();
        QCOMPARE(choice->count(), 1);
        QVERIFY(choice->itemText(0).startsWith(u"Dentist"));
        choice->setCurrentIndex(0);
        QCOMPARE(saved(form).eventUid, dentist.uid);
    }

    void refusesWhatWouldMatchNothingOrEverything_data()
    {
        QTest::addColumn<QString>("conditions");
        QTest::newRow("no text") << QStringLiteral(R"({"runtimeType":"pattern","caseSensitive":true})");
        QTest::newRow("blank texts") << QStringLiteral(R"({"runtimeType":"pattern","titleContains":[""," "]})");
        QTest::newRow("no day and no time") << QStringLiteral(R"({"runtimeType":"time","recurringOnly":true})");
        QTest::newRow("no event") << QStringLiteral(R"({"runtimeType":"specific"})");
        QTest::newRow("no calendar") << AnyAllDay;
    }

    void refusesWhatWouldMatchNothingOrEverything()
    {
        QFETCH(QString, conditions);
        FilterRule rule = addRule(Pattern, conditions);
        rule.calendarIds = u"[]"_qs;
        FilterFormDialog form(m_state->state(), rule);
        form.findChild<QComboBox *>(u"scope"_qs)->setCurrentIndex(conditions == AnyAllDay ? 1 : 0);
        QSignalSpy accepted(&form, &QDialog::accepted);
        form.accept();
        QVERIFY(!form.problemText().isEmpty());
        QVERIFY(accepted.isEmpty());
        QCOMPARE(rules()->getById(rule.id)->conditions, conditions);
    }

    void warnsOfARangeOverMidnight()
    {
        FilterTimeEditor editor(m_state->state());
        auto *warning = editor.findChild<InlineMessage *>();
        FilterEngine::TimeConditions range;
        range.rangeStart = u"22:00"_qs;
        range.rangeEnd = u"02:00"_qs;
        editor.setConditions(range);
        QVERIFY(!warning->isHidden());
        std::swap(range.rangeStart, range.rangeEnd);
        editor.setConditions(range);
        QVERIFY(warning->isHidden());
    }

    void previewCountsOccurrencesOfTheComingDays()
    {
        Event weekly = addEvent(u"Standup"_qs, 0);
        weekly.recurrenceRule = u"FREQ=WEEKLY"_qs;
        QVERIFY((*m_state)->events()->update(weekly));
        addEvent(u"standup extra"_qs, 29);
        addEvent(u"Standup too late"_qs, 30);
        addEvent(u"Lunch"_qs, 1);
        FilterRule rule = addRule(Pattern, QStringLiteral(R"({"runtimeType":"pattern","titleContains":["STANDUP"]})"));
        rule.calendarIds = u"[]"_qs;
        FilterFormDialog form(m_state->state(), rule);
        auto *preview = form.findChild<FilterPreview *>();
        // Days 0, 7, 14, 21, 28 and the extra one of day 29; dimmed and switched off as the rule is.
        QTRY_COMPARE(preview->countText(), u"6 event(s) in the next 30 days match"_qs);
        QCOMPARE(preview->titlesText(), u"Standup, standup extra"_qs);
        chooseData(form, u"kind"_qs, FilterType::AllDay);
        QTRY_COMPARE(preview->countText(), u"0 event(s) in the next 30 days match"_qs);
        m_state->addAllDayEvent(u"Holiday"_qs, QDate::currentDate().addDays(2), 3);
        QTRY_COMPARE(preview->countText(), u"1 event(s) in the next 30 days match"_qs);
    }

    void seedsFromAnEvent()
    {
        const Event event = addEvent(u"Team lunch"_qs, 1);
        FilterFormDialog form(m_state->state());
        form.seedFromEvent(event);
        QCOMPARE(json(form.rule().conditions).value(u"titleExact").toArray(), QJsonArray{ event.title });
        QCOMPARE(form.rule().name, event.title);
        chooseData(form, u"kind"_qs, FilterType::Specific);
        QCOMPARE(form.rule().eventUid, event.uid);
        QCOMPARE(form.rule().eventCalendarId, event.calendarId);
        chooseData(form, u"kind"_qs, FilterType::Time);
        auto *editor = form.findChild<FilterTimeEditor *>();
        qobject_cast<QCheckBox *>(editor->firstField())->click();
        QCOMPARE(editor->conditions().timeExact, u"12:00"_qs);
    }

    void deletesWhenAsked()
    {
        const FilterRule rule = addRule(AllDay, AnyAllDay);
        Prompt::ScopedAnswers answers;
        FilterFormDialog form(m_state->state(), rule);
        FilterFormDialog second(m_state->state(), rule);
        QSignalSpy rejected(&form, &QDialog::rejected);
        const auto buttons = form.findChild<QDialogButtonBox *>()->buttons();
        for (QAbstractButton *button : buttons) {
            if (button->text().contains(u"Delete"))
                button->click();
        }
        QTRY_COMPARE(rejected.size(), 1);
        QCOMPARE(answers.asked.size(), 1);
        QVERIFY(rules()->getAll().isEmpty());
        second.accept(); // does not bring it back
        QVERIFY(!second.problemText().isEmpty());
        QVERIFY(rules()->getAll().isEmpty());
    }
};

QTEST_MAIN(tst_FilterFormDialog)
#include "tst_FilterFormDialog.moc"
