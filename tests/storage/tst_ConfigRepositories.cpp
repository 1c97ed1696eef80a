#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TemplateRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchDatabase.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

// The small tables of the user's configuration: groups, filters, templates, settings.

namespace {

QString lit(const char *text)
{
    return QString::fromUtf8(text);
}

QDateTime utc(int day)
{
    return QDateTime(QDate(2026, 5, day), QTime(8, 0), Qt::UTC);
}

template <typename Record> QString idsOf(const QList<Record> &records)
{
    QStringList ids;
    for (const Record &record : records)
        ids.append(record.id);
    return ids.join(u' ');
}

bool isNow(const QDateTime &time)
{
    return qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 60;
}

ViewDef view(const QString &id, int sortOrder = 0)
{
    ViewDef result;
    result.id = id;
    result.name = id;
    result.sortOrder = sortOrder;
    return result;
}

FilterRule filter(const QString &id, const QString &name, int priority = 100)
{
    FilterRule result;
    result.id = id;
    result.name = name;
    result.type = FilterType::Pattern;
    result.priority = priority;
    return result;
}

}

class tst_ConfigRepositories : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void viewsKeepEveryField();
    void viewsOrder();
    void viewsDelete();
    void filtersKeepEveryField();
    void filtersOrder();
    void filtersDelete();
    void templatesKeepEveryField();
    void templatesReadOddReminders();
    void templatesDelete();
    void settingsKeepTexts();
    void settingsReadNumbers_data();
    void settingsReadNumbers();
    void settingsReadFlags_data();
    void settingsReadFlags();
    void failuresAreLoggedAndSilent();

private:
    std::unique_ptr<ScratchDatabase> m_database;
};

void tst_ConfigRepositories::init()
{
    m_database = std::make_unique<ScratchDatabase>();
}

void tst_ConfigRepositories::cleanup()
{
    QCOMPARE(m_database->problems(), QString());
    m_database.reset();
}

void tst_ConfigRepositories::viewsKeepEveryField()
{
    ViewRepository views(m_database->get());
    ViewDef record{
        .id = lit("v"),
        .name = lit("Arbeit"),
        .color = lit("#123456"),
        .calendarIds = lit("[\"c\"]"),
        .isDefault = true,
        .sortOrder = 4,
        .syncStatus = SyncStatus::Synced,
        .createdAt = utc(1),
        .updatedAt = utc(2),
        .deletedAt = std::nullopt,
    };
    QVERIFY(views.insert(record));
    QCOMPARE(views.getById(lit("v")), record);

    ViewDef other = view(lit("v"));
    other.createdAt = utc(9);
    other.deletedAt = utc(9);
    QVERIFY(views.update(other));
    ViewDef read = *views.getById(lit("v"));
    QVERIFY(isNow(read.updatedAt));
    other.updatedAt = read.updatedAt;
    other.createdAt = utc(1);
    other.deletedAt.reset();
    QCOMPARE(read, other);

    QVERIFY(views.insert(view(lit("new"))));
    QVERIFY(isNow(views.getById(lit("new"))->createdAt));
    QVERIFY(isNow(views.getById(lit("all-calendars"))->createdAt)); // stamped by SQLite, in UTC
}

void tst_ConfigRepositories::viewsOrder()
{
    ViewRepository views(m_database->get());
    QSignalSpy changed(&views, &ViewRepository::viewsChanged);
    QVERIFY(views.insert(view(lit("b"), 1)) && views.insert(view(lit("a"), 1)) && views.insert(view(lit("first"), -5)));
    m_database->execute(lit("UPDATE calendar_views SET sort_order = 99 WHERE is_default = 1"));
    QCOMPARE(idsOf(views.getAll()), lit("all-calendars first a b"));
    m_database->execute(lit("UPDATE calendar_views SET sync_status = 'synced'"));
    QVERIFY(views.reorder({ lit("b"), lit("a"), lit("first") }));
    QCOMPARE(idsOf(views.getAll()), lit("all-calendars b a first"));
    QCOMPARE(views.getById(lit("a"))->sortOrder, 1);
    QCOMPARE(m_database->count(lit("calendar_views"), lit("sync_status = 'pending'")), 3);
    QCOMPARE(changed.size(), 4);
    QVERIFY(views.reorder({}));
    QCOMPARE(changed.size(), 4);
}

