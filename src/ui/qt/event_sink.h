// SPDX-License-Identifier: MIT
// Where the widgets hand over what the user did. Implemented by the dispatcher.
#pragma once

#include "forms/event.h"

namespace kestrel {

class EventSink {
 public:
  EventSink() = default;
  EventSink(const EventSink&) = delete;
  EventSink& operator=(const EventSink&) = delete;
  virtual ~EventSink() = default;

  // Handles the event to its end, be it after any number of boxes and nested events.
  virtual void Send(const Event& event) = 0;
};

}  // namespace kestrel
