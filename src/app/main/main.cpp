#include "app/Application.h"
#include "app/SingleInstance.h"
#include "app/state/Platform.h"
#include "platform/LocalTime.h"

#include <QLoggingCategory>
#include <QTimer>

namespace {

constexpr int ZoneCheckMs = 60'000;

}

int main(int argc, char *argv[])
{
    LocalTime::settle();
    // Before anything can log: a shipped program is silent unless someone asked for more.
    if (!Platform::isDevInstance() && qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));

    Application application(argc, argv);
    auto *singleInstance = new SingleInstance(&application);
    QStringList args;
    for (int i = 0; i < argc; ++i)
        args.append(QString::fromLocal8Bit(argv[i]));
    if (singleInstance->tryRouteToExisting(args))
        return 0;

    QTimer zoneCheck;
    QObject::connect(&zoneCheck, &QTimer::timeout, &application, &LocalTime::follow);
    zoneCheck.start(ZoneCheckMs);
    application.setSingleInstance(singleInstance);
    application.setInitialCommand(SingleInstance::parseArgsToCommand(args));
    return application.run();
}
