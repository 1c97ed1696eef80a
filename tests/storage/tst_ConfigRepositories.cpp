#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TemplateRepository.h"
#include "storage/ViewRepository.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

bool isNow(const QDateTime &time)
{
    return qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 60;
}

template <typename Record> Record named(const QString &id, const QString &name)
{
    Record record;
    record.id = id;
    record.name = name;
    record.updatedAt = utc("2026-05-01");
    return record;
}

}

/// The small tables of the user's configuration: groups, filters, templates, settings.
class tst_ConfigRepositories : public QObject {
    Q_OBJECT

private slots:
    void init() { m_database = std::make_unique<ScratchDatabase>(); }
    void cleanup()
    {
        QCOMPARE(m_database->problems(), QString());
        m_database.reset();
    }

    void views()
    {
        ViewRepository views(m_database->get());
        QSignalSpy changed(&views, &ViewRepository::viewsChanged);
        QVERIFY(isNow(views.getById(u"all-calendars"_s)->createdAt)); // stamped by SQLite, in UTC
        for (const QString &id : { u"b"_s, u"a"_s, u"first"_s })
            QVERIFY(views.insert(named<ViewDef>(id, id)));
        ViewDef first = *views.getById(u"first"_s);
        first.sortOrder = -5;
        QVERIFY(views.update(first));
        QVERIFY(isNow(views.getById(u"first"_s)->updatedAt));
        QCOMPARE(idsOf(views.getAll()), u"all-calendars first a b"_s);

        m_database->execute(u"UPDATE calendar_views SET sync_status = 'synced'"_s);
        QVERIFY(views.reorder({ u"b"_s, u"a"_s }) && views.softDelete(u"a"_s) && views.reorder({}));
        QCOMPARE(m_database->count(u"calendar_views"_s, u"sync_status = 'pending'"_s), 2);
        QCOMPARE(changed.size(), 6);
        QCOMPARE(idsOf(views.getAll()), u"all-calendars first b"_s);
        QCOMPARE(idsOf(views.getAllIncludingDeleted()), u"all-calendars first b a"_s);
        QVERIFY(isNow(views.getById(u"a"_s)->deletedAt.value()));
        QVERIFY(views.hardDelete(u"a"_s));
        QCOMPARE(views.getById(u"a"_s), std::nullopt);
    }

    void filters()
    {
        FilterRuleRepository filters(m_database->get());
        for (const QString &name : { u"1 z"_s, u"2 b"_s, u"3 a"_s }) {
            FilterRule rule = named<FilterRule>(name.section(u' ', 0, 0), name.section(u' ', 1));
            rule.priority = rule.id == u"1" ? 5 : 100;
            QVERIFY(filters.insert(rule));
        }
        QCOMPARE(idsOf(filters.getAll()), u"1 3 2"_s);
        QSignalSpy changed(&filters, &FilterRuleRepository::filterRulesChanged);
        const quint64 generation = (*m_database)->dataGeneration();
        QVERIFY(filters.reorder({ u"2"_s, u"1"_s, u"3"_s }));
        QCOMPARE(idsOf(filters.getAll()), u"2 1 3"_s);
        QCOMPARE(changed.size(), 1);
        QVERIFY((*m_database)->dataGeneration() > generation);
        QVERIFY(filters.update(named<FilterRule>(u"3"_s, u"c"_s)));
        QVERIFY(isNow(filters.getById(u"3"_s)->updatedAt));

        m_database->execute(u"UPDATE filter_rules SET sync_status = 'synced'"_s);
        QVERIFY(filters.setEnabled(u"1"_s, false));
        QVERIFY(filters.softDelete(u"2"_s));
        QCOMPARE(idsOf(filters.getEnabled()), u"3"_s);
        QCOMPARE(idsOf(filters.getAll()), u"1 3"_s);
        QCOMPARE(idsOf(filters.getAllIncludingDeleted()), u"2 1 3"_s);
        QVERIFY(filters.getById(u"2"_s)->enabled);
        QCOMPARE(m_database->count(u"filter_rules"_s, u"sync_status = 'pending'"_s), 2);
        QVERIFY(filters.hardDelete(u"2"_s));
        QCOMPARE(filters.getById(u"2"_s), std::nullopt);
    }

