// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PICTURE_PICTURE_H_
#define ZTK_TOOLS_WINDOW_PICTURE_PICTURE_H_

#include <QWidget>
#include <array>
#include <functional>
#include <optional>

#include "window/picture/picture_layout.h"
#include "window/picture/picture_state.h"
#include "window/picture/wires.h"

class QHelpEvent;

namespace ztk::window {

// The mixer with its taps, and the wires from them to the rows on the right. A
// tap is a point whose signal can be recorded. A tap is chosen for the active
// channel with a click or with the keyboard, or for any channel by dragging one
// end of its wire to the tap.
class Picture : public QWidget {
  Q_OBJECT

 public:
  explicit Picture(QWidget *parent = nullptr);

  void showState(const PictureState &state);
  // The middle of each row, as y in the coordinates of this widget.
  void setRows(const std::array<qreal, kWires> &rows);
  // The channel for which a click chooses a tap.
  void setActiveChannel(int channel);
  int activeChannel() const { return active_; }

  // The parts of the picture as they are drawn now.
  const PictureLayout &parts() const { return layout_; }
  const QList<Wire> &wires() const { return wires_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void tapChosen(int channel, const ztk::model::Tap &tap);
  // The user pressed the number key of another channel, dragged one end of its
  // wire, or clicked on that end where the active channel has no choice.
  void activeChannelChanged(int channel);

 protected:
  bool event(QEvent *event) override;
  void changeEvent(QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void leaveEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;

 private:
  struct Drag {
    int channel;
    QPointF from;
    QPointF to;
    bool moved = false;
  };

  void LayOut();
  void TakeRoom();
  void LayOutTheWires();
  void Choose(int channel, const model::Tap &tap);
  bool CanBeChosen(const TapSpot &spot) const;
  const TapSpot *SpotAt(QPointF point) const;
  // The wire that has its number or its arrow at this point.
  const Wire *WireAt(QPointF point) const;
  void PointAt(const TapSpot *spot);
  void ChooseFocused();
  void MoveFocus(QPointF direction);
  void FocusOnActive();
  void Describe();
  QString DescriptionOf(const TapSpot &spot) const;
  void ShowToolTip(QHelpEvent *event);
  QString ToolTipAt(QPointF point) const;

  PictureLayout smallest_;  // with these words and this font
  PictureLayout layout_;
  QSize least_;
  PictureState state_;
  std::array<qreal, kWires> rows_{};
  QList<Wire> wires_;
  int active_ = 0;
  std::optional<model::Tap> pointedAt_;
  model::Tap focus_{.source = model::Source::Phono};
  std::optional<Drag> drag_;
};

// "CH2 PHONO", "Post CH2 Fader".
QString TapName(const model::Tap &tap);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PICTURE_PICTURE_H_
