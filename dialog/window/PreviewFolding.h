#pragma once

class QBoxLayout;
class QWidget;

namespace corvana {

class PreviewPane;
class SettingsColumn;

/// When the preview beside the settings is folded away: by hand, which is remembered, and by itself
/// where the window is too narrow for both. Folded, what is left of it is a line below the
/// settings.
///
/// Ownership: borrows everything.
class PreviewFolding
{
public:
    /// `columns` holds the preview and then the settings.
    PreviewFolding(QWidget &window, QBoxLayout &columns, PreviewPane &preview,
                   SettingsColumn &settings);

    /// The width that a window opens with which nobody has given another one: `wanted`, or that of
    /// the settings alone where the preview is not there. Units: pixels.
    int openingWidth(int wanted) const;
    /// The window has another size.
    void follow();
    /// The user folds the preview, or wants it back: the window gets narrower, or wider as far as
    /// its screen reaches.
    void fold(bool fold);

    /// The least width in which the preview stays. Units: pixels.
    int leastWidth() const;

private:
    void apply();
    int around() const;

    QWidget &m_window;
    QBoxLayout &m_columns;
    PreviewPane &m_preview;
    SettingsColumn &m_settings;
    bool m_byHand = false;
    int m_givenUp = 0; // the width that the window lost when it was folded
};

} // namespace corvana
