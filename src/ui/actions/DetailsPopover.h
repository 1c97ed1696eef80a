#pragma once

#include <QFrame>
#include <QPointer>
#include <QRect>
#include <QString>

#include <optional>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// A card over the window that tells of one event or task. A child of the window and no window of its own, so
/// that a double click still reaches what lies below it, Wayland can place it, and the focus can go into it.
/// It closes on Escape and on a click outside, deletes itself, and gives the focus back.
class DetailsPopover : public QFrame {
    Q_OBJECT

public:
    /// Beside \p globalRect, within the window; in its middle if the rectangle is empty. Takes the place of
    /// the card that is on show.
    void showNear(const QRect &globalRect);
    void showCentered() { showNear({}); }
    void dismiss();

    /// The one on show in the window of \p widget, or null.
    static DetailsPopover *current(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// The click that opened the card was the first of two, and the card lay under the second.
    void openingClickDoubled();

protected:
    /// \p anchor is any widget of the window.
    explicit DetailsPopover(QWidget *anchor);

    /// Takes all content out, to be filled anew.
    void clear();
    void setHeading(const QString &title, const QString &color, bool struckOut = false); ///< plain text
    /// A line of plain text behind a glyph of the icon font. \p name says to assistive technology what it is.
    QLabel *addLine(char16_t glyph, const QString &name, const QString &text);
    /// A line that opens \p url outside the program; only http, https and mailto do.
    void addLink(char16_t glyph, const QString &name, const QString &text, const QString &url);
    /// A line that is a button of its own.
    QPushButton *addLinkButton(char16_t glyph, const QString &name, const QString &text);
    /// Notes as safe HTML: links open outside, nothing is loaded.
    void addRichText(char16_t glyph, const QString &name, const QString &html);
    QPushButton *addButton(const QString &text);

    /// The card has other content now; keeps its place.
    void fitToContent();

    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool onMousePress(QWidget *pressed, const QEvent &event);
    int addRow(char16_t glyph, QWidget *content, const QString &name);
    [[nodiscard]] QRect bounds() const; // of the window, in its coordinates

    QScrollArea *m_scroll;
    QVBoxLayout *m_column = nullptr;
    QLabel *m_title = nullptr;
    QGridLayout *m_rows = nullptr;
    QHBoxLayout *m_buttons;
    QRect m_anchor; // in the window's coordinates
    QPointer<QWidget> m_focusBefore;
    bool m_wasPressed = false; // since it opened
};
