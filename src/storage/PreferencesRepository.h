#pragma once

#include <QObject>

#include <optional>

class Database;

/// Table `settings`: the user's settings as text under slash paths such as "ui/theme".
class PreferencesRepository : public QObject {
    Q_OBJECT

public:
    explicit PreferencesRepository(Database *database, QObject *parent = nullptr);

    std::optional<QString> get(const QString &key);
    QString get(const QString &key, const QString &defaultValue);
    bool set(const QString &key, const QString &value);
    bool remove(const QString &key);

    int getInt(const QString &key, int defaultValue); ///< the default also for text that is no number
    bool getBool(const QString &key, bool defaultValue); ///< true for "1" and "true"
    bool setInt(const QString &key, int value);
    bool setBool(const QString &key, bool value); ///< "1" or "0"

signals:
    void changed(const QString &key); ///< after each set, also of an equal value

private:
    Database *m_database;
};
