#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>
#include <Qt>

class QDateTimeEdit;
class QPalette;

/// Colours, sizes and icon helpers that painting code reads directly. The mode, the accent and the font
/// scale are values of the process that ThemeManager sets.
namespace Theme {

enum class Mode { Light = 0, Dark = 1 };
Mode activeMode();
void setActiveMode(Mode mode);

QColor canvas();
QColor surface();
QColor surfaceMuted();
QColor border();
QColor borderStrong();
QColor textPrimary();
QColor textMuted();
QColor textDisabled();
QColor accent();
QColor accentMuted(); ///< translucent
QColor danger();
QColor warning(); ///< amber that can be read as text on surfaceMuted in both modes
/// The accent as text colour: made darker or lighter until its contrast on surface, canvas and surfaceMuted
/// is at least 4.5:1.
QColor accentText();
QColor link(); ///< can be read on surface, canvas and surfaceMuted in both modes

/// The user's accent as a colour name; empty or unreadable means the standard one.
QString accentOverride();
void setAccentOverride(const QString &color);

/// White or a dark ink, for text and marks on \p background: white where its contrast is at least 4.5:1, else
/// the ink, which then has at least that.
QColor textOn(const QColor &background);
/// WCAG contrast ratio, 1 to 21. Alpha is ignored.
double contrastRatio(const QColor &a, const QColor &b);
/// \p color, or the standard calendar colour if it is empty or unreadable.
QColor eventColor(const QString &eventColor, const QString &calendarColor = {});

// Font sizes in points, after scaling.
extern int FontSizeXs;
extern int FontSizeSm;
extern int FontSizeBody;
extern int FontSizeLg;
extern int FontSizeXl;
extern int FontSizeXxl;
/// Bounded to 70..200.
void setFontScalePercent(int percent);
int fontScalePercent();

/// \p font as the heading of a dialog has it: bold, and of FontSizeLg.
QFont headingFont(const QFont &font);

QString sansFamily();
QString iconFamily();
void setIconFamily(const QString &family);

/// The finished style sheet; empty if its resource is missing.
QString stylesheet();
QPalette palette();

/// A glyph of the icon font, \p size device-independent pixels square.
QIcon iconFromGlyph(char16_t glyph, int size, const QColor &color);
QIcon calendarDotIcon(const QString &color);
QString checkableListStylesheet();
void applyCalendarLocale(QDateTimeEdit *edit, Qt::DayOfWeek firstDay);

/// Text from a file or server as a label, button or menu text shows it: "&" doubled.
QString plainLabel(const QString &text);
/// The same for tool tips, which would else guess rich text: HTML-escaped, line breaks kept.
QString plainToolTip(const QString &text);

} // namespace Theme
