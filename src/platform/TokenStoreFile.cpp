#include "platform/TokenStoreFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QTemporaryFile>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace QuillonAccount {

namespace {

constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

// QFile::rename() refuses to replace a file, and there must be no moment without one.
bool replaceFile(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

}

TokenStoreFile::TokenStoreFile(const QString &path)
    : m_path(path)
{
}

std::optional<QString> TokenStoreFile::value(const QString &key)
{
    QJsonObject values;
    load(values);
    const QJsonValue found = values.value(key);
    return found.isString() ? std::optional(found.toString()) : std::nullopt;
}

bool TokenStoreFile::set(const QString &key, const QString &value)
{
    QJsonObject values;
    const State state = load(values);
    if (state == State::Unreadable || (state == State::Corrupt && !moveAside()))
        return false;
    values.insert(key, value);
    return save(values);
}

bool TokenStoreFile::remove(const QString &key)
{
    QJsonObject values;
    if (load(values) == State::Unreadable)
        return false;
    if (!values.contains(key))
        return true;
    values.remove(key);
    return save(values);
}

TokenStoreFile::State TokenStoreFile::load(QJsonObject &values) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (!file.exists())
            return State::Missing;
        qWarning().noquote() << "[TokenStore] cannot read" << m_path << ":" << file.errorString();
        return State::Unreadable;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        qWarning().noquote() << "[TokenStore] not a JSON object:" << m_path << error.errorString();
        return State::Corrupt;
    }
    values = document.object();
    return State::Good;
}

bool TokenStoreFile::save(const QJsonObject &values) const
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    // Unlike QSaveFile's, a QTemporaryFile is closed to others from its first byte, and stays so.
    QTemporaryFile file(m_path + QStringLiteral(".XXXXXX"));
    const QByteArray json = QJsonDocument(values).toJson(QJsonDocument::Indented);
    bool written = file.open() && file.setPermissions(OwnerOnly) && file.write(json) == json.size() && file.flush();
#ifdef Q_OS_UNIX
    written = written && ::fsync(file.handle()) == 0;
#endif
    if (!written || !replaceFile(file.fileName(), m_path)) {
        qWarning().noquote() << "[TokenStore] cannot write" << m_path << ":" << file.errorString();
        return false;
    }
    file.setAutoRemove(false);
    return true;
}

bool TokenStoreFile::moveAside() const
{
    QString aside = m_path + QStringLiteral(".corrupt");
    for (int n = 2; QFile::exists(aside); ++n)
        aside = m_path + QStringLiteral(".corrupt%1").arg(n);
    if (!QFile::rename(m_path, aside))
        return false;
    QFile::setPermissions(aside, OwnerOnly);
    qWarning().noquote() << "[TokenStore] kept as" << aside;
    return true;
}

} // namespace QuillonAccount
