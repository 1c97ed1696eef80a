#pragma once

class PreferencesRepository;
class QMainWindow;
class QSplitter;

/// Keeps the window's place, its tool bars and the widths of its panes from one start to the next.
class WindowLayout {
public:
    static constexpr int SidebarWidthPx = 360;
    static constexpr int RightPaneWidthPx = 320;

    WindowLayout(PreferencesRepository *preferences, QMainWindow *window, QSplitter *panes);

    /// Leaves alone what has no stored value, or one that cannot be read. The panes then get their first widths.
    void restore();
    void save();
    /// Makes the window no larger than its screen; a maximised window is left to the system.
    void clampToScreen();

private:
    void applyDefaultPaneWidths();

    PreferencesRepository *m_preferences;
    QMainWindow *m_window;
    QSplitter *m_panes;
};
