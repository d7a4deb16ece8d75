// SPDX-License-Identifier: MIT
// Writes the ten sounds of the game: make-sounds FOLDER. Prints length, peak and loudness of each.
#include <cstdio>
#include <string>

#include "sounds/level.h"
#include "sounds/sound_set.h"

int main(int argc, char** argv) {
  using namespace kestrel::sounds;
  if (argc != 2) {
    std::fputs("Usage: make-sounds FOLDER\n", stderr);
    return 2;
  }
  for (const NamedSound& sound : MakeSounds()) {
    const std::string path = std::string(argv[1]) + '/' + std::string(sound.file);
    if (!WriteWaveFile(path, sound.wave)) {
      std::fprintf(stderr, "make-sounds: %s cannot be written\n", path.c_str());
      return 1;
    }
    std::printf("%-14s %5.0f ms  peak %6.1f dB  loudness %6.1f dB\n", std::string(sound.file).c_str(),
                1000 * sound.wave.Seconds(), PeakLevel(sound.wave), Loudness(sound.wave));
  }
  return 0;
}
