#pragma once

#include <korvane/controls/buttons/ButtonPanel.h>

#include <QString>

namespace Korvane {

/// A frame around a row of four buttons (`cmdMove(0)` to `cmdMove(3)`) that move to the first, the previous,
/// the next and the last record. It tells which one was clicked; the records are the host's.
///
///     auto* move = new movebtn(form);
///     connect(move, &movebtn::btnClick, form, [=](qint16 index) { show(index == 0 ? first() : ...); });
///
/// The captions that it has from the start are "|<", "<", ">" and ">|"; they are shown as symbols, read out
/// and explained as "First record" and so on. Where one reads from the right the row runs from there.
///
/// A new one reads "Move Buttons" on its frame; one that is read from a bag without a caption "Mover
/// Buttons".
///
/// In a control of W by H twips the frame is W - 150 by H - 100; the buttons touch, each a quarter of the
/// frame's width less 175, and are 325 lower than the frame. What would be negative is nothing.
class movebtn : public ButtonPanel {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE Caption)
    Q_PROPERTY(bool Enabled READ Enabled WRITE Enabled)

  public:
    /// With the captions above, and as large as they need.
    explicit movebtn(QWidget* parent = nullptr);

    /// The frame's caption.
    QString Caption() const;
    void Caption(const QString& text);

    /// Whether the frame and the four buttons can be used. Default true.
    bool Enabled() const;
    void Enabled(bool on);

    void InitProperties() override;
    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  private:
    void showCaption(int index, const QString& text) override;
    void arrange() override;
    QSize sizeFor(QSize button) const;
};

} // namespace Korvane
