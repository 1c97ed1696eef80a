#include "ui/IcsImportFlow.h"

#include "app/state/AppState.h"
#include "storage/CalendarRepository.h"
#include "ui/dialogs/ImportDialog.h"
#include "ui/dialogs/Prompt.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QWidget>

#include <algorithm>

namespace {

QString fileName(const QString &path)
{
    return QFileInfo(path).fileName();
}

// An event without a start can be shown nowhere, and is not stored.
bool hasStorableEvents(const IcsImporter::File &file)
{
    return file.error == IcsImporter::FileError::None
        && std::any_of(file.events.begin(), file.events.end(),
                       [](const Event &event) { return event.startTime.isValid(); });
}

}

IcsImportFlow::IcsImportFlow(AppState *state, QWidget *window)
    : QObject(window)
    , m_state(state)
    , m_window(window)
{
}

void IcsImportFlow::start(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    if (isRunning()) {
        m_waiting.append(paths);
        return;
    }
    m_storing = false;
    m_importer = new IcsImporter(m_state, this);
    connect(m_importer, &IcsImporter::progress, this, [this](int percent) {
        const QString text = m_storing ? tr("Importing… %1%") : tr("Reading… %1%");
        emit statusMessage(text.arg(percent), 0);
    });
    connect(m_importer, &IcsImporter::filesRead, this, &IcsImportFlow::onFilesRead);
    connect(m_importer, &IcsImporter::finished, this, &IcsImportFlow::onStored);
    m_importer->read(paths);
}

void IcsImportFlow::onFilesRead()
{
    emit statusMessage(QString(), 0);
    const QStringList names = readableFileNames();
    if (names.isEmpty()) {
        showFileErrors(m_window);
        end({});
        return;
    }
    if (ImportDialog::writableCalendars(m_state).isEmpty()) {
        Prompt::warning(m_window, tr("No calendars configured"),
                        tr("Add a writable calendar first; then re-import \"%1\".").arg(names.join(u"\", \"")));
        showFileErrors(m_window);
        end({});
        return;
    }
    auto *dialog = new ImportDialog(m_state, names, m_importer->eventCount(), m_window);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { onAccepted(dialog->calendarId()); });
    connect(dialog, &QDialog::rejected, this, [this] { end({}); });
    dialog->open();
    showFileErrors(dialog); // of the files that did not make it into the dialog
}

void IcsImportFlow::onAccepted(const QString &calendarId)
{
    const auto calendar = m_state->calendars()->getById(calendarId);
    if (!calendar) {
        Prompt::warning(m_window, tr("Import failed"), tr("The chosen calendar was deleted in the meantime."));
        end({});
        return;
    }
    m_calendarName = calendar->name;
    m_storing = true;
    m_importer->store(calendarId);
}

void IcsImportFlow::onStored(const IcsImporter::Result &result)
{
    const QString text = report(result, m_calendarName);
    if (result.failed > 0) // the status bar's message passes, and a loss must not
        Prompt::warning(m_window, tr("Import incomplete"), text);
    end(text);
}

void IcsImportFlow::showFileErrors(QWidget *parent) const
{
    QStringList unreadable;
    QStringList empty;
    for (const IcsImporter::File &file : m_importer->files()) {
        if (file.error == IcsImporter::FileError::Unreadable)
            unreadable.append(tr("Couldn't open \"%1\" for reading.").arg(QDir::toNativeSeparators(file.path)));
        else if (file.error == IcsImporter::FileError::TooLarge)
            unreadable.append(tr("\"%1\" is too large to import.").arg(fileName(file.path)));
        else if (!hasStorableEvents(file))
            empty.append(tr("No events found in \"%1\".").arg(fileName(file.path)) + skippedText(file.skipped));
    }
    if (!unreadable.isEmpty())
        Prompt::warning(parent, tr("Couldn't open file"), unreadable.join(u'\n'));
    if (!empty.isEmpty())
        Prompt::warning(parent, tr("Nothing to import"), empty.join(u'\n'));
}

void IcsImportFlow::end(const QString &message)
{
    m_importer->deleteLater(); // its signal is what brought us here
    m_importer = nullptr;
    emit statusMessage(message, message.isEmpty() ? 0 : ReportMs);
    emit finished();
    if (!m_waiting.isEmpty())
        start(m_waiting.takeFirst());
}

QStringList IcsImportFlow::readableFileNames() const
{
    QStringList names;
    for (const IcsImporter::File &file : m_importer->files()) {
        if (hasStorableEvents(file))
            names.append(fileName(file.path));
    }
    return names;
}

QString IcsImportFlow::skippedText(const ICalParser::Skipped &skipped)
{
    const int unidentified = skipped.withoutUid + skipped.withoutStart;
    QString text;
    if (unidentified > 0)
        text += tr(" Skipped %n event(s) without an identifier or a start.", nullptr, unidentified);
    if (skipped.tooLarge > 0)
        text += tr(" Skipped %n event(s) that are too large.", nullptr, skipped.tooLarge);
    return text;
}

QString IcsImportFlow::report(const IcsImporter::Result &result, const QString &calendarName)
{
    const QLocale locale;
    const QString imported = locale.toString(result.imported);
    const QString updated = locale.toString(result.updated);
    QString text;
    if (result.imported > 0 && result.updated > 0)
        text = tr("Imported %1 and updated %2 in %3.").arg(imported, updated, calendarName);
    else if (result.updated == 1)
        text = tr("Updated 1 existing event in %1.").arg(calendarName);
    else if (result.updated > 1)
        text = tr("Updated %1 existing events in %2.").arg(updated, calendarName);
    else if (result.imported == 1)
        text = tr("Imported 1 event into %1.").arg(calendarName);
    else
        text = tr("Imported %1 events into %2.").arg(imported, calendarName);

    text += skippedText(result.skipped);
    if (result.failed > 0)
        text += tr(" %n event(s) could not be stored.", nullptr, result.failed);
    return text;
}
