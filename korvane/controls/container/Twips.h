#pragma once

class QWidget;
class QFont;

namespace Korvane {

/// Turns twips, the unit of all geometry, into pixels. The scale follows the font: a one-line control of 285
/// twips always holds one line of that font with its frame, at any font size and screen resolution.
///
///     const Twips twips(*this);
///     box->setFixedHeight(twips.px(285));
class Twips {
  public:
    /// The height of a one-line control.
    static constexpr int oneLine = 285;

    /// For the font that the widget has now; after a change of it a new one is needed.
    explicit Twips(const QWidget& widget);
    explicit Twips(const QFont& font);

    /// Pixels for twips, and twips for pixels, rounded.
    int px(int twips) const;
    int fromPx(int pixels) const;

  private:
    double mPixelsPerTwip;
};

} // namespace Korvane
