// SPDX-License-Identifier: MIT
#include "explain/sign_brush.h"

namespace kestrel {
namespace {

constexpr double kDigit = 14;  // font size of a candidate
constexpr double kTabWidth = 14;
constexpr double kTabHeight = 11;

}  // namespace

// The stroke runs behind the digit, so that the digit stays readable.
void SignBrush::Struck(Point at) {
  svg_.Rect({at.x - 8, at.y - 8}, 16, 16, {palette_.gone_ground, palette_.gone, 1.5});
  svg_.Path("M" + SvgNumber(at.x - 8) + ' ' + SvgNumber(at.y + 8) + "l16 -16", {nullptr, palette_.gone, 1.5});
}

void SignBrush::OnMark(Sign sign, Point at, int digit) {
  const Stroke filled{palette_.cause};
  const char* colour = palette_.on_cause;
  double size = kDigit;
  switch (sign) {
    case Sign::Target:
      svg_.Rect({at.x - 8, at.y - 8}, 16, 16, filled, 2);
      break;
    case Sign::Link:
      svg_.Circle(at, 8, {palette_.paper, palette_.cause, 2});
      colour = palette_.cause;
      break;
    case Sign::Fin:
      svg_.Path("M" + SvgNumber(at.x) + ' ' + SvgNumber(at.y - 11) + "l11 11l-11 11l-11 -11Z", filled);
      break;
    case Sign::Placed:
      svg_.Circle(at, 10, {palette_.paper, palette_.cause, 1.5});
      svg_.Circle(at, 7, filled);
      size = 12;
      break;
    case Sign::Removed:
      Struck(at);
      colour = palette_.ink;
      break;
    default:
      svg_.Circle(at, 9, filled);
  }
  svg_.Text(at, size, true, colour, std::to_string(digit));
}

void SignBrush::Ring(Point middle) {
  svg_.Circle(middle, 22, {nullptr, palette_.cause, 3});
}

void SignBrush::CellFrame(Point corner, double size) {
  svg_.Rect({corner.x - 1, corner.y - 1}, size + 2, size + 2, {nullptr, palette_.cause, 3}, 8);
}

void SignBrush::Entered(Point corner, Point middle, double size, int digit, int number) {
  svg_.Text(middle, size, true, palette_.cause, std::to_string(digit));
  svg_.Rect({corner.x - 2, corner.y - 2}, kTabWidth, kTabHeight, {palette_.cause}, 3);
  svg_.Text({corner.x - 2 + kTabWidth / 2, corner.y - 2 + kTabHeight / 2}, 10, true, palette_.on_cause,
            std::to_string(number));
}

void SignBrush::Header(Sign sign, Point at) {
  Stroke look{palette_.cause};
  if (sign == Sign::Losing) look = {palette_.lose_wash, palette_.ink, 2};
  if (sign == Sign::Tie) look = {nullptr, palette_.ink, 2, "4 3"};
  svg_.Rect({at.x - 12, at.y - 12}, 24, 24, look, 4);
}

void SignBrush::BoxFrame(Sign sign, Point corner, double width, double height) {
  Stroke look{nullptr, palette_.cause, 4};
  if (sign == Sign::Losing) look = {nullptr, palette_.ink, 3};
  if (sign == Sign::Tie) look = {nullptr, palette_.ink, 4, "10 6"};
  svg_.Rect(corner, width, height, look);
}

void SignBrush::Bar(const std::string& path) {
  svg_.Path(path, {nullptr, palette_.cause, 4}, " stroke-opacity=\".4\" stroke-linejoin=\"round\"");
}

}  // namespace kestrel
