#pragma once

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>

/// A certificate for "wire.test" that nobody has signed, and its key.
inline QSslConfiguration selfSigned()
{
    using namespace Qt::StringLiterals;
    const QTemporaryDir dir;
    const QString key = dir.filePath(u"key"_s), certificate = dir.filePath(u"certificate"_s);
    const QString options =
        u"req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -batch -subj /CN=wire.test"_s;
    QProcess::execute(u"openssl"_s, options.split(u' ') + QStringList{ u"-keyout"_s, key, u"-out"_s, certificate });
    QFile keyFile(key);
    if (!keyFile.open(QIODevice::ReadOnly))
        qFatal("openssl made no certificate");
    QSslConfiguration tls;
    tls.setLocalCertificate(QSslCertificate::fromPath(certificate).value(0));
    tls.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
    return tls;
}
