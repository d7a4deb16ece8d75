// SPDX-License-Identifier: MIT
// An example told in three pictures.
#include "explain/board_picture.h"
#include "explain/explain.h"
#include "explain/reasons.h"

namespace kestrel {

std::array<StoryFrame, 3> DrawStory(const Example& example, const Palette& palette) {
  const StepWords words = ExplainStep(example.finding);
  return {{{"Spot it", words.technique + " on " + words.digits + ": " + words.pattern + '.',
            DrawBoard(example, Frame::Spot, palette)},
           {"See why", ReasonText(example), DrawBoard(example, Frame::Reason, palette)},
           {"Remove", RemovalText(example.finding), DrawBoard(example, Frame::Whole, palette)}}};
}

}  // namespace kestrel
