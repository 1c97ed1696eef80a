#pragma once

#include "platform/TokenStore.h"

#include <QJsonObject>

namespace QuillonAccount {

/// Secrets in a JSON object file that only its owner can read, for machines without a Secret Service.
/// A missing file is an empty store. A file that is no JSON object reads as empty and is moved aside to
/// PATH.corrupt before anything is written; one that cannot be read is never written.
class TokenStoreFile : public TokenStore {
public:
    explicit TokenStoreFile(const QString &path);

    std::optional<QString> value(const QString &key) override;
    bool set(const QString &key, const QString &value) override;
    bool remove(const QString &key) override;

private:
    enum class State { Missing, Good, Corrupt, Unreadable };

    State load(QJsonObject &values) const;
    [[nodiscard]] bool save(const QJsonObject &values) const;
    [[nodiscard]] bool moveAside() const;

    QString m_path;
};

} // namespace QuillonAccount
