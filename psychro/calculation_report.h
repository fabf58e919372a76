// The calculation report (计算书) as a Word document: a title, the date and the atmospheric
// pressure, then for each journal entry in order a heading and the tables of its inputs,
// results and states, and at the end the i-d chart with the states marked. Pure: the journal,
// the date and the chart picture come in, the package parts go out.
#pragma once

#include <string>
#include <vector>

#include "psychro/calculation_journal.h"
#include "psychro/chart_picture.h"
#include "psychro/docx/zip_package.h"

namespace vrn2 {

// How state LABEL of entry ENTRYNUMBER (from 1) is marked on the chart and named in the
// tables, so that states of different calculations keep apart: "N2", "1-3".
std::wstring reportStateMark(const std::wstring& label, int entryNumber);

// The marks of all states of ENTRIES, in order.
std::vector<ChartPictureMark> reportChartMarks(const std::vector<JournalEntry>& entries);

// VALUE with DECIMALS decimals as the tables show it; "—" when it is not a number.
std::wstring reportNumber(double value, int decimals);

// CHART is null when no chart is drawn; DATE is shown as it is, e.g. L"2026年11月24日".
std::vector<PackagePart> calculationReportParts(const std::vector<JournalEntry>& entries, const std::wstring& date,
                                                const WordPicture* chart, double chartPressure);

}  // namespace vrn2
