// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_NOTICES_H_
#define ZTK_TOOLS_WINDOW_PAGES_NOTICES_H_

#include <QWidget>

#include "window/engine/state.h"

class QLabel;
class QVBoxLayout;

namespace ztk::window {

// Below the pages: which mixers there are, and what does not work, each with
// its cause and the command that mends it.
class Notices : public QWidget {
  Q_OBJECT

 public:
  explicit Notices(QWidget *parent = nullptr);

  void showState(const State &state);

 private:
  void ShowFindings(const QList<FindingState> &findings);

  QLabel *mixers_;
  QWidget *banner_ = nullptr;
  QVBoxLayout *layout_;
  QList<FindingState> shown_;
};

// One line for each mixer; one for all that answer where there are many.
QString MixerText(const State &state);

// What the banner shows: the findings, and that changes of other programs are
// not heard.
QList<FindingState> BannerOf(const State &state);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_NOTICES_H_
