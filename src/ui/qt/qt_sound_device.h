// SPDX-License-Identifier: MIT
// Plays the sounds through Qt Multimedia. Built by the front end.
#pragma once

#include <QByteArray>
#include <QSoundEffect>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/files.h"
#include "forms/sound_device.h"

namespace kestrel {

// The format and the samples of a wave file, with half a second of silence behind them; empty when it is none. The sound
// server throws away what is not played yet when the samples end: that must be nothing that one should hear.
QByteArray WaveWithSilence(const QByteArray& file);

// One voice per sound: a sound that is played again while it lasts starts anew, so that a burst of clicks
// does not pile up.
class QtSoundDevice final : public SoundDevice {
 public:
  // `files`, which must outlive this object, reads the sounds.
  explicit QtSoundDevice(Files& files) : files_(files) {}
  bool Open() override;
  std::int32_t Load(std::string_view path) override;
  void Play(std::int32_t id) override;

 private:
  Files& files_;
  std::vector<std::unique_ptr<QSoundEffect>> effects_;  // the id is the place
};

}  // namespace kestrel
