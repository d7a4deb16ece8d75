// SPDX-License-Identifier: MIT
#include "explain/signs.h"

#include "explain/sign_brush.h"

namespace kestrel {

SignWords WordsOf(Sign sign) {
  switch (sign) {
    case Sign::Pattern:
      return {"filled disc", "a candidate of the pattern"};
    case Sign::Target:
      return {"filled square", "the same, of the digit that is removed elsewhere"};
    case Sign::Link:
      return {"hollow disc", "a candidate that ties two parts of the pattern together"};
    case Sign::Fin:
      return {"diamond", "a fin"};
    case Sign::Pivot:
      return {"frame round a cell", "the pivot"};
    case Sign::InPlace:
      return {"large ring", "a digit in place that the reason rests on"};
    case Sign::Placed:
      return {"disc in a ring", "the digit that goes in"};
    case Sign::Entered:
      return {"digit with a numbered tab", "a digit that goes in; the number says in which order"};
    case Sign::Removed:
      return {"struck square", "a candidate that is removed"};
    case Sign::BaseUnit:
      return {"blue background, filled header or heavy blue frame",
              "a row, column or box in which the pattern lies"};
    case Sign::Losing:
      return {"sand-coloured background, framed header", "cells that lose candidates"};
    case Sign::Tie:
      return {"dashed frame round a header or a box", "a row, column or box that ties the pattern together"};
    case Sign::Bar:
      return {"bar", "joins cells that belong together"};
  }
  return {};
}

std::string LegendText(const SignSet& signs) {
  std::string text;
  for (const Sign sign : signs) {
    std::string look(WordsOf(sign).look);
    look[0] = static_cast<char>(look[0] - 'a' + 'A');
    text.append(text.empty() ? "" : " ").append(look).append(": ").append(WordsOf(sign).meaning).append(".");
  }
  return text;
}

std::string SignSample(Sign sign, const Palette& palette) {
  Svg svg(kSampleSize, kSampleSize, WordsOf(sign).look, {});
  SignBrush brush(svg, palette);
  constexpr double kSize = kSampleSize;
  constexpr Point kMiddle{kSize / 2, kSize / 2};
  svg.Rect({0, 0}, kSize, kSize, {palette.paper});
  switch (sign) {
    case Sign::Pivot:
      brush.CellFrame({4, 4}, kSize - 8);
      break;
    case Sign::InPlace:
      svg.Circle(kMiddle, 12, {nullptr, palette.cause, 3});
      svg.Text(kMiddle, 16, true, palette.digit, "5");
      break;
    case Sign::Entered:
      brush.Entered({3, 3}, {kSize - 9, kSize - 10}, 22, 5, 1);
      break;
    case Sign::BaseUnit:
    case Sign::Losing: {
      // With the box that the line's letter or number stands in.
      const bool loses = sign == Sign::Losing;
      svg.Rect({2, 2}, kSize - 4, kSize - 4,
               {loses ? palette.lose_wash : palette.unit_wash, palette.thin, 1});
      svg.Rect({5, 10}, 10, 10, loses ? Stroke{nullptr, palette.ink, 1.5} : Stroke{palette.cause}, 2);
      break;
    }
    case Sign::Tie:
      brush.Header(sign, kMiddle);
      break;
    case Sign::Bar:
      brush.Bar("M3 " + SvgNumber(kSize / 2) + "H" + SvgNumber(kSize - 3));
      break;
    default:
      brush.OnMark(sign, kMiddle, 5);
  }
  return svg.Finished();
}

}  // namespace kestrel