void tst_ConfigRepositories::viewsDelete()
{
    ViewRepository views(m_database->get());
    ViewDef record = view(lit("v"));
    record.syncStatus = SyncStatus::Synced;
    QVERIFY(views.insert(record));
    QVERIFY(views.softDelete(lit("v")));
    QCOMPARE(idsOf(views.getAll()), lit("all-calendars"));
    QCOMPARE(idsOf(views.getAllIncludingDeleted()), lit("all-calendars v"));
    QVERIFY(isNow(views.getById(lit("v"))->deletedAt.value()));
    QCOMPARE(views.getById(lit("v"))->syncStatus, QString(SyncStatus::Pending));
    QVERIFY(views.hardDelete(lit("v")));
    QCOMPARE(views.getById(lit("v")), std::nullopt);
}

void tst_ConfigRepositories::filtersKeepEveryField()
{
    FilterRuleRepository filters(m_database->get());
    FilterRule record{
        .id = lit("f"),
        .name = lit("n"),
        .type = FilterType::Specific,
        .enabled = false,
        .calendarIds = lit("[\"c\"]"),
        .conditions = lit("{\"a\":1}"),
        .action = FilterAction::Dim,
        .priority = 7,
        .eventUid = lit("u"),
        .eventCalendarId = lit("c"),
        .suppressReminders = true,
        .syncStatus = SyncStatus::Synced,
        .createdAt = utc(1),
        .updatedAt = utc(2),
        .deletedAt = std::nullopt,
    };
    QVERIFY(filters.insert(record));
    QCOMPARE(filters.getById(lit("f")), record);

    FilterRule other = filter(lit("f"), lit("other"));
    QVERIFY(filters.update(other));
    const FilterRule read = *filters.getById(lit("f"));
    QVERIFY(isNow(read.updatedAt));
    other.updatedAt = read.updatedAt;
    other.createdAt = utc(1);
    QCOMPARE(read, other);
}

void tst_ConfigRepositories::filtersOrder()
{
    FilterRuleRepository filters(m_database->get());
    QVERIFY(filters.insert(filter(lit("1"), lit("z"), 5)) && filters.insert(filter(lit("2"), lit("b")))
            && filters.insert(filter(lit("3"), lit("a"))));
    QCOMPARE(idsOf(filters.getAll()), lit("1 3 2"));
    QSignalSpy changed(&filters, &FilterRuleRepository::filterRulesChanged);
    const quint64 generation = (*m_database)->dataGeneration();
    QVERIFY(filters.reorder({ lit("2"), lit("1"), lit("3") }));
    QCOMPARE(idsOf(filters.getAll()), lit("2 1 3"));
    QCOMPARE(filters.getById(lit("2"))->priority, 0);
    QCOMPARE(changed.size(), 1);
    QVERIFY((*m_database)->dataGeneration() > generation);
}

