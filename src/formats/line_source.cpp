// SPDX-License-Identifier: MIT
#include "formats/line_source.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <istream>

namespace kestrel {
namespace {

constexpr std::size_t kLongestLine = 1U << 20U;
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

}  // namespace

void LineSource::TellEncoding() {
  const std::string_view start = std::string_view(buffer_).substr(0, 2);
  encoding_ = start == "\xFF\xFE"   ? Encoding::kUtf16Little
              : start == "\xFE\xFF" ? Encoding::kUtf16Big
                                    : Encoding::kBytes;
  if (encoding_ != Encoding::kBytes) {
    const std::string raw = buffer_.substr(2);
    buffer_.clear();
    bytes_ = 2;
    Decode(raw);
  } else if (buffer_.starts_with(kUtf8Mark)) {
    next_ = bytes_ = kUtf8Mark.size();
  }
}

void LineSource::Decode(std::string_view bytes) {
  if (encoding_ == Encoding::kUnknown || encoding_ == Encoding::kBytes) {
    buffer_ += bytes;
    return;
  }
  const std::string units = odd_byte_ + std::string(bytes);
  const std::size_t low = encoding_ == Encoding::kUtf16Little ? 0 : 1;
  for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
    const char c = units[i + low];
    buffer_ += units[i + 1 - low] == 0 && static_cast<unsigned char>(c) < 0x80 ? c : '?';
  }
  odd_byte_ = units.substr(units.size() / 2 * 2);
}

// Reads more behind what the buffer holds. False at the end.
bool LineSource::Fill() {
  buffer_.erase(0, next_);
  next_ = 0;
  std::array<char, 1U << 16U> chunk;  // not cleared: as much as there is gets written
  do {
    if (in_.peek() == std::istream::traits_type::eof()) break;
    std::streamsize got = in_.readsome(chunk.data(), chunk.size());
    if (got <= 0) got = in_.read(chunk.data(), 1).gcount();
    Decode({chunk.data(), static_cast<std::size_t>(got)});
  } while (encoding_ == Encoding::kUnknown && buffer_.size() < kUtf8Mark.size());
  if (encoding_ == Encoding::kUnknown) TellEncoding();
  return in_.good();
}

// Goes `length` characters on.
void LineSource::Skip(std::size_t length) {
  next_ += length;
  bytes_ += encoding_ == Encoding::kBytes ? length : 2 * length;
}

bool LineSource::Next(std::string_view& line) {
  std::size_t searched = 0;
  bool more = true;
  while (true) {
    if (after_cr_ && next_ < buffer_.size()) {
      after_cr_ = false;
      if (buffer_[next_] == '\n') Skip(1);
    }
    const std::string_view rest = std::string_view(buffer_).substr(next_);
    std::size_t end = rest.find('\n', searched);
    end = std::min(end, rest.substr(0, end).find('\r', searched));
    if (end != std::string_view::npos || (!more && !rest.empty())) {
      const bool ended = end != std::string_view::npos;
      if (!ended) end = rest.size();
      after_cr_ = ended && rest[end] == '\r';
      ++number_;
      line = rest.substr(0, end);
      Skip(end + (ended ? 1 : 0));
      return true;
    }
    if (!more) return false;
    searched = rest.size();
    if (rest.size() > 2 * kLongestLine) {  // its rest is passed over without being kept
      const std::size_t dropped = rest.size() - kLongestLine;
      bytes_ += encoding_ == Encoding::kBytes ? dropped : 2 * dropped;
      buffer_.resize(next_ + kLongestLine);
      searched = kLongestLine;
    }
    more = Fill();
  }
}

}  // namespace kestrel
