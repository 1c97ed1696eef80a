#pragma once

#include <QString>
#include <QUuid>

/// A new id for a row, and a UID that no other device makes: a UUID without braces.
inline QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}
