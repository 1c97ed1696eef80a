#pragma once

#include <QFrame>
#include <QPointer>
#include <QRect>

class QLabel;
class QVBoxLayout;

/// A card over the window that tells of one event or task. A child of the window and no window of its own, so
/// that a double click still reaches what lies below it, Wayland can place it, and the focus can go into it.
/// It closes on Escape and on a click outside, deletes itself, and gives the focus back.
class DetailsPopover : public QFrame {
    Q_OBJECT

public:
    /// Beside \p globalRect, within the window; centred if the rectangle is empty.
    void showNear(const QRect &globalRect);
    void showCentered();
    void dismiss();

    /// The one on show in the window of \p widget, if any.
    static DetailsPopover *current(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// \p anchor is any widget of the window.
    explicit DetailsPopover(QWidget *anchor);

    [[nodiscard]] QVBoxLayout *body() const { return m_body; }

    void keyPressEvent(QKeyEvent *event) override;

private:
    QVBoxLayout *m_body;
    QPointer<QWidget> m_focusBefore;
};
