// quillon-bench                              everything, as tables
// quillon-bench program                      the tables without the peers
// quillon-bench parse FILE                   one JSON line
// quillon-bench expand FILE FROM TO REPEATS  a JSON line for each repeat; dates as yyyyMMdd, UTC
// quillon-bench generate FILE EVENTS YEARS   writes the sample file
// quillon-bench sync DB URL USER PW [edit]   one sync, one JSON line; see bench/caldav.py

#include "CalendarBench.h"
#include "Comparison.h"
#include "ProgramBench.h"
#include "SampleFile.h"
#include "SyncBench.h"
#include "platform/LocalTime.h"

#include <QApplication>
#include <QFile>
#include <QLoggingCategory>

#include <cstdio>

namespace {

bool generate(const QString &path, int events, int years)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(SampleFile::generate({.events = events, .years = years})) > 0;
}

bool dispatch(const QStringList &arguments)
{
    const QString command = arguments.value(1);
    if (command.isEmpty())
        return Comparison::run() && ProgramBench::run();
    if (command == u"program")
        return ProgramBench::run();
    if (command == u"parse" && arguments.size() == 3)
        return CalendarBench::parse(arguments[2]);
    if (command == u"expand" && arguments.size() == 6)
        return CalendarBench::expand(arguments[2], arguments[3], arguments[4], arguments[5].toInt());
    if (command == u"generate" && arguments.size() == 5)
        return generate(arguments[2], arguments[3].toInt(), arguments[4].toInt());
    if (command == u"sync")
        return SyncBench::run(arguments.mid(2));
    std::fputs("usage: quillon-bench [program | parse FILE | expand FILE FROM TO REPEATS | generate FILE EVENTS YEARS |"
               " sync DB URL USER PASSWORD [edit]]\n",
               stderr);
    return false;
}

/// A widget program needs a display; parsing and expansion do not, and should not pay for one.
std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    if (argc > 2)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(argc, argv);
}

}

int main(int argc, char **argv)
{
    LocalTime::settle(); // as the program does
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false")); // figures only
    const auto application = makeApplication(argc, argv);
    return dispatch(QCoreApplication::arguments()) ? 0 : 1;
}
