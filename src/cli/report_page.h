// SPDX-License-Identifier: MIT
// The report as one HTML page that needs nothing else. Used by `report`.
#pragma once

#include <string>
#include <string_view>

#include "cli/report_data.h"

namespace kestrel {

// `title` names the collection; any characters may be in it.
std::string ReportPage(std::string_view title, const ReportData& data);

}  // namespace kestrel
