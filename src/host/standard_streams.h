// SPDX-License-Identifier: MIT
// The standard streams of a program. Used by every main.
#pragma once

namespace kestrel {

// To be called first. Makes a closed standard stream refuse what is written to it, so that lost output is noticed and
// no file opened later gets its number; a reader that went away, or a full quota, fails a write instead of ending
// the program.
void PrepareStandardStreams();

// Whether whoever reads standard output has gone, as `head` does when it has seen enough.
bool OutputReaderLeft();

// Flushes std::cout. False, after a message on standard error, when something written there was lost; the message is
// left out when the reader has gone.
bool FinishOutput(const char* program);

}  // namespace kestrel
