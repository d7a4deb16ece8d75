// SPDX-License-Identifier: MIT
#include "ui/qt/qt_sound_device.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QUrl>
#include <QtEndian>
#include <algorithm>
#include <cstdint>

namespace kestrel {

namespace {

constexpr qsizetype kRiffHeader = 12;  // "RIFF", size, "WAVE"
constexpr qsizetype kChunkHeader = 8;  // name, size
// The format chunk: its least size, and where two of its numbers stand.
constexpr qsizetype kPcmFormat = 16;
constexpr qsizetype kBytesPerSecond = 8;
constexpr qsizetype kBytesPerFrame = 12;
constexpr qsizetype kBitsPerSample = 14;
constexpr std::size_t kMostSoundBytes = 16U << 20U;  // of a sound file

template <class Number>
Number NumberAt(const QByteArray& bytes, qsizetype place) {
  return qFromLittleEndian<Number>(bytes.constData() + place);
}

QByteArray Chunk(const QByteArray& name, const QByteArray& content) {
  const quint32 size = qToLittleEndian(static_cast<quint32>(content.size()));
  return name + QByteArray(reinterpret_cast<const char*>(&size), sizeof size) + content;
}

// Half a second, in whole frames.
QByteArray Silence(const QByteArray& format) {
  const qsizetype frame = std::max<qsizetype>(NumberAt<quint16>(format, kBytesPerFrame), 1);
  constexpr qsizetype kMost = 1 << 20;
  const qsizetype wanted = std::min<qsizetype>(NumberAt<quint32>(format, kBytesPerSecond) / 2, kMost);
  const bool is_unsigned = NumberAt<quint16>(format, kBitsPerSample) <= 8;
  return {wanted / frame * frame, is_unsigned ? '\x80' : '\0'};
}

}  // namespace

QByteArray WaveWithSilence(const QByteArray& file) {
  if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE") return {};
  QByteArray format;
  for (qsizetype place = kRiffHeader; place + kChunkHeader <= file.size();) {
    const QByteArray name = file.mid(place, 4);
    const qsizetype size = NumberAt<quint32>(file, place + 4);
    place += kChunkHeader;
    if (size > file.size() - place) return {};
    if (name == "fmt " && size >= kPcmFormat) format = file.mid(place, size);
    if (name == "data") {
      if (format.isEmpty() || size == 0) return {};
      return Chunk("RIFF",
                   "WAVE" + Chunk("fmt ", format) + Chunk("data", file.mid(place, size) + Silence(format)));
    }
    place += size + size % 2;  // chunks begin at even places
  }
  return {};
}

bool QtSoundDevice::Open() {
  return !QMediaDevices::defaultAudioOutput().isNull();
}

std::int32_t QtSoundDevice::Load(std::string_view path) {
  Bytes file;
  if (!files_.Read(path, kMostSoundBytes, file)) return -1;
  // The samples are decoded in the background; a file that cannot be one is refused at once.
  const QByteArray wave = WaveWithSilence(
      QByteArray(reinterpret_cast<const char*>(file.data()), static_cast<qsizetype>(file.size())));
  if (wave.isEmpty()) return -1;
  effects_.push_back(std::make_unique<QSoundEffect>());
  effects_.back()->setSource(QUrl(QLatin1String("data:audio/wav;base64,") + QLatin1String(wave.toBase64())));
  return static_cast<std::int32_t>(effects_.size()) - 1;
}

void QtSoundDevice::Play(std::int32_t id) {
  if (id < 0 || static_cast<std::size_t>(id) >= effects_.size()) return;
  effects_[static_cast<std::size_t>(id)]->play();
}

}  // namespace kestrel