    void templates()
    {
        TemplateRepository templates(m_database->get());
        QSignalSpy changed(&templates, &TemplateRepository::templatesChanged);
        QVERIFY(templates.insert(named<EventTemplate>(QString(), u"t"_s)));
        EventTemplate record = templates.getAll().value(0);
        QCOMPARE(record.id.size(), 36);
        QVERIFY(isNow(record.createdAt) && isNow(record.updatedAt));
        m_database->execute(
            u"UPDATE event_templates SET sync_status = 'synced', updated_at = '2026-05-01T00:00:00Z'"_s);
        QVERIFY(templates.update(record));
        QVERIFY(isNow(templates.getById(record.id)->updatedAt));
        QCOMPARE(m_database->text(u"SELECT sync_status FROM event_templates"_s), u"pending"_s);
        for (const QString &text : { u""_s, u"15"_s, u"{\"a\":1}"_s, u"[15"_s }) {
            m_database->execute(u"UPDATE event_templates SET reminders = '%1'"_s.arg(text));
            QCOMPARE(templates.getById(record.id)->reminders, QList<int>());
        }

        QVERIFY(templates.softDelete(record.id));
        QCOMPARE(templates.getById(record.id), std::nullopt);
        QVERIFY(templates.getAll().isEmpty());
        QCOMPARE(templates.getAllIncludingDeleted().size(), 1);
        QVERIFY(templates.hardDelete(record.id));
        QVERIFY(templates.getAllIncludingDeleted().isEmpty());
        QCOMPARE(changed.size(), 4);
    }

    void settings()
    {
        PreferencesRepository settings(m_database->get());
        QSignalSpy changed(&settings, &PreferencesRepository::changed);
        QCOMPARE(settings.get(u"ui/theme"_s, u"system"_s), u"system"_s);
        QVERIFY(settings.set(u"ui/theme"_s, u"light"_s) && settings.set(u"ui/theme"_s, u"dark"_s));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed.first().at(0).toString(), u"ui/theme"_s);
        QCOMPARE(settings.get(u"ui/theme"_s, u"system"_s), u"dark"_s);
        QVERIFY(settings.remove(u"ui/theme"_s));
        QCOMPARE(settings.get(u"ui/theme"_s), std::nullopt);

        QVERIFY(settings.getInt(u"key"_s, 42) == 42 && settings.getBool(u"key"_s, true));
        const auto reads = [&](const QString &text, int number, bool flag) {
            return settings.set(u"key"_s, text) && settings.getInt(u"key"_s, 42) == number
                && settings.getBool(u"key"_s, true) == flag;
        };
        QVERIFY(reads(u"-5"_s, -5, false));
        QVERIFY(reads(u"1"_s, 1, true));
        QVERIFY(reads(u"true"_s, 42, true));
        QVERIFY(reads(u"1.5"_s, 42, false));
        QVERIFY(reads(u"99999999999"_s, 42, false));
        QVERIFY(reads(QString(), 42, false)); // not the default: it was stored as empty
        QVERIFY(settings.setInt(u"key"_s, -12) && settings.setBool(u"yes"_s, true) && settings.setBool(u"no"_s, false));
        QCOMPARE(m_database->text(u"SELECT value FROM settings WHERE type = 'string' ORDER BY key"_s), u"-12 0 1"_s);
    }

private:
    std::unique_ptr<ScratchDatabase> m_database;
};

QTEST_GUILESS_MAIN(tst_ConfigRepositories)
#include "tst_ConfigRepositories.moc"
