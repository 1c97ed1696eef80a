#pragma once

#include "calendar/services/IcsImporter.h"

#include <QObject>
#include <QStringList>

class AppState;
class QWidget;

/// One import from the files to the last message: reads, asks for the calendar, stores, reports. Files
/// that arrive meanwhile wait for their turn.
class IcsImportFlow : public QObject {
    Q_OBJECT

public:
    static constexpr int ReportMs = 5000;

    /// Boxes and dialogs belong to \p window.
    IcsImportFlow(AppState *state, QWidget *window);

    void start(const QStringList &paths);
    [[nodiscard]] bool isRunning() const { return m_importer != nullptr; }

    /// What the status bar says at the end.
    static QString report(const IcsImporter::Result &result, const QString &calendarName);

signals:
    /// \p timeoutMs 0: until the next message.
    void statusMessage(const QString &text, int timeoutMs);
    void finished();

private:
    void onFilesRead();
    void onAccepted(const QString &calendarId);
    void onStored(const IcsImporter::Result &result);
    void showFileErrors(QWidget *parent) const;
    static QString skippedText(const ICalParser::Skipped &skipped);
    void end(const QString &message);
    [[nodiscard]] QStringList readableFileNames() const;

    AppState *m_state;
    QWidget *m_window;
    IcsImporter *m_importer = nullptr; // while one import is under way
    bool m_storing = false;
    QString m_calendarName;
    QList<QStringList> m_waiting;
};
