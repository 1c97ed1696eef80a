#pragma once

#include <QLabel>

/// A message inside a form: a tinted box with a bar at its side, hidden while it has no text. Says
/// itself to assistive technology when it appears.
class InlineMessage : public QLabel {
    Q_OBJECT

public:
    enum class Kind { Warning, Problem };

    explicit InlineMessage(Kind kind, QWidget *parent = nullptr);

    void showText(const QString &text); ///< plain text; empty hides

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Kind m_kind;
};
