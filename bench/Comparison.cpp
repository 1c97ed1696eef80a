#include "Comparison.h"

#include "SampleFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Peer {
    QString name;
    QString program;
};

QList<Peer> peers()
{
    const QString bin = QStringLiteral(QUILLON_BIN_DIR "/");
    QList<Peer> all = {{QStringLiteral("ours"), bin + QStringLiteral("quillon-bench")},
                       {QStringLiteral("libical"), bin + QStringLiteral("quillon-bench-libical")},
                       {QStringLiteral("KCalendarCore"), bin + QStringLiteral("quillon-bench-kcalendarcore")}};
    all.removeIf([](const Peer &peer) { return !QFileInfo::exists(peer.program); });
    return all;
}

QList<QJsonObject> measure(const Peer &peer, const QStringList &arguments)
{
    QProcess process;
    process.start(peer.program, arguments);
    process.waitForFinished(300'000);
    QList<QJsonObject> lines;
    for (const QByteArray &line : process.readAllStandardOutput().split('\n'))
        if (!line.isEmpty())
            lines += QJsonDocument::fromJson(line).object();
    return lines;
}

/// One row: the work, then each peer's figure and how many times ours it is.
void printRow(const QString &work, const QList<double> &figures, const char *unit)
{
    std::printf("%-38s", qPrintable(work));
    for (qsizetype i = 0; i < figures.size(); ++i) {
        std::printf("  %9.1f %-3s", figures[i], unit);
        if (i > 0)
            std::printf(" (%5.1fx)", figures[0] > 0 ? figures[i] / figures[0] : 0.0);
    }
    std::printf("\n");
}

void compareParse(const QString &file)
{
    QList<double> ms;
    QList<double> mib;
    for (const Peer &peer : peers()) {
        const auto lines = measure(peer, {QStringLiteral("parse"), file});
        const QJsonObject line = lines.value(0);
        ms += line[u"ms"].toDouble();
        mib += line[u"rss_kib"].toDouble() / 1024;
    }
    printRow(QStringLiteral("parse to records"), ms, "ms");
    printRow(QStringLiteral("parse, peak memory"), mib, "MiB");
}

void compareExpand(const QString &work, const QString &file, const QString &from, const QString &to)
{
    constexpr auto repeats = "5";
    QList<double> first;
    QList<double> warm;
    QStringList counts;
    for (const Peer &peer : peers()) {
        const auto lines = measure(peer, {QStringLiteral("expand"), file, from, to, QLatin1StringView(repeats)});
        first += lines.isEmpty() ? 0 : lines.first()[u"ms"].toDouble();
        warm += lines.isEmpty() ? 0 : lines.last()[u"ms"].toDouble();
        counts += peer.name + QLatin1Char(' ') + QString::number(lines.isEmpty() ? 0 : lines.last()[u"occ"].toInt());
    }
    printRow(work + QStringLiteral(", first"), first, "ms");
    printRow(work + QStringLiteral(", warm"), warm, "ms");
    std::printf("%38s  instances: %s\n", "", qPrintable(counts.join(QStringLiteral(", "))));
}

bool writeFile(const QString &path, const SampleFile::Shape &shape)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(SampleFile::generate(shape)) > 0;
}

}

bool Comparison::run()
{
    QTemporaryDir folder;
    const QString recent = folder.filePath(QStringLiteral("recent.ics"));
    const QString old = folder.filePath(QStringLiteral("old.ics"));
    if (!writeFile(recent, {}) || !writeFile(old, {.years = 25}))
        return false;

    std::printf("%-38s", "10,000 events and 1,000 tasks");
    for (const Peer &peer : peers())
        std::printf("  %-13s%s", qPrintable(peer.name), peer.name == u"ours" ? "" : "         ");
    std::printf("\n");
    compareParse(recent);
    compareExpand(QStringLiteral("one week, begun within 5 years"), recent, QStringLiteral("20261116"), QStringLiteral("20261123"));
    compareExpand(QStringLiteral("one week, begun within 25 years"), old, QStringLiteral("20261116"), QStringLiteral("20261123"));
    compareExpand(QStringLiteral("one year, begun within 5 years"), recent, QStringLiteral("20251122"), QStringLiteral("20261122"));
    return true;
}
