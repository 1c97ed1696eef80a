#include "app/TerminationSignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int Handled[] = { SIGTERM, SIGINT, SIGHUP };
int pipeEnds[2] = { -1, -1 };

// A signal handler may do next to nothing: the number goes into a pipe, and the event loop reads it.
void onSignal(int signalNumber)
{
    const int savedErrno = errno;
    const auto byte = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = savedErrno;
}

}

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (::pipe(pipeEnds) != 0)
        return;
    for (const int end : pipeEnds)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        unsigned char byte = 0;
        if (::read(pipeEnds[0], &byte, 1) == 1)
            emit received(byte);
    });
    struct sigaction action { };
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (const int number : Handled)
        ::sigaction(number, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    if (!m_notifier)
        return;
    for (const int number : Handled)
        ::signal(number, SIG_DFL);
    for (int &end : pipeEnds) {
        ::close(end);
        end = -1;
    }
}

#else

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
}

TerminationSignals::~TerminationSignals() = default;

#endif
