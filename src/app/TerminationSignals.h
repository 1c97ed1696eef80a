#pragma once

#include <QObject>

class QSocketNotifier;

/// Turns SIGTERM, SIGINT and SIGHUP (the session ends, Ctrl+C, the terminal closes) into a Qt signal, so
/// that the program leaves through its event loop. A second one of the same kind ends the process at
/// once. Does nothing where there are no such signals. One object at a time.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received(int signalNumber);

private:
    QSocketNotifier *m_notifier = nullptr;
};
