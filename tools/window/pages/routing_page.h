// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_ROUTING_PAGE_H_
#define ZTK_TOOLS_WINDOW_PAGES_ROUTING_PAGE_H_

#include <QList>
#include <QWidget>

#include "window/engine/state.h"
#include "window/picture/picture_state.h"

class QLabel;

namespace ztk::window {

class ChoiceRow;
class Picture;

// The page of the VRM-D6: the picture, what each USB channel records, and the
// output level.
class RoutingPage : public QWidget {
  Q_OBJECT

 public:
  explicit RoutingPage(QWidget *parent = nullptr);

  void showState(const State &state);
  Picture *picture() const { return picture_; }
  // The rows of the USB channels, then that of the output level.
  const QList<ChoiceRow *> &rows() const { return rows_; }

 signals:
  void chosen(const ztk::model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void AddRow(const model::Setting &setting, std::uint32_t channel);
  void SetActive(int channel);
  void ChooseTap(int channel, const model::Tap &tap);
  void PlaceWires();

  Picture *picture_;
  QLabel *hint_;
  QList<ChoiceRow *> rows_;
};

// What the picture shows of the state.
PictureState PictureOf(const State &state);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_ROUTING_PAGE_H_
