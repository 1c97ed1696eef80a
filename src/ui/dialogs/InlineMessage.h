#pragma once

#include <QLabel>

/// A message inside a form: a tinted box with a bar at its side, hidden while it has no text. Says
/// itself to assistive technology when it appears.
class InlineMessage : public QLabel {
    Q_OBJECT

public:
    enum class Kind { Information, Warning, Problem };

    explicit InlineMessage(Kind kind, QWidget *parent = nullptr);

    [[nodiscard]] Kind kind() const { return m_kind; }
    void showText(const QString &text); ///< plain text; empty hides
    void showText(Kind kind, const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Kind m_kind;
};