void tst_ConfigRepositories::filtersDelete()
{
    FilterRuleRepository filters(m_database->get());
    QVERIFY(filters.insert(filter(lit("1"), lit("a"))) && filters.insert(filter(lit("2"), lit("b")))
            && filters.insert(filter(lit("3"), lit("c"))));
    m_database->execute(lit("UPDATE filter_rules SET sync_status = 'synced'"));
    QVERIFY(filters.setEnabled(lit("1"), false));
    QVERIFY(filters.softDelete(lit("2")));
    QCOMPARE(idsOf(filters.getEnabled()), lit("3"));
    QCOMPARE(idsOf(filters.getAll()), lit("1 3"));
    QCOMPARE(idsOf(filters.getAllIncludingDeleted()), lit("1 2 3"));
    QVERIFY(filters.getById(lit("2"))->enabled);
    QCOMPARE(m_database->count(lit("filter_rules"), lit("sync_status = 'pending'")), 2);
    QVERIFY(filters.setEnabled(lit("1"), true));
    QCOMPARE(idsOf(filters.getEnabled()), lit("1 3"));
    QVERIFY(filters.hardDelete(lit("2")));
    QCOMPARE(filters.getById(lit("2")), std::nullopt);
}

void tst_ConfigRepositories::templatesKeepEveryField()
{
    TemplateRepository templates(m_database->get());
    EventTemplate record{
        .id = lit("t"),
        .name = lit("n"),
        .title = lit("title"),
        .description = lit("d"),
        .location = lit("l"),
        .color = lit("#123456"),
        .isAllDay = true,
        .durationMinutes = 15,
        .recurrenceRule = lit("FREQ=DAILY"),
        .calendarId = lit("c"),
        .reminders = { 0, 10, 1440 },
        .sortOrder = 3,
        .createdAt = utc(1),
        .updatedAt = utc(2),
        .deletedAt = std::nullopt,
    };
    QVERIFY(templates.insert(record));
    EventTemplate read = *templates.getById(lit("t"));
    QVERIFY(isNow(read.createdAt) && isNow(read.updatedAt));
    record.createdAt = read.createdAt;
    record.updatedAt = read.updatedAt;
    QCOMPARE(read, record);
    QCOMPARE(m_database->column(lit("SELECT reminders FROM event_templates")), QStringList{ lit("[0,10,1440]") });

    m_database->execute(lit("UPDATE event_templates SET sync_status = 'synced', updated_at = '2026-05-01T00:00:00Z'"));
    EventTemplate other;
    other.id = lit("t");
    QVERIFY(templates.update(other));
    read = *templates.getById(lit("t"));
    QVERIFY(isNow(read.updatedAt));
    other.createdAt = record.createdAt;
    other.updatedAt = read.updatedAt;
    QCOMPARE(read, other);
    QCOMPARE(m_database->column(lit("SELECT sync_status FROM event_templates")), QStringList{ lit("pending") });

    other.id.clear();
    QVERIFY(templates.insert(other));
    QCOMPARE(m_database->count(lit("event_templates"), lit("length(id) = 36")), 1);
}

void tst_ConfigRepositories::templatesReadOddReminders()
{
    m_database->execute(lit("INSERT INTO event_templates (id, name, title) VALUES ('t', '', '')"));
    TemplateRepository templates(m_database->get());
    QCOMPARE(templates.getById(lit("t"))->reminders, QList<int>{ 15 });
    for (const auto *text : { "", "15", "{\"a\":1}", "[15" }) {
        m_database->execute(lit("UPDATE event_templates SET reminders = '%1'").arg(lit(text)));
        QCOMPARE(templates.getById(lit("t"))->reminders, QList<int>());
    }
}

void tst_ConfigRepositories::templatesDelete()
{
    TemplateRepository templates(m_database->get());
    QSignalSpy changed(&templates, &TemplateRepository::templatesChanged);
    EventTemplate record;
    record.id = lit("t");
    QVERIFY(templates.insert(record));
    QVERIFY(templates.softDelete(lit("t")));
    QCOMPARE(templates.getById(lit("t")), std::nullopt);
    QCOMPARE(templates.getAll().size(), 0);
    QCOMPARE(templates.getAllIncludingDeleted().size(), 1);
    QVERIFY(templates.hardDelete(lit("t")));
    QCOMPARE(templates.getAllIncludingDeleted().size(), 0);
    QCOMPARE(changed.size(), 3);
}

