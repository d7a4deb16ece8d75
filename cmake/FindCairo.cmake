# SPDX-License-Identifier: MIT
# Sets KESTREL_WITH_CAIRO: whether pages can be printed into files. No pkg-config, which finds the libraries of the
# building machine when another processor is built for.
set(KESTREL_WITH_CAIRO OFF)
if(NOT KESTREL_CAIRO STREQUAL "OFF")
  include(CheckCXXSourceCompiles)
  find_path(KESTREL_CAIRO_HEADERS cairo-pdf.h PATH_SUFFIXES cairo)
  find_library(KESTREL_CAIRO_LIBRARY cairo)
  if(KESTREL_CAIRO_HEADERS AND KESTREL_CAIRO_LIBRARY)
    set(CMAKE_REQUIRED_INCLUDES ${KESTREL_CAIRO_HEADERS})
    set(CMAKE_REQUIRED_LIBRARIES ${KESTREL_CAIRO_LIBRARY})
    check_cxx_source_compiles(
      "#include <cairo-pdf.h>
       #include <cairo-svg.h>
       int main() {
         cairo_surface_write_to_png_stream(cairo_svg_surface_create(\"\", 1, 1), nullptr, nullptr);
         cairo_pdf_surface_set_metadata(nullptr, CAIRO_PDF_METADATA_TITLE, \"\");
       }"
      KESTREL_CAIRO_WORKS)
    unset(CMAKE_REQUIRED_INCLUDES)
    unset(CMAKE_REQUIRED_LIBRARIES)
  endif()
  if(KESTREL_CAIRO_WORKS)
    set(KESTREL_WITH_CAIRO ON)
  elseif(KESTREL_CAIRO STREQUAL "ON")
    message(FATAL_ERROR "Cairo with PDF, SVG and PNG was not found.")
  else()
    message(STATUS "Cairo was not found: everything but printing into files is built.")
  endif()
endif()
