// SPDX-License-Identifier: MIT
// The pattern of a finding in a few words, one function per family of techniques: what `solve --steps` writes.
// Called through the word table (technique_words.h).
#pragma once

#include <string>

#include "solver/finding.h"

namespace kestrel {

std::string SinglePattern(const Finding& finding);
std::string IntersectionPattern(const Finding& finding);
std::string SubsetPattern(const Finding& finding);
std::string FishPattern(const Finding& finding);
std::string FinnedPattern(const Finding& finding);
std::string WingPattern(const Finding& finding);
std::string LinkedPairsPattern(const Finding& finding);
std::string MultiXWingPattern(const Finding& finding);
std::string UniqueRectanglePattern(const Finding& finding);
std::string AvoidableRectanglePattern(const Finding& finding);
std::string EmptyRectanglePattern(const Finding& finding);

}  // namespace kestrel
