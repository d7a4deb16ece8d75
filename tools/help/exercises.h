// SPDX-License-Identifier: MIT
// The exercises of a technique's page: three pages, one with the questions, one with a hint for each and one with
// the answers, so that nobody reads more than he asks for. Used by the site.
#pragma once

#include <string>
#include <vector>

#include "explain/page_parts.h"

namespace kestrel::help {

enum class ExercisePage { Question, Hint, Answer };

// "x_wing_exercises.html" for "x_wing.html".
std::string ExerciseFile(const std::string& page, ExercisePage kind);

// The question of an exercise and the hint that narrows it to a digit or a unit: plain text.
std::string QuestionOf(const Finding& finding);
std::string NarrowingHint(const Finding& finding);

// What stands on a page of the kind, below its heading. The exercises are all of technique page `page`, in the
// order of their forms; pictures go to the files.
std::string ExercisesHtml(HelpFiles& files, const std::string& page, ExercisePage kind,
                          const std::vector<const Example*>& exercises);

}  // namespace kestrel::help
