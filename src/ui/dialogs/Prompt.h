#pragma once

#include <QColor>
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

/// A colour, beginning with \p current; nothing is called when the user cancels.
void chooseColor(QWidget *parent, const QString &title, const QColor &current, QObject *context,
                 std::function<void(const QColor &)> onColor);

struct Choice {
    QString text;
    QString explanation; ///< below it, muted
};
/// One of several, the first of them chosen at the start; nothing is called when the user cancels.
void choose(QWidget *parent, const QString &title, const QString &heading, const QString &text,
            const QList<Choice> &choices, QObject *context, std::function<void(int index)> onChosen);

/// While one lives, nothing is shown: each prompt is recorded and answered as told here. For tests.
class ScopedAnswers {
public:
    struct Asked {
        QString kind; ///< "warning", "information", "question", "openFiles", "color" or "choice"
        QString title;
        QString text; ///< for "openFiles" the filter, for "color" the current one

        bool operator==(const Asked &) const = default;
    };

    ScopedAnswers();
    ~ScopedAnswers();
    Q_DISABLE_COPY_MOVE(ScopedAnswers)

    bool sayYes = true;
    QStringList files; ///< empty: the file dialog is cancelled
    QColor color; ///< invalid: the colour dialog is cancelled
    int choice = -1; ///< -1: the choice is cancelled
    QList<Asked> asked;

private:
    ScopedAnswers *m_outer;
};

} // namespace Prompt
