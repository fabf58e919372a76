// The result dialog of an air-handling process: the end state, Q, W and ε; "saveres" appends
// the process to qres.txt and records it in the calculation journal.
#pragma once

#include "psychro/air_process.h"
#include "psychro/process_report.h"

namespace vrn2 {

// Shows R over the dialog file DCLID has loaded. Answers whether the designer wants the process
// drawn on the chart: after saving it or pressing "i_d", when a chart is drawn.
bool showProcessResult(int dclId, const ProcessInput& in, const ProcessResult& r, const ProcessLabels& labels);

}  // namespace vrn2
