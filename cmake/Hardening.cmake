# SPDX-License-Identifier: MIT
# What the programs that ship are compiled with against faults that the tests did not find: in release builds, for the
# sanitizers of the others want none of it. tests/tree/programs_are_hardened.sh looks at the result.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fstack-clash-protection KESTREL_HAS_STACK_CLASH_PROTECTION)
set(kestrel_release $<CONFIG:Release>)
add_compile_options(
  # Debian's own build flags may have set it before.
  "$<${kestrel_release}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>"
  "$<$<AND:${kestrel_release},$<BOOL:${KESTREL_HAS_STACK_CLASH_PROTECTION}>>:-fstack-clash-protection>"
  # Not a word in the programs of where they were built.
  "$<${kestrel_release}:-ffile-prefix-map=${PROJECT_BINARY_DIR}=build;-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>")
# Debian's compilers make position-independent code by default; the linker is told, too.
add_link_options("$<${kestrel_release}:-pie;-Wl,-z,relro;-Wl,-z,now>")
