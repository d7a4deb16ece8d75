// SPDX-License-Identifier: MIT
#include "sounds/wave_file.h"

#include <sndfile.h>

namespace kestrel::sounds {

bool WriteWaveFile(const std::string& path, const Wave& wave) {
  SF_INFO format{};
  format.samplerate = wave.sample_rate;
  format.channels = wave.channels;
  format.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &format);
  if (file == nullptr) return false;
  const auto frames = static_cast<sf_count_t>(wave.Frames());
  const bool written = sf_writef_short(file, wave.samples.data(), frames) == frames;
  // The header gets its lengths when the file is closed.
  return sf_close(file) == SF_ERR_NO_ERROR && written;
}

}  // namespace kestrel::sounds
