// SPDX-License-Identifier: MIT
#include "game/session.h"

#include <array>

#include "solver/technique_table.h"

namespace kestrel {

namespace {

constexpr std::array<Colour, kLevels> kTierColours = {kWhite, kLightYellow, kLightGreen, kLightCyan,
                                                      kLightBlue};

// The technique list's captions and colours: the part of the design that the technique table decides.
void DesignTechniqueRows(MainWindow& main) {
  for (int slot = 0; slot < kTechniques; ++slot) {
    const TechniqueRow& row = kTechniqueTable[slot];
    const Colour colour = kTierColours[row.tier - 1];
    main.LabelCount(slot).caption = row.caption;
    main.LabelCount(slot).back = colour;
    main.LabelCount(kTechniques + slot).back = colour;
  }
}

}  // namespace

Session::Session(const Ports& handed_in) : ports(handed_in) {
  DesignTechniqueRows(forms.main);
}

}  // namespace kestrel
