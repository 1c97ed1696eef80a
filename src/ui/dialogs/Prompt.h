#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QObject;
class QWidget;

/// Message boxes and file dialogs, without a nested event loop. All texts are plain text. An answer
/// never arrives before the asking call has returned, and not at all once \p context is gone.
namespace Prompt {

void warning(QWidget *parent, const QString &title, const QString &text);
void information(QWidget *parent, const QString &title, const QString &text);
/// Yes and No, with No as the default.
void question(QWidget *parent, const QString &title, const QString &text, QObject *context,
              std::function<void()> onYes);
/// One or more existing files; nothing is called when the user cancels.
void openFiles(QWidget *parent, const QString &title, const QString &filter, QObject *context,
               std::function<void(const QStringList &)> onFiles);

/// While one lives, nothing is shown: each prompt is recorded and answered as told here. For tests.
class ScopedAnswers {
public:
    struct Asked {
        QString kind; ///< "warning", "information", "question" or "openFiles"
        QString title;
        QString text; ///< for "openFiles" the filter

        bool operator==(const Asked &) const = default;
    };

    ScopedAnswers();
    ~ScopedAnswers();
    Q_DISABLE_COPY_MOVE(ScopedAnswers)

    bool sayYes = true;
    QStringList files; ///< empty: the file dialog is cancelled
    QList<Asked> asked;

private:
    ScopedAnswers *m_outer;
};

} // namespace Prompt
