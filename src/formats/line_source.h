// SPDX-License-Identifier: MIT
// The lines of a text, whoever wrote it. Used by the puzzle stream.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace kestrel {

// Lines end with LF, CR LF or CR. Text in UTF-16 that begins with its mark is read as well; what is not ASCII in it
// becomes '?'. Takes what a pipe has to give without waiting for more.
class LineSource {
 public:
  // `in` must outlive this object.
  explicit LineSource(std::istream& in) : in_(in) {}

  // The next line without its end, valid until the next call; false after the last. Of a line longer than a megabyte
  // only the start is given.
  bool Next(std::string_view& line);

  std::uint64_t Number() const { return number_; }  // of the last line, from 1
  std::uint64_t Bytes() const { return bytes_; }    // that have been read up to the end of the last line

 private:
  enum class Encoding { kUnknown, kBytes, kUtf16Little, kUtf16Big };

  bool Fill();
  void TellEncoding();
  void Decode(std::string_view bytes);
  void Skip(std::size_t length);

  std::istream& in_;
  Encoding encoding_ = Encoding::kUnknown;
  std::string buffer_;     // decoded text; what lies before next_ has been given out
  std::size_t next_ = 0;   // start of the next line
  std::string odd_byte_;   // half a UTF-16 unit
  bool after_cr_ = false;  // an LF that comes now belongs to the line before
  std::uint64_t number_ = 0;
  std::uint64_t bytes_ = 0;
};

}  // namespace kestrel
