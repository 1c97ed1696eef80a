#pragma once

#include "ui/dialogs/InlineMessage.h"

#include <QDialog>
#include <QPointer>
#include <QString>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// What the small dialogs share: a scrollable body, one place for an error, and the buttons. Accepting
/// calls save(); the dialog stays open when that is refused.
class FormDialog : public QDialog {
    Q_OBJECT

public:
    /// Shows the dialog over its parent's window; it deletes itself once closed.
    void open() override;
    void accept() override;
    /// Cancel, Escape and the close button: asks first where changes would be lost.
    void reject() override;
    [[nodiscard]] QString problemText() const; ///< of the error on show; empty if there is none
    [[nodiscard]] QString statusText() const; ///< of what showStatus() told

    /// The layout of every form: labels left, fields as wide as the dialog allows.
    static void styleForm(QFormLayout *form);

    /// A row with a text of perhaps several lines, the first of which stands beside the label.
    static void addTextRow(QFormLayout *form, const QString &label, QLabel *text);

    static constexpr int MaxNameLength = 200; ///< of what the user names
    /// Limits the field to MaxNameLength, or to a stored \p name that is longer.
    static void showName(QLineEdit *field, const QString &name);

protected:
    FormDialog(const QString &title, QWidget *parent);

    [[nodiscard]] QVBoxLayout *body() const { return m_body; }
    [[nodiscard]] QDialogButtonBox *buttons() const { return m_buttons; }
    QFormLayout *addForm(); ///< below what the body holds already
    QLabel *addSection(const QString &title);
    /// The program's icon beside a large \p title. Returns the muted label below it, which shows \p text.
    QLabel *addProgramHeader(const QString &title, const QString &text);
    static QLabel *makeHint(const QString &text); ///< muted, wrapped, plain

    /// Cancel, and the button that accepts.
    QPushButton *addSaveButtons(const QString &acceptText);
    QPushButton *addSideButton(const QString &text); ///< apart from the others, as "Delete"
    void addCloseButton();

    /// Stores the form. On refusal it has called showProblem() and returns false.
    virtual bool save() { return true; }
    /// True if closing the form would lose what the user entered.
    [[nodiscard]] virtual bool hasUnsavedChanges() const { return false; }
    void showEvent(QShowEvent *event) override;
    /// Return presses the button that has the focus, whether or not it may be the default one.
    void keyPressEvent(QKeyEvent *event) override;
    void showProblem(const QString &text, QWidget *at); ///< and puts the focus on \p at
    void clearProblem();
    void growToFit(); ///< after the content of a visible form has got more
    /// How work that takes a while goes on, in the place of the error.
    void showStatus(const QString &text);
    /// While work is under way the form can be read and closed, and neither changed nor accepted.
    void setBusy(bool busy);
    [[nodiscard]] bool isBusy() const { return m_busy; }

private:
    void showMessage(InlineMessage::Kind kind, const QString &text);
    [[nodiscard]] QString messageText(bool isProblem) const;

    QScrollArea *m_area; // around the body
    QVBoxLayout *m_body;
    InlineMessage *m_message;
    QDialogButtonBox *m_buttons;
    bool m_busy = false;
    QPointer<QWidget> m_focusBeforeBusy;
};
