// SPDX-License-Identifier: MIT
// Why a step is right, in plain sentences with cell names, made from position and finding alone: what stands beside
// each picture of a page or walkthrough.
#pragma once

#include <string>

#include "explain/example.h"

namespace kestrel {

// The pattern and why it works here; for a single also where its digit goes.
std::string ReasonText(const Example& example);
// "Remove 4 from A2 and D8, and 3 and 7 from C5." Empty findings and singles have none.
std::string RemovalText(const Finding& finding);
// Both together, a paragraph of plain text.
std::string ExampleText(const Example& example);

// The same by family of techniques, for the word table (technique_words.h).
std::string HiddenSingleReason(const Example& example);
std::string NakedSingleReason(const Example& example);
std::string IntersectionReason(const Example& example);
std::string NakedSubsetReason(const Example& example);
std::string HiddenSubsetReason(const Example& example);
std::string FishReason(const Example& example);
std::string XYWingReason(const Example& example);
std::string XYZWingReason(const Example& example);
std::string TwoPairsReason(const Example& example);
std::string MultiXWingReason(const Example& example);
std::string FinnedXWingReason(const Example& example);
std::string UniqueRectangleReason(const Example& example);
std::string AvoidableRectangleReason(const Example& example);
std::string EmptyRectangleReason(const Example& example);

}  // namespace kestrel