void tst_ConfigRepositories::settingsKeepTexts()
{
    PreferencesRepository settings(m_database->get());
    QSignalSpy changed(&settings, &PreferencesRepository::changed);
    QCOMPARE(settings.get(lit("ui/theme")), std::nullopt);
    QCOMPARE(settings.get(lit("ui/theme"), lit("system")), lit("system"));
    QVERIFY(settings.set(lit("ui/theme"), lit("dark")));
    QVERIFY(settings.set(lit("ui/theme"), lit("dark")));
    QCOMPARE(changed.size(), 2);
    QCOMPARE(changed.first().at(0).toString(), lit("ui/theme"));
    QCOMPARE(settings.get(lit("ui/theme"), lit("system")), lit("dark"));
    QVERIFY(settings.set(lit("empty"), QString()));
    QCOMPARE(settings.get(lit("empty"), lit("default")), QString());
    QVERIFY(settings.setInt(lit("n"), -12));
    QVERIFY(settings.setBool(lit("yes"), true) && settings.setBool(lit("no"), false));
    QCOMPARE(m_database->column(lit("SELECT value FROM settings WHERE type = 'string' ORDER BY key")),
             QStringList({ QString(), lit("-12"), lit("0"), lit("dark"), lit("1") }));
    QVERIFY(settings.remove(lit("ui/theme")));
    QCOMPARE(settings.get(lit("ui/theme")), std::nullopt);
}

void tst_ConfigRepositories::settingsReadNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    QTest::newRow("number") << lit("-5") << -5;
    QTest::newRow("zero") << lit("0") << 0;
    QTest::newRow("text") << lit("ten") << 42;
    QTest::newRow("fraction") << lit("1.5") << 42;
    QTest::newRow("empty") << QString() << 42;
    QTest::newRow("too large") << lit("99999999999") << 42;
}

void tst_ConfigRepositories::settingsReadNumbers()
{
    QFETCH(QString, text);
    PreferencesRepository settings(m_database->get());
    QCOMPARE(settings.getInt(lit("key"), 42), 42);
    QVERIFY(settings.set(lit("key"), text));
    QTEST(settings.getInt(lit("key"), 42), "expected");
}

void tst_ConfigRepositories::settingsReadFlags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("expected");
    QTest::newRow("1") << lit("1") << true;
    QTest::newRow("true") << lit("true") << true;
    QTest::newRow("0") << lit("0") << false;
    QTest::newRow("yes") << lit("yes") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_ConfigRepositories::settingsReadFlags()
{
    QFETCH(QString, text);
    PreferencesRepository settings(m_database->get());
    QVERIFY(settings.getBool(lit("key"), true));
    QVERIFY(settings.set(lit("key"), text));
    for (const bool defaultValue : { true, false })
        QTEST(settings.getBool(lit("key"), defaultValue), "expected");
}

void tst_ConfigRepositories::failuresAreLoggedAndSilent()
{
    ViewRepository views(m_database->get());
    FilterRuleRepository filters(m_database->get());
    QSignalSpy viewsChanged(&views, &ViewRepository::viewsChanged);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^ViewRepository::insert failed: UNIQUE")));
    QVERIFY(!views.insert(view(lit("all-calendars"))));
    QCOMPARE(viewsChanged.size(), 0);
    QVERIFY(filters.insert(filter(lit("1"), lit("a"))));
    m_database->execute(
        lit("CREATE TRIGGER refuse BEFORE UPDATE ON filter_rules BEGIN SELECT RAISE(ABORT, 'no'); END"));
    QSignalSpy filtersChanged(&filters, &FilterRuleRepository::filterRulesChanged);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(lit("^FilterRuleRepository::update failed: no")));
    QVERIFY(!filters.update(filter(lit("1"), lit("b"))));
    QCOMPARE(filtersChanged.size(), 0);
}

QTEST_GUILESS_MAIN(tst_ConfigRepositories)
#include "tst_ConfigRepositories.moc"
