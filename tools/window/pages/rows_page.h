// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_WINDOW_PAGES_ROWS_PAGE_H_
#define ZTK_TOOLS_WINDOW_PAGES_ROWS_PAGE_H_

#include <QList>
#include <QWidget>

#include "window/engine/state.h"

namespace ztk::window {

class ChoiceRow;

// The page of a model whose settings are shown as rows, without a picture. The
// rows are made when the page is shown for the first time: most owners never
// open the page of a sister model, and the window starts faster without them.
class RowsPage : public QWidget {
  Q_OBJECT

 public:
  explicit RowsPage(const QList<const model::Setting *> &settings,
                    QWidget *parent = nullptr);

  void showState(const State &state);
  const QList<ChoiceRow *> &rows() const { return rows_; }

 signals:
  void chosen(const ztk::model::Setting &setting, std::uint32_t channel,
              std::uint32_t index);

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  void MakeRows();

  const QList<const model::Setting *> settings_;
  State state_;
  QList<ChoiceRow *> rows_;
};

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_PAGES_ROWS_PAGE_H_
