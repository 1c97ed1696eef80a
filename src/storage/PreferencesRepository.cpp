#include "storage/PreferencesRepository.h"

#include "storage/Statement.h"
#include "storage/StoredAs.h"

PreferencesRepository::PreferencesRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{
}

std::optional<QString> PreferencesRepository::get(const QString &key)
{
    Statement row(m_database, QStringLiteral("SELECT value FROM settings WHERE key = ?"));
    if (!row.bind(key).run("PreferencesRepository::get failed:") || !row.next())
        return std::nullopt;
    return row.value(0).toString();
}

QString PreferencesRepository::get(const QString &key, const QString &defaultValue)
{
    return get(key).value_or(defaultValue);
}

bool PreferencesRepository::set(const QString &key, const QString &value)
{
    if (!runStatement(m_database, "PreferencesRepository::set failed:",
                      QStringLiteral("INSERT INTO settings (key, value) VALUES (?, ?)"
                                     " ON CONFLICT(key) DO UPDATE SET value = excluded.value"),
                      { key, StoredAs::Text::store(value) }))
        return false;
    emit changed(key);
    return true;
}

bool PreferencesRepository::remove(const QString &key)
{
    return runStatement(m_database,
                        "PreferencesRepository::remove failed:", QStringLiteral("DELETE FROM settings WHERE key = ?"),
                        { key });
}

int PreferencesRepository::getInt(const QString &key, int defaultValue)
{
    bool isNumber = false;
    const int value = get(key, QString()).toInt(&isNumber);
    return isNumber ? value : defaultValue;
}

bool PreferencesRepository::getBool(const QString &key, bool defaultValue)
{
    const std::optional<QString> text = get(key);
    if (!text)
        return defaultValue;
    return *text == QLatin1StringView("1") || *text == QLatin1StringView("true");
}

bool PreferencesRepository::setInt(const QString &key, int value)
{
    return set(key, QString::number(value));
}

bool PreferencesRepository::setBool(const QString &key, bool value)
{
    return set(key, value ? QStringLiteral("1") : QStringLiteral("0"));
}
