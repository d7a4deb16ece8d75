// SPDX-License-Identifier: MIT
#include "ui/qt/qt_sound_device.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QUrl>
#include <QtEndian>

#include "core/host_files.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr qint64 kRiffHeader = 12;  // "RIFF", size, "WAVE"
constexpr qint64 kChunkHeader = 8;  // name, size
constexpr quint32 kPcmFormat = 16;  // bytes of the smallest format chunk

}  // namespace

bool IsWaveFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray riff = file.read(kRiffHeader);
  if (riff.size() != kRiffHeader || !riff.startsWith("RIFF") || !riff.endsWith("WAVE")) return false;
  bool format = false;
  while (true) {
    const QByteArray chunk = file.read(kChunkHeader);
    if (chunk.size() != kChunkHeader) return false;
    const auto size = qFromLittleEndian<quint32>(chunk.constData() + 4);
    const qint64 left = file.size() - file.pos();
    if (chunk.startsWith("fmt ")) format = size >= kPcmFormat && size <= left;
    if (chunk.startsWith("data")) return format && size > 0 && size <= left;
    // Chunks begin at even places.
    if (!file.seek(file.pos() + size + size % 2)) return false;
  }
}

bool QtSoundDevice::Open() {
  return !QMediaDevices::defaultAudioOutput().isNull();
}

std::int32_t QtSoundDevice::Load(std::string_view path) {
  const QString host = ToQString(ToHostPath(path));
  // The samples are read in the background; a file that cannot be one is refused at once.
  if (!IsWaveFile(host)) return -1;
  effects_.push_back(std::make_unique<QSoundEffect>());
  effects_.back()->setSource(QUrl::fromLocalFile(host));
  return static_cast<std::int32_t>(effects_.size()) - 1;
}

void QtSoundDevice::Play(std::int32_t id) {
  if (id < 0 || static_cast<std::size_t>(id) >= effects_.size()) return;
  effects_[static_cast<std::size_t>(id)]->play();
}

}  // namespace kestrel
