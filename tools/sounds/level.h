// SPDX-License-Identifier: MIT
// How loud a sound is. Used to match the sounds to each other, and by the test that reads them back.
#pragma once

#include "sounds/wave_file.h"

namespace kestrel::sounds {

// The largest sample, in decibels below full scale; -200 for silence.
double PeakLevel(const Wave& wave);

// The loudness of the loudest 200 ms: mean square after the ear's weighting of ITU-R BS.1770 (both channels
// added), in decibels below full scale; -200 for silence. A short sound counts as followed by silence, as the
// ear hears it: half as long is 3 decibels quieter.
double Loudness(const Wave& wave);

}  // namespace kestrel::sounds
