# SPDX-License-Identifier: MIT
# Sets KESTREL_WITH_QT: whether the window is built.
set(KESTREL_WITH_QT OFF)
if(NOT KESTREL_QT STREQUAL "OFF")
  find_package(Qt6 6.4 QUIET COMPONENTS Widgets DBus PrintSupport Multimedia Svg)
  if(Qt6_FOUND)
    set(KESTREL_WITH_QT ON)
  elseif(KESTREL_QT STREQUAL "ON")
    message(FATAL_ERROR "Qt 6 (Widgets, PrintSupport, Multimedia, Svg) was not found.")
  else()
    message(STATUS "Qt 6 was not found: everything but the window is built.")
  endif()
endif()
