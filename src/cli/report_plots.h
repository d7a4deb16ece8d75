// SPDX-License-Identifier: MIT
// The pictures of a report as inline SVG. Colours come from the page: class "l3" is level 3, "ink" text, "grid"
// thin lines. Used by report_page.cpp.
#pragma once

#include <cstdint>
#include <string>

#include "cli/report_data.h"

namespace kestrel {

// Each is one svg element, 760 units wide, with a description for screen readers.
std::string ScorePlot(const ReportData& data);      // a histogram of scores for every level
std::string TechniquePlot(const ReportData& data);  // which share of the puzzles needs each technique
std::string GivensPlot(const ReportData& data);     // how many givens, stacked by level
std::string BestTimesPlot(const ReportData& data);  // a dot for each best time, by score

// "12.3 %", with a decimal below ten.
std::string Percent(std::uint64_t part, std::uint64_t whole);

// "1:05" and "1:01:05".
std::string TimeText(int seconds);

}  // namespace kestrel
