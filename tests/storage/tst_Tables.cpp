#include "storage/Tables.h"
#include "support/ScratchDatabase.h"
#include "support/TestData.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// Every column that the migrations made goes through the records and back.
class tst_Tables : public QObject {
    Q_OBJECT

private slots:
    // What inserting does not take over, and what updating leaves as it was.
    void accounts() { check(Tables::accounts(), u"deleted_at sort_order"_s, u"created_at deleted_at sort_order"_s); }
    void calendars() { check(Tables::calendars(), u"deleted_at"_s, u"created_at deleted_at"_s); }
    void events() { check(Tables::events(), u""_s, u"created"_s); }
    void attendees() { check(Tables::attendees(), u""_s, u""_s); }
    void reminders() { check(Tables::reminders(), u""_s, u""_s); }
    void tasks() { check(Tables::tasks(), u""_s, u"created"_s); }
    void taskReminders() { check(Tables::taskReminders(), u""_s, u""_s); }
    void views() { check(Tables::views(), u"deleted_at"_s, u"created_at deleted_at"_s); }
    void filterRules() { check(Tables::filterRules(), u"deleted_at"_s, u"created_at deleted_at"_s); }
    void templates()
    {
        check(Tables::templates(), u"deleted_at sync_status"_s, u"created_at deleted_at sync_status"_s);
    }

    void aDefaultRecordFits()
    {
        ScratchDatabase database; // QString() would be NULL, which most columns refuse
        database.execute(u"PRAGMA foreign_keys = OFF"_s);
        QVERIFY(Tables::accounts().insert(database.get(), {}, "insert failed:"));
        QVERIFY(Tables::calendars().insert(database.get(), {}, "insert failed:"));
        QVERIFY(Tables::tasks().insert(database.get(), {}, "insert failed:"));
        QVERIFY(Tables::filterRules().insert(database.get(), {}, "insert failed:"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^insert failed: .*start_time"_s));
        QVERIFY(!Tables::events().insert(database.get(), {}, "insert failed:"));
        QCOMPARE(
            database.count(u"calendars"_s, u"name = '' AND color != '' AND ctag IS NULL AND created_at > '2026'"_s), 1);
    }

private:
    static constexpr int Rounds = 6;

    /// Other values in each round. Numbers are bits of their column's place, so that no two go alike.
    static QString valueOf(const QString &column, const QString &type, int place, int round)
    {
        static const QRegularExpression isTime(u"_(at|time|date)$|^created$|^last_modified$"_s);
        if (column == u"id")
            return column;
        if (type == u"INTEGER")
            return QString::number(place >> round & 1);
        if (column.contains(isTime))
            return QDate(2026, 1, 1).addDays(place * Rounds + round).toString(u"yyyy-MM-dd'T00:00:00Z'");
        if (column == u"categories")
            return u"[\"%1\"]"_s.arg(round);
        return column == u"reminders" ? u"[%1]"_s.arg(round) : u"%1 %2"_s.arg(column).arg(round);
    }

    template <typename Record>
    void check(const Table<Record> &table, const QString &notInserted, const QString &notUpdated)
    {
        ScratchDatabase database;
        database.execute(u"PRAGMA foreign_keys = OFF"_s);
        const QStringList columns =
            database.column(u"SELECT name FROM pragma_table_info('%1') ORDER BY name"_s.arg(table.name()));
        const QStringList types =
            database.column(u"SELECT type FROM pragma_table_info('%1') ORDER BY name"_s.arg(table.name()));
        const QString clear = u"DELETE FROM "_s + table.name();
        QSet<QString> lost;
        QSet<QString> kept;
        for (int round = 0; round < Rounds; ++round) {
            QStringList values;
            for (qsizetype i = 0; i < columns.size(); ++i)
                values.append(valueOf(columns.at(i), types.at(i), int(i), round));
            const auto addDifferences = [&](QSet<QString> &found) {
                for (qsizetype i = 0; i < columns.size(); ++i) {
                    if (database.text(u"SELECT %1 FROM %2"_s.arg(columns.at(i), table.name())) != values.at(i))
                        found.insert(columns.at(i));
                }
            };
            const QList<Record> previous = table.list(database.get(), {});
            database.execute(clear);
            database.execute(u"INSERT INTO %1 (%2) VALUES ('%3')"_s.arg(table.name(), columns.join(u", "_s),
                                                                        values.join(u"', '"_s)));
            const QList<Record> read = table.list(database.get(), {});
            QCOMPARE(read.size(), 1);
            database.execute(clear);
            if (round > 0) {
                QVERIFY(table.insert(database.get(), previous.first(), "insert failed:"));
                QVERIFY(table.update(database.get(), read.first(), "update failed:"));
                addDifferences(kept);
                database.execute(clear);
            }
            QVERIFY(table.insert(database.get(), read.first(), "insert failed:"));
            addDifferences(lost);
        }
        QCOMPARE(sorted(lost), notInserted);
        QCOMPARE(sorted(kept), notUpdated);
    }

    static QString sorted(const QSet<QString> &names)
    {
        QStringList list = names.values();
        list.sort();
        return list.join(u' ');
    }
};

QTEST_GUILESS_MAIN(tst_Tables)
#include "tst_Tables.moc"
