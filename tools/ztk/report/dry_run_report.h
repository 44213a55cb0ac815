// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_REPORT_DRY_RUN_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_DRY_RUN_REPORT_H_

#include "ztk/model/dry_run.h"
#include "ztk/report.h"

namespace ztk::program {

// Adds what would be sent, stored and announced.
void ReportDryRun(const Plan &plan, Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_DRY_RUN_REPORT_H_
