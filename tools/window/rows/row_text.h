// SPDX-License-Identifier: MIT
//
// What a row tells about its setting, in words.
#ifndef ZTK_TOOLS_WINDOW_ROWS_ROW_TEXT_H_
#define ZTK_TOOLS_WINDOW_ROWS_ROW_TEXT_H_

#include <QString>
#include <QStringList>

#include "window/engine/state.h"

namespace ztk::window {

struct RowText {
  QString text;
  // The library's explanation of a choice that cannot be heard; else empty.
  QString details;
  // Something is not as the user wants it to be.
  bool needsAttention = false;
};

// "USB &2 records:"; the letter after & is the key that goes to the row.
QString RowLabel(const model::Setting &setting, std::uint32_t channel);

// What became of the last change, and whether it can be heard.
RowText TextOf(const RowState &row, const State &state);

// "USB 2 is silent: turn the selector of CH2 from 1 to 4.", once for each
// mixer.
QStringList SilenceTexts(const RowState &row, const State &state);

// The mixers whose selector makes the choice of the row silent.
QList<const MixerState *> SilencingMixers(const RowState &row,
                                          const State &state);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ROWS_ROW_TEXT_H_
